#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Judges pictures of a screen. Both pictures are cut into tiles; two tiles agree if half
of their pixels or more have nearly the same colour, which texts do not change.

  look.py like PICTURE OTHER [LEFT,TOP,WIDTH,HEIGHT]
      every tile of that part of PICTURE agrees with OTHER, which is scaled to it
  look.py unlike PICTURE OTHER [LEFT,TOP,WIDTH,HEIGHT]
      no more than one in twenty does
  look.py nearer PICTURE ONE OTHER LEFT,TOP,WIDTH,HEIGHT
      that part of PICTURE differs less from that of ONE than from that of OTHER
  look.py colour PICTURE LEFT,TOP,WIDTH,HEIGHT
      prints the mean of red, green and blue
  look.py changed PICTURE OTHER LEFT,TOP,WIDTH,HEIGHT
      prints the fraction of pixels there that differ
"""
import sys

import numpy
from PIL import Image

COLUMNS, ROWS = 32, 18
NEARLY = 12  # of 255


def pixels(path, box=None, size=None):
    picture = Image.open(path).convert("RGB")
    if box:
        left, top, width, height = map(int, box.split(","))
        picture = picture.crop((left, top, left + width, top + height))
    if size and picture.size != size:
        picture = picture.resize(size)
    return picture


def agreeing(path, other, box):
    """For every tile, whether it agrees."""
    picture = pixels(path, box)
    expected = pixels(other, None, picture.size)
    difference = numpy.abs(
        numpy.asarray(picture).astype(int) - numpy.asarray(expected).astype(int)
    ).max(axis=2)
    rows = numpy.array_split(difference, ROWS)
    return [
        float(numpy.median(tile)) <= NEARLY
        for row in rows
        for tile in numpy.array_split(row, COLUMNS, axis=1)
    ]


def main():
    what, path, *rest = sys.argv[1:]
    if what in ("like", "unlike"):
        tiles = agreeing(path, rest[0], rest[1] if len(rest) > 1 else None)
        share = sum(tiles) / len(tiles)
        print(f"{share:.3f} of the tiles agree")
        return 0 if (share == 1 if what == "like" else share <= 0.05) else 1
    if what == "nearer":
        part = numpy.asarray(pixels(path, rest[2])).astype(int)
        one, other = (
            numpy.abs(part - numpy.asarray(pixels(name, rest[2])).astype(int)).mean()
            for name in rest[:2]
        )
        return 0 if one < other else 1
    if what == "changed":
        one = numpy.asarray(pixels(path, rest[1])).astype(int)
        other = numpy.asarray(pixels(rest[0], rest[1])).astype(int)
        print(f"{(numpy.abs(one - other).max(axis=2) > NEARLY).mean():.4f}")
        return 0
    if what == "colour":
        values = numpy.asarray(pixels(path, rest[0])).astype(int)
        print(*(int(round(c)) for c in values.mean(axis=(0, 1))))
        return 0
    return __doc__


sys.exit(main())
