#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Makes the icon of the bundle from a drawing: a container of PNG pictures.

    make_icns.py DRAWING.svg OUTPUT.icns     needs rsvg-convert (librsvg)
"""

import struct
import subprocess
import sys

# The kinds that hold PNG, and their pixels: 16 to 512 points, at one and at two pixels
# for a point.
KINDS = {"icp4": 16, "icp5": 32, "ic11": 32, "ic12": 64, "ic07": 128, "ic13": 256,
         "ic08": 256, "ic14": 512, "ic09": 512, "ic10": 1024}


def main():
    drawing, output = sys.argv[1:]
    body = b""
    for kind, pixels in KINDS.items():
        picture = subprocess.run(["rsvg-convert", "-w", str(pixels), "-h", str(pixels), drawing],
                                 check=True, stdout=subprocess.PIPE).stdout
        body += kind.encode() + struct.pack(">I", 8 + len(picture)) + picture
    with open(output, "wb") as file:
        file.write(b"icns" + struct.pack(">I", 8 + len(body)) + body)


main()
