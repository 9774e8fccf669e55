#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Serves one quotation on a port of its own, once a file exists.

    patientserver.py PORTFILE RELEASEFILE
"""
import os
import sys
import time
from http.server import BaseHTTPRequestHandler, HTTPServer

BODY = b'[{"q": "The lamp that is lit for one lights the whole stair.", "a": "A Neighbour"}]'


class Handler(BaseHTTPRequestHandler):
    def do_GET(self):
        print("asked for", self.path, "accepting", self.headers["Accept"], flush=True)
        while not os.path.exists(sys.argv[2]):
            time.sleep(0.02)
        self.send_response(200)
        self.send_header("Content-Length", str(len(BODY)))
        self.end_headers()
        self.wfile.write(BODY)

    def log_message(self, *args):
        pass


server = HTTPServer(("127.0.0.1", 0), Handler)
with open(sys.argv[1] + ".new", "w", encoding="ascii") as port:
    port.write(str(server.server_port))
os.rename(sys.argv[1] + ".new", sys.argv[1])
server.serve_forever()
