#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# One showing after another on X11: it covers everything, ends by click, key and
# time, and returns the focus.
#   x11_showing.sh MANAGER [picom]
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

start_x 1280x800
start_manager "$1"
[ "${2:-}" = picom ] && start_compositor
settings '{"dismissSeconds": 2}'
start_session_bus

put_window panel '#ff0000' 0 0 1280 30 dock
put_window above '#ff00ff' 700 200 300 200 above
put_window typing '#ffff00' 100 100 400 300
if [ "$1" = none ]; then xdotool windowfocus "$(xdotool search --name '^typing$')"; fi
must "the window below has the focus" focus_is typing
for colour in '#ff0000' '#ff00ff' '#ffff00'; do
    must "the desktop shows $colour" now_shows_some_of before "$colour"
done

start app "$MORROWLEAF"
app=$last
must "a launch shows the quotation" opened_since 0
must "it closes by itself" is_gone
waited=$(awk '$1 == "at" && $3 == "map" {from = $2} $1 == "at" && $3 == "unmap" {till = $2}
    END {printf "%d", (till - from) / 100}' "$work/mapwatch.log")
echo "closed after $waited tenths of a second"
check "after five seconds, not two" test "$waited" -ge 49
check "after five seconds, not fifteen" test "$waited" -le 130

change_settings '{"dismissSeconds": 600}'
show_again() {
    local n
    n=$(maps)
    "$MORROWLEAF" || fail "a second launch ends with status 0"
    must "a second launch shows it again" opened_since "$n"
    settle
}

show_again
for colour in '#ff0000' '#ff00ff' '#ffff00' '#206040'; do
    must "it covers $colour" now_shows_none_of shown "$colour"
done
xdotool key shift mousemove 300 300 click 2 click 4
outlast_fade
check "modifiers, the middle button and the wheel leave it" is_shown
put_window late '#00ffff' 500 500 200 200 above
settle
must "a later window stays below" now_shows_none_of late '#00ffff'
xdotool key Escape
must "a key closes it" is_gone

# Window managers differ in whether the later window has the focus now.
focus_is_back() { focus_is typing || focus_is late; }
must "the focus is back" focus_is_back
xdotool key x
must "and the keyboard free" grep -q '^key x' "$work"/window-*.log

show_again
xdotool key q
must "a key closes it" is_gone
show_again
xdotool mousemove 640 400 click 1
must "a left click closes it" is_gone
show_again
xdotool mousemove 300 600 click 3
must "a right click closes it" is_gone
check "the key went nowhere else" not grep -q '^key q' "$work"/window-*.log
check "nor the clicks" not grep -q '^click' "$work"/window-*.log
must "the focus is back again" focus_is_back
for colour in '#ff0000' '#ff00ff' '#ffff00'; do
    must "the desktop shows $colour again" now_shows_some_of after "$colour"
done

show_again
kill -9 "$app"
must "a killed program leaves no window" is_gone
xdotool windowfocus --sync "$(xdotool search --name '^typing$')" key z
must "nor a grab" grep -q '^key z' "$work"/window-*.log
n=$(maps)
start app "$MORROWLEAF"
app=$last
must "and starts again" opened_since "$n"
kill -TERM "$app"
wait "$app"
check "SIGTERM ends it with status 0, in the middle of a fade" test $? -eq 0
check "no showing flashed white or black" not grep -q flash "$work/mapwatch.log"
finish
