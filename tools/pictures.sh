#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Takes the pictures of README.md and docs/: a moving one of a showing, the windows of the
# program on a private virtual screen, and what can be drawn off-screen.
#   pictures.sh PROGRAM CLOCK SNAPSHOT FOLDER     CLOCK is the library of steppedclock.cpp
set -euo pipefail

program=$1
clock=$2
snapshot=$3
folder=$4
export LANG=C.UTF-8 LANGUAGE=en TZ=UTC
export STEPPED_DATE=1796206620 # a Wednesday in December 2026, 10:17
screen=1134x738
. "$(dirname "$0")/privatescreen.sh"
mkdir -p "$folder"
moving_width=760 still_width=900

text="Nowhere can man find a quieter or more untroubled retreat than in his own soul."
author="Marcus Aurelius"
settings=$XDG_CONFIG_HOME/morrowleaf/settings.json
mkdir -p "$(dirname "$settings")"
jq -n --arg text "$text" --arg author "$author" '{q: $text, a: $author}' >"$HOME/quote.json"
# configure SOURCE PALETTE
configure() {
    jq -n --arg source "$1" --argjson palette "$2" --arg text "$text" --arg author "$author" \
        '{quoteSourceURL: $source, paletteIndex: $palette,
          cachedQuoteText: $text, cachedQuoteAuthor: $author}' >"$settings.new"
    mv "$settings.new" "$settings"
}
# still PICTURE NAME [OPTION...]: options of ImageMagick
still() {
    local name=$2
    convert "$1" "${@:3}" "$work/still.png"
    cwebp -quiet -q 88 -m 6 "$work/still.png" -o "$folder/$name.webp"
    echo "$folder/$name.webp"
}

settings_are_read() { [ "$(stat -c %.9X "$settings")" \> "$(stat -c %.9Y "$settings")" ]; }
# change_settings SOURCE PALETTE: returns when the program has read them
change_settings() {
    local tries
    configure "$@"
    # The program waits a little after a change, by its own clock.
    for ((tries = 0; tries < 50; tries++)); do
        advance 100
        settings_are_read && return
        sleep 0.1
    done
    die "The settings are not read."
}

# The settings window, first, because a slow machine may show a quotation before it has read
# the settings.
configure "https://zenquotes.io/api/today" 0
launch "$clock" "$program" --settings
advance 500
import -silent -window "$(window | tail -n 1)" "$work/settings.png"
still "$work/settings.png" settings
xdotool search --onlyvisible --name '^Morrowleaf Settings$' windowclose
until_true 20 gone || die "The settings do not close."
change_settings "$HOME/quote.json" 0

# The moving picture: a showing from the first frame of its fade to the last.
frames=() # three words each
# film MILLISECONDS EACH
film() {
    local i name
    for ((i = 0; i < $1 / $2; i++)); do
        advance "$2"
        name=frame-$((${#frames[@]} / 3))
        shot "$name"
        convert "$work/$name.ppm" -resize "${moving_width}x" "$work/$name.png"
        frames+=(-d "$2" "$work/$name.png")
        last_frame=$work/$name.png
        rm "$work/$name.ppm"
    done
}
"$program"
until_true 60 window || die "The quote screen does not appear."
film 5000 100
frames+=(-d 2000 "$last_frame")
xdotool key space
film 400 100
advance 500
until_true 10 gone || die "The quote screen does not go away."
img2webp -loop 0 -lossy -q 85 -m 4 "${frames[@]}" -o "$folder/showing.webp" >/dev/null
echo "$folder/showing.webp"

# The appearance editor.
change_settings "$HOME/quote.json" 6
# Answered once the clock goes on.
start request gdbus call --session --dest org.morrowleaf.Morrowleaf --object-path /org/morrowleaf/Morrowleaf \
    --method org.freedesktop.Application.ActivateAction edit-appearance '[]' '{}'
editor_is_there() { advance 100 && window; }
until_true 60 editor_is_there || die "The editor does not appear."
advance 6000
shot editor
still "$work/editor.ppm" editor

# What needs no screen: palettes, photos, typefaces.
# draw NAME [OPTION...]
draw() {
    "$snapshot" --out "$work" --name "$1" --quote "$text" --author "$author" \
        --date 2026-12-02T10:17 "${@:2}" >/dev/null
    mv "$work/$1"-*.png "$work/$1.png"
}
# drawn NAME [OPTION...]: a picture by itself
drawn() {
    draw "$@"
    still "$work/$1.png" "$1" -resize "${still_width}x"
}
drawn look-ember --set paletteIndex=1 --set fontDesign=serif
drawn look-violet --set paletteIndex=6 --set fontDesign=sans
drawn look-paper --set paletteIndex=7 --set fontDesign=fraunces
photos=$(cd "$(dirname "$0")/../resources/Backgrounds" && pwd)
drawn look-photo --set "backgroundImagePath=$photos/lake.jpg"

# sheet NAME COLUMNS LABEL...: the drawn pictures named LABEL, with their labels
sheet() {
    local name=$1 columns=$2 label cells=()
    shift 2
    for label; do cells+=(-label "$label" "$work/$label.png"); done
    montage -font DejaVu-Sans -pointsize 16 "${cells[@]}" -resize 400x -tile "${columns}x" \
        -geometry +8+8 -background white "$work/$name.png"
    still "$work/$name.png" "$name"
}
palettes=(Midnight Ember Forest Plum Slate Brass Violet Paper Noir)
for i in "${!palettes[@]}"; do draw "${palettes[i]}" --set "paletteIndex=$i"; done
sheet palettes 3 "${palettes[@]}"
typefaces=(fraunces serif sans rounded mono)
for typeface in "${typefaces[@]}"; do
    draw "$typeface" --set paletteIndex=4 --set "fontDesign=$typeface"
done
sheet typefaces 3 "${typefaces[@]}"
