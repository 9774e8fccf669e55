#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Fills a folder with files that are offered as photos and should not be.

    hostilephotos.py CORPUS FOLDER      prints their paths as JSON, one a line
"""
import json
import os
import random
import socket
import struct
import sys
import zlib
from pathlib import Path

corpus, folder = Path(sys.argv[1]), Path(sys.argv[2])
folder.mkdir()
random.seed(20240229)
made = []


def add(name, content=None):
    path = folder / name
    if content is not None:
        path.write_bytes(content)
    made.append(str(path))
    return path


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def png(width, height, packed, bits=8, colours=2):
    header = struct.pack(">IIBBBBB", width, height, bits, colours, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", packed)
            + chunk(b"IEND", b""))


def zeros(count):
    packer = zlib.compressobj(9)
    pieces = [packer.compress(bytes(1 << 20)) for _ in range(count >> 20)]
    return b"".join(pieces) + packer.compress(bytes(count & 0xFFFFF)) + packer.flush()


samples = {path.name: path.read_bytes() for path in sorted(corpus.iterdir())}

# Cuts and damage, of every format.
for name, whole in samples.items():
    for tenth in (2, 6, 9):
        add(f"cut-{tenth}-{name}", whole[: len(whole) * tenth // 10])
    broken = bytearray(whole)
    for _ in range(1 + len(broken) // 40):
        broken[random.randrange(len(broken))] = random.randrange(256)
    add(f"broken-{name}", bytes(broken))
    add(f"and-more-{name}", whole + os.urandom(5000))

# Lies.
for size in (1, 100, 30000, 65535, 2**31 - 1, 2**32 - 1):
    add(f"claims-{size}.png", png(size, size, zlib.compress(bytes(100))))
jpeg = samples["baseline.jpg"]
size_at = jpeg.index(b"\xff\xc0") + 5
for height, width in ((65535, 65535), (65500, 1), (1, 65500), (0, 24), (16, 0)):
    claim = jpeg[:size_at] + struct.pack(">HH", height, width) + jpeg[size_at + 4 :]
    add(f"claims-{width}x{height}.jpg", claim)
add("picture.jpg", samples["plain.bmp"])
add("words.png", b"not a picture\n" * 100)
add("page.png", samples["page.svg"])
add("empty.jpg", b"")
add("noise.jpg", os.urandom(1 << 20))
tiff = bytearray(samples["plain.tiff"])
tiff[4:8] = struct.pack("<I", 4)
add("loops.tiff", bytes(tiff))

# Bombs.
add("bomb-rgb.png", png(20000, 20000, zeros(20000 * 60001)))
add("bomb-mono.png", png(60000, 60000, zeros(60000 * 7501), 1, 0))
add("bomb-wide.png", png(1000000, 100, zeros(100 * 3000001)))
progressive = samples["progressive.jpg"]
last_scan = progressive.rindex(b"\xff\xda")
end = progressive.rindex(b"\xff\xd9")
add("bomb-scans.jpg", progressive[:end] + progressive[last_scan:end] * 20000 + b"\xff\xd9")
large = progressive.index(b"\xff\xc2") + 5
huge = progressive[:large] + struct.pack(">HH", 20000, 20000) + progressive[large + 4 :]
add("bomb-progressive.jpg", huge)
gif = samples["plain.gif"]
add("bomb-frames.gif", gif[:-1] + gif[gif.index(b"\x21\xf9") : -1] * 100000 + b";")
with add("sparse.jpg").open("wb") as sparse:
    sparse.write(jpeg)
    sparse.truncate(1 << 40)

# What is no file.
os.symlink("/etc/passwd", add("to-passwd.jpg"))
os.symlink("nowhere", add("to-nothing.jpg"))
os.symlink("to-itself.jpg", add("to-itself.jpg"))
os.symlink("/dev/zero", add("to-zeros.jpg"))
os.symlink("/proc/self/mem", add("to-memory.jpg"))
os.mkfifo(add("fifo.jpg"))
os.mkdir(add("folder.jpg"))
listener = socket.socket(socket.AF_UNIX)
listener.bind(str(add("socket.jpg")))
made.extend(["/dev/zero", "/dev/random", "/dev/stdin", "/proc/self/mem", "/proc/kmsg", "/", "x.jpg",
             "", "/" + "x" * 5000, "/a\0b.jpg"])

# Odd names of good pictures.
for name in ("-rf.jpg", " .jpg", "a\nb.jpg", "50% %20#?&.jpg", "\u202e right to left.jpg",
             "\u4e2d" * 80 + ".jpg", "file:", "..jpg", "\U0001f469\u200d\U0001f467.jpg",
             "'\"`$(touch x)`.jpg", "0 0 "):
    add(name, jpeg)
os.link(folder / "-rf.jpg", add("hard link.jpg"))

for path in made:
    print(json.dumps(path))
