#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Writes a PNG of 8000 x 6000 pixels that is slow to decode.

largephoto.py FILE
"""
import random
import struct
import sys
import zlib

WIDTH, HEIGHT, PAETH = 8000, 6000, 4


def chunk(kind, data):
    check = zlib.crc32(kind + data)
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", check)


random.seed(1)
noise = bytes(random.choices(range(4), k=3 * WIDTH + 997))
packer = zlib.compressobj(1)
with open(sys.argv[1], "wb") as out:
    out.write(b"\x89PNG\r\n\x1a\n")
    out.write(chunk(b"IHDR", struct.pack(">IIBBBBB", WIDTH, HEIGHT, 8, 2, 0, 0, 0)))
    for y in range(HEIGHT):
        start = y * 31 % 997
        row = packer.compress(bytes([PAETH]) + noise[start : start + 3 * WIDTH])
        if row:
            out.write(chunk(b"IDAT", row))
    out.write(chunk(b"IDAT", packer.flush()))
    out.write(chunk(b"IEND", b""))
