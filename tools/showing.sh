#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Runs the program through one whole showing on a private virtual screen and leaves
# pictures of it.
#   showing.sh PROGRAM CLOCK FOLDER     CLOCK is the library of steppedclock.cpp
set -euo pipefail

program=$1
clock=$2
folder=$3
. "$(dirname "$0")/privatescreen.sh"

shot desktop
launch "$clock" "$program"
advance 300
shot 1-entrance-a
advance 500
shot 1-entrance-b
advance 700
shot 1-entrance-c
advance 5000
shot 2-whole
xdotool key space
advance 250
shot 3-fading-out
cmp -s "$work/2-whole.ppm" "$work/3-fading-out.ppm" && die "The quote screen does not fade."
cmp -s "$work/desktop.ppm" "$work/3-fading-out.ppm" &&
    die "The quote screen went away without fading."
advance 500
until_true 10 gone || die "The quote screen does not go away."

mkdir -p "$folder"
rm -f "$folder"/showing-*.png
for picture in "$work"/[1-3]-*.ppm; do
    name=showing-$(basename "$picture" .ppm).png
    convert "$picture" "$folder/$name"
    echo "Picture: $folder/$name"
done
montage "$work"/[1-3]-*.ppm -resize 756x -geometry +12+12 -tile 2x -background '#202020' \
    "$folder/showing-sheet.png"
echo "Contact sheet: $folder/showing-sheet.png"
