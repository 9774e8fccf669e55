# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""A web server on the loopback address with the faults that a request asks for.

Prints one line, "http IPv4 port, http IPv6 port, port that never accepts, https port,
file of its certificate", then one line for each request, and serves until its standard
input is closed. The path of a request names the behaviour, without what follows a "?";
"/redirect/N" redirects N times before the quotation, "/via/NAME" once before the
behaviour. As a proxy it answers for every host. With the argument "--list" it prints the
names of all behaviours instead.
"""
import gzip
import os
import socket
import ssl
import struct
import subprocess
import sys
import tempfile
import threading
import time
import zlib

QUOTE = b'{"q":"A","a":"B"}'
BEHAVIOURS = {}
PORTS = {}


def behaviour(function):
    BEHAVIOURS[function.__name__.replace("_", "-")] = function
    return function


def head(status="200 OK", **fields):
    lines = ["HTTP/1.1 " + status]
    lines += [f"{name.replace('_', '-')}: {value}" for name, value in fields.items()]
    return ("\r\n".join(lines) + "\r\n\r\n").encode()


def answer(conn, body, status="200 OK", **fields):
    conn.sendall(head(status, Content_Length=len(body), Connection="close", **fields) + body)


def flood(conn, piece, seconds=20):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        conn.sendall(piece)


def drip(conn, data, pause):
    for index in range(len(data)):
        conn.sendall(data[index : index + 1])
        time.sleep(pause)


def reset(conn):
    conn.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))


def chunk(data):
    return b"%x\r\n%s\r\n" % (len(data), data)


@behaviour
def ok(conn, _):
    answer(conn, QUOTE)


@behaviour
def echo(conn, request):
    lines = b"\n".join(sorted(request.split(b"\r\n")[1:]))
    answer(conn, lines.strip() + b"\n.")


@behaviour
def silent(conn, _):
    time.sleep(20)


@behaviour
def drip_header(conn, _):
    drip(conn, head(Content_Length=len(QUOTE)) + QUOTE, 1)


@behaviour
def drip_body(conn, _):
    conn.sendall(head(Content_Length=len(QUOTE)))
    drip(conn, QUOTE, 1)


@behaviour
def drip_endless(conn, _):
    conn.sendall(head())
    drip(conn, b" " * 2000, 0.01)


@behaviour
def slow_but_in_time(conn, _):
    conn.sendall(head(Content_Length=len(QUOTE)))
    drip(conn, QUOTE, 0.1)


@behaviour
def endless(conn, _):
    conn.sendall(head())
    flood(conn, b"x" * 65536)


@behaviour
def endless_chunked(conn, _):
    conn.sendall(head(Transfer_Encoding="chunked"))
    flood(conn, chunk(b"x" * 65536))


@behaviour
def endless_tiny_chunks(conn, _):
    conn.sendall(head(Transfer_Encoding="chunked"))
    flood(conn, chunk(b"x") * 10000)


@behaviour
def terabyte_announced(conn, _):
    conn.sendall(head(Content_Length=1 << 40))
    flood(conn, b"x" * 65536)


def padded(size):
    return QUOTE[:-1] + b" " * (size - len(QUOTE)) + b"}"


@behaviour
def at_the_cap(conn, _):
    answer(conn, padded(4 << 20))


@behaviour
def over_the_cap(conn, _):
    answer(conn, padded((4 << 20) + 1))


@behaviour
def gzip_over_the_cap(conn, _):
    answer(conn, gzip.compress(padded((4 << 20) + 1)), Content_Encoding="gzip")


@behaviour
def hungry_json(conn, _):
    answer(conn, b"[" + b"{}," * ((4 << 20) // 3 - 2) + b"{}]")


@behaviour
def deep_json(conn, _):
    answer(conn, b"[" * (4 << 20))


@behaviour
def endless_header(conn, _):
    conn.sendall(b"HTTP/1.1 200 OK\r\nX: ")
    flood(conn, b"x" * 65536)


@behaviour
def endless_headers(conn, _):
    conn.sendall(b"HTTP/1.1 200 OK\r\n")
    flood(conn, b"X: y\r\n" * 10000)


@behaviour
def endless_status(conn, _):
    conn.sendall(b"HTTP/1.1 200 ")
    flood(conn, b"x" * 65536)


@behaviour
def endless_continue(conn, _):
    flood(conn, b"HTTP/1.1 100 Continue\r\n\r\n" * 2000)


@behaviour
def endless_chunk_extension(conn, _):
    conn.sendall(head(Transfer_Encoding="chunked") + b"5;")
    flood(conn, b"x" * 65536)


@behaviour
def endless_trailer(conn, _):
    conn.sendall(head(Transfer_Encoding="chunked") + chunk(QUOTE) + b"0\r\n")
    flood(conn, b"X: y\r\n" * 10000)


@behaviour
def reset_at_once(conn, _):
    reset(conn)


@behaviour
def reset_in_body(conn, _):
    conn.sendall(head(Content_Length=1000) + QUOTE)
    time.sleep(0.2)
    reset(conn)


@behaviour
def close_at_once(conn, _):
    pass


@behaviour
def too_short(conn, _):
    conn.sendall(head(Content_Length=1000) + QUOTE)


@behaviour
def error_too_short(conn, _):
    conn.sendall(head("500 No", Content_Length=1000) + QUOTE)


@behaviour
def too_long(conn, _):
    conn.sendall(head(Content_Length=len(QUOTE)) + QUOTE + b"garbage" * 1000)


@behaviour
def negative_length(conn, _):
    conn.sendall(head(Content_Length=-5) + QUOTE)


@behaviour
def no_length(conn, _):
    conn.sendall(head() + QUOTE)


@behaviour
def gzipped(conn, _):
    answer(conn, gzip.compress(QUOTE), Content_Encoding="gzip")


@behaviour
def deflated(conn, _):
    answer(conn, zlib.compress(QUOTE), Content_Encoding="deflate")


def bomb(conn, wbits, encoding):
    packer = zlib.compressobj(9, zlib.DEFLATED, wbits)
    zeros = b"\0" * (1 << 20)
    piece = b"".join(packer.compress(zeros) for _ in range(64))
    answer(conn, piece + packer.flush(), Content_Encoding=encoding)


@behaviour
def gzip_bomb(conn, _):
    bomb(conn, 31, "gzip")


@behaviour
def deflate_bomb(conn, _):
    bomb(conn, 15, "deflate")


@behaviour
def gzip_endless(conn, _):
    conn.sendall(head(Content_Encoding="gzip"))
    packer = zlib.compressobj(9, zlib.DEFLATED, 31)
    zeros = b"\0" * (1 << 20)
    end = time.monotonic() + 20
    while time.monotonic() < end:
        conn.sendall(packer.compress(zeros))


@behaviour
def gzip_empty_members(conn, _):
    conn.sendall(head(Content_Encoding="gzip"))
    flood(conn, gzip.compress(b"") * 1000)


@behaviour
def gzip_garbage(conn, _):
    answer(conn, b"\x1f\x8b\x08" + os.urandom(1000), Content_Encoding="gzip")


@behaviour
def gzip_cut(conn, _):
    answer(conn, gzip.compress(os.urandom(5000).hex().encode())[:2000], Content_Encoding="gzip")


@behaviour
def gzip_cut_text(conn, _):
    packed = gzip.compress(b"Be kind to everybody whom you meet, and to yourself.")
    answer(conn, packed[:-12], Content_Encoding="gzip")


@behaviour
def gzip_members(conn, _):
    answer(conn, gzip.compress(QUOTE[:5]) + gzip.compress(QUOTE[5:]), Content_Encoding="gzip")


@behaviour
def unknown_encoding(conn, _):
    answer(conn, QUOTE, Content_Encoding="none-such")


def redirect(conn, place, status="302 Found"):
    conn.sendall(head(status, Location=place, Content_Length=0, Connection="close"))


@behaviour
def redirect_loop(conn, _):
    redirect(conn, "/redirect-loop")


@behaviour
def redirect_to_file(conn, _):
    redirect(conn, "file:///proc/version")


@behaviour
def redirect_to_data(conn, _):
    redirect(conn, "data:,hello")


@behaviour
def redirect_to_ftp(conn, _):
    redirect(conn, "ftp://127.0.0.1/")


@behaviour
def to_https(conn, _):
    redirect(conn, f"https://127.0.0.1:{PORTS['https']}/ok")


@behaviour
def to_http(conn, _):
    redirect(conn, f"http://127.0.0.1:{PORTS['http']}/ok?in-the-clear")


@behaviour
def to_https_and_back(conn, _):
    redirect(conn, f"https://127.0.0.1:{PORTS['https']}/to-http")


@behaviour
def redirect_nowhere(conn, _):
    redirect(conn, "")


@behaviour
def redirect_flood(conn, _):
    conn.sendall(head("302 Found", Location="/ok"))
    flood(conn, b"x" * 65536)


@behaviour
def slow_and_large(conn, _):
    body = padded(2 << 20)
    conn.sendall(head(Content_Length=len(body)))
    for start in range(0, len(body), 1 << 18):
        conn.sendall(body[start : start + (1 << 18)])
        time.sleep(0.2)


@behaviour
def cut_in_the_header(conn, _):
    conn.sendall(b"HTTP/1.1 200 OK\r\nContent-Le")


@behaviour
def no_content(conn, _):
    conn.sendall(head("204 No Content", Connection="close"))


@behaviour
def not_modified(conn, _):
    conn.sendall(head("304 Not Modified", Connection="close"))


for code in (400, 401, 403, 404, 407, 418, 429, 500, 503, 599):
    BEHAVIOURS[f"status-{code}"] = lambda conn, _, code=code: answer(conn, QUOTE, f"{code} No")


@behaviour
def asks_for_password(conn, _):
    answer(conn, QUOTE, "401 No", WWW_Authenticate='Basic realm="x"')


@behaviour
def html(conn, _):
    answer(conn, b"<!doctype html><title>No</title>", Content_Type="application/json")


@behaviour
def wrong_type(conn, _):
    answer(conn, QUOTE, Content_Type="image/png")


@behaviour
def chunked(conn, _):
    pieces = b"".join(chunk(QUOTE[i : i + 3]) for i in range(0, len(QUOTE), 3))
    conn.sendall(head(Transfer_Encoding="chunked") + pieces + b"0\r\n\r\n")


@behaviour
def chunked_garbage(conn, _):
    conn.sendall(head(Transfer_Encoding="chunked") + b"zz\r\nnonsense\r\n" + os.urandom(5000))


@behaviour
def chunked_cut(conn, _):
    conn.sendall(head(Transfer_Encoding="chunked") + chunk(QUOTE))


@behaviour
def not_http(conn, _):
    conn.sendall(b"220 mail.example ESMTP\r\n" * 50)


@behaviour
def binary_noise(conn, _):
    conn.sendall(os.urandom(100000))


@behaviour
def sets_cookie(conn, _):
    conn.sendall(head("302 Found", Location="/echo", Set_Cookie="a=b; Path=/", Content_Length=0,
                      Connection="close"))


def serve(conn):
    try:
        conn.settimeout(20)
        request = b""
        while b"\r\n\r\n" not in request:
            piece = conn.recv(65536)
            if not piece:
                return
            request += piece
            if not request.startswith(b"GET "[: len(request)]):
                conn.sendall(b"HTTP/1.1 400 Bad Request\r\n\r\n")
                return
        path = request.split(b" ")[1].decode().lstrip("/")
        sys.stdout.write(path + "\n")
        sys.stdout.flush()
        if path.startswith("http://"):
            path = path[7:].partition("/")[2]
        if path.startswith("via/"):
            redirect(conn, path[3:])
            return
        path = path.partition("?")[0]
        if path.startswith("redirect/"):
            left = int(path[9:])
            redirect(conn, f"/redirect/{left - 1}" if left > 1 else "/ok")
        elif path in BEHAVIOURS:
            BEHAVIOURS[path](conn, request)
        else:
            answer(conn, b"<none>", "404 Not Found")
    except OSError:
        pass
    finally:
        conn.close()


def serve_encrypted(conn, context):
    try:
        conn.settimeout(20)
        serve(context.wrap_socket(conn, server_side=True))
    except OSError:
        conn.close()


def accept(listener, context):
    while True:
        conn, _ = listener.accept()
        target, args = (serve_encrypted, (conn, context)) if context else (serve, (conn,))
        threading.Thread(target=target, args=args, daemon=True).start()


def listen(family, address, context=None):
    listener = socket.socket(family, socket.SOCK_STREAM)
    listener.bind((address, 0))
    listener.listen(64)
    threading.Thread(target=accept, args=(listener, context), daemon=True).start()
    return listener.getsockname()[1]


def make_certificate(folder):
    """A certificate of its own for 127.0.0.1, and what serves with it."""
    certificate, key = os.path.join(folder, "certificate"), os.path.join(folder, "key")
    subprocess.run(["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt",
                    "ec_paramgen_curve:prime256v1", "-nodes", "-subj", "/CN=hostile",
                    "-addext", "subjectAltName=IP:127.0.0.1", "-keyout", key, "-out", certificate],
                   check=True, capture_output=True)
    context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    context.load_cert_chain(certificate, key)
    return certificate, context


def listen_without_accepting():
    """A port whose queue is full, so that connecting never ends."""
    listener = socket.socket()
    listener.bind(("127.0.0.1", 0))
    listener.listen(0)
    waiting = []
    for _ in range(4):
        conn = socket.socket()
        conn.setblocking(False)
        conn.connect_ex(listener.getsockname())
        waiting.append(conn)
    return listener, waiting


def main():
    if sys.argv[1:] == ["--list"]:
        print(*BEHAVIOURS, sep="\n")
        return
    full = listen_without_accepting()
    with tempfile.TemporaryDirectory() as folder:
        certificate, context = make_certificate(folder)
        PORTS["http"] = listen(socket.AF_INET, "127.0.0.1")
        PORTS["https"] = listen(socket.AF_INET, "127.0.0.1", context)
        try:
            ipv6 = listen(socket.AF_INET6, "::1")
        except OSError:
            ipv6 = 0
        print(PORTS["http"], ipv6, full[0].getsockname()[1], PORTS["https"], certificate, flush=True)
        sys.stdin.read()


main()
