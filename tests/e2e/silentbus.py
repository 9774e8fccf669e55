#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""A bus that accepts every connection and never answers.

    silentbus.py SOCKET
"""
import socket
import sys

server = socket.socket(socket.AF_UNIX)
server.bind(sys.argv[1])
server.listen()
clients = []
while True:
    clients.append(server.accept())
