#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# The pictures of ./dev run show the same instants beside busy neighbours: text that
# is still coming in, and a fade that has not ended.
#   pictures.sh SHOWING CLOCK     tools/showing.sh and the library of its clock
here=$(dirname "$0")
. "$here/lib.sh"

for _ in $(seq $(($(nproc) * 3))); do start neighbour sh -c 'while :; do :; done'; done
mkdir "$work/out"
check "the pictures are taken" "$1" "$MORROWLEAF" "$2" "$work/out"
# detail PICTURE: how much the middle differs from itself blurred, where the text is
detail() {
    convert "$work/out/showing-$1.png" -gravity center -crop 1000x400+0+0 +repage \
        -colorspace gray \( +clone -blur 0x6 \) -compose difference -composite \
        -format '%[fx:round(mean*1000000)]' info:
}
exceeds() { [ "$(detail "$1")" -gt $(($(detail "$2") * 21 / 20)) ]; }
check "the text is coming in" exceeds 1-entrance-b 1-entrance-a
check "and in" exceeds 1-entrance-c 1-entrance-b
check "and is whole later" exceeds 2-whole 1-entrance-b
check "and has begun to fade" exceeds 2-whole 3-fading-out
check "but is there" exceeds 3-fading-out 1-entrance-a
finish
