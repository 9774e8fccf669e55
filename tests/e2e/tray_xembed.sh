#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# The status item in a tray of the old X11 protocol, which starts after the
# program and ends before it.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

start_x 640x480
start_manager openbox
start_session_bus
settings '{"dismissSeconds": 600}'
start_tray() {
    start tray trayer --edge bottom --align right --widthtype request --height 24
    tray_pid=$last
    until_true 60 xdotool search --onlyvisible --name '^panel$' || die "no tray"
}
# The tray grows with its first symbol and embeds it in a window of its own.
symbol() {
    xwininfo -tree -id "$(xdotool search --onlyvisible --name '^panel$' | tail -1)" |
        awk '/"Morrowleaf"/ {print $1}'
}
has_symbol() { [ -n "$(symbol)" ]; }
# Only the menu shows white.
menu_open() { shot menu && shows_some_of menu '#ffffff'; }
pixels_of_symbol() {
    import -window "$(symbol)" "$work/symbol.png" &&
        [ "$(convert "$work/symbol.png" -format %k info:)" -gt 1 ]
}
click_symbol() {
    local X Y WIDTH HEIGHT
    eval "$(xdotool getwindowgeometry --shell "$(symbol)")"
    xdotool mousemove $((X + WIDTH / 2)) $((Y + HEIGHT / 2)) click "$1"
}

start app "$MORROWLEAF"
app=$last
must "a launch shows the quotation" opened_since 0
xdotool key Escape
must "a key closes it" is_gone
start_tray
must "a late tray gets the symbol" has_symbol
must "which is drawn" pixels_of_symbol
check "no menu is open" not menu_open
for button in 1 3; do
    click_symbol $button
    must "button $button opens the menu" menu_open
    xdotool key Escape
    must "Escape closes it" not menu_open
done
click_symbol 1
must "it opens again" menu_open
xdotool key Down Return
must "its first entry shows the quotation" opened_since 1
xdotool key Escape
must "a key closes it" is_gone

kill "$tray_pid"
until_true 60 not kill -0 "$tray_pid"
check "the program outlives the tray" kill -0 "$app"
start_tray
must "another tray gets the symbol again" has_symbol
must "drawn" pixels_of_symbol
click_symbol 1
must "with its menu" menu_open
xdotool key Up Return
must "whose last entry ends the program" not kill -0 "$app"
wait "$app"
check "with status 0" test $? -eq 0

start app "$MORROWLEAF" --settings
app=$last
must "a tray that is there from the start gets the symbol" has_symbol
kill -TERM "$app"
wait "$app"
must "and loses it with the program" not has_symbol
finish
