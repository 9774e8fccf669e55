#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# The desktop portal: dark and light colours, and the dialog that chooses a
# photo.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

portal() { /usr/bin/python3 "$here/portal.py" "$@"; }
asked() { [ "$(grep -c "$1" "$work/portal.log")" -ge "$2" ]; }
# tone COLOUR: the settings window has this background
tone() { shot tone && shows_some_of tone "$1"; }
dark='#262629'
light='#f3f3f4'
file=$XDG_CONFIG_HOME/morrowleaf/settings.json

start_x 1280x1024
start_manager openbox
start_session_bus
start portal /usr/bin/python3 "$here/portal.py" serve 1
portal_pid=$last
until_true 60 grep -q serving "$work/portal.log" || die "no portal"
settings '{"screenAnimation": "still", "grainEnabled": false, "dismissSeconds": 600}'
convert -size 80x60 xc:red "$work/red.png"

start app "$MORROWLEAF" --settings
app=$last
must "the settings open" xdotool search --onlyvisible --name '^Morrowleaf Settings$'
must "dark, as the desktop is" tone "$dark"
portal scheme 2
must "and light when it turns light" tone "$light"
check "nothing dark is left" shows_none_of tone "$dark"
portal scheme 1
must "and dark again" tone "$dark"
portal scheme 0
must "and the toolkit's own without a preference" not tone "$dark"

window() { xdotool search --onlyvisible --name '^Morrowleaf Settings$' | head -1; }
xdotool mousemove --window "$(window)" 430 59 click 1
must "the editor opens" is_shown
must "and has the keyboard" focus_is Morrowleaf
# tabs COUNT: presses Tab that often
tabs() {
    local keys
    mapfile -t keys < <(yes Tab | head -n "$1")
    xdotool key --delay 20 "${keys[@]}"
}
# The tile that adds a photo follows ten palettes and six photos.
add() {
    tabs 17
    xdotool key space
}
add
must "the desktop's dialog is asked for" asked open 1
check "for one picture" grep -q "multiple=False png=True text=False" "$work/portal.log"
check "for the window that stands in for the editor" \
    grep -Eq "parent='x11:[0-9a-f]+'" "$work/portal.log"
settle
check "no dialog of the toolkit is there" not xdotool search --onlyvisible --name '^Add a Photo$'
stand_in() { xdotool search --onlyvisible --name '^Edit Appearance$'; }
activate_stand_in() {
    timeout 2 xdotool windowactivate "$(stand_in)"
    focus_is "Edit Appearance"
}
must "it is active" activate_stand_in
xdotool key alt+F4
# The portal's dialog is an ordinary window of another program.
in_sight() {
    shot dialog
    [ "$(convert "$work/dialog.png" -crop 340x240+130+480 -fill black +opaque '#a0a0ff' \
        -fill white -opaque '#a0a0ff' -format '%[fx:mean>0.99]' info:)" = 1 ]
}
stays_above() { xprop -id "$(window)" _NET_WM_STATE | grep -q ABOVE; }
put_window Theirs '#a0a0ff' 100 450 400 300
must "its window is in front of the settings" in_sight
must "and has the keyboard" focus_is Theirs
settle
check "and what stands in has not been closed" stand_in
stop "$last"
portal answer 1
must "then the settings stay above ordinary windows again" stays_above
settle
check "a cancelled dialog changes nothing" not grep -q backgrounds "$file"
check "and the editor is still there" is_shown
xdotool key space
must "it can be asked for again" asked open 2
portal answer 0 "file://$work/red.png"
must "a chosen photo is copied and chosen" \
    grep -qE '"backgroundImagePath": *"[^"]*backgrounds/[0-9A-F-]{36}\.png"' "$file"
check "the editor is in front" is_shown
shot editor

xdotool key Escape
must "Escape ends the editing" is_gone
xdotool mousemove --window "$(window)" 430 59 click 1
must "the editor opens once more" is_shown
must "and has the keyboard" focus_is Morrowleaf
tabs 2
add
must "and asks again" asked open 3
xdotool key Escape
must "editing that ends" is_gone
must "takes the dialog back" asked closed 1

stop "$portal_pid"
settle
xdotool mousemove --window "$(window)" 430 59 click 1
must "the editor opens without a portal" is_shown
must "and has the keyboard" focus_is Morrowleaf
tabs 2
add
must "the toolkit's dialog stands in" xdotool search --onlyvisible --name '^Add a Photo$'
xdotool key Escape
must "Escape closes it" not xdotool search --onlyvisible --name '^Add a Photo$'
check "and leaves the editor" is_shown
check "the program goes on" kill -0 "$app"
finish
