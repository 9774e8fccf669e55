#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Several monitors, scales, and monitors that change while something is shown.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"
. "$here/logind.sh"

start_x 1600x600
start_manager openbox
xrandr --setmonitor left 800/200x600/150+0+0 screen
xrandr --setmonitor right 800/200x600/150+800+0 none
start_session_bus
start_system_bus
start_logind
settings '{"dismissSeconds": 600}'
put_window onleft '#ffff00' 100 100 300 300
put_window onright '#ff00ff' 1000 100 300 300

# A window manager may ignore an early request, so ask again.
activate() {
    timeout 2 xdotool windowactivate "$(xdotool search --name "^$1\$")"
    focus_is "$1"
}
title_focus() { must "the focus is on $1" activate "$1"; }
overlay() { xdotool search --onlyvisible --name '^Morrowleaf$' | tail -1; }
# Without an id xwininfo would wait for a click.
geometry_is() {
    local id
    id=$(overlay)
    [ -n "$id" ] || return 1
    [ "$(xwininfo -id "$id" | awk '/Absolute upper-left|Width|Height/ {printf "%s ", $NF}')" \
        = "$1 " ]
}
# go_left: closes the showing on the right monitor and starts one on the left
go_left() {
    xdotool key q
    must "a key closes it" is_gone
    title_focus onleft
    n=$(maps)
    "$MORROWLEAF"
    must "then the other one" opened_since "$n"
}

title_focus onright
start app "$MORROWLEAF"
app=$last
must "it covers the monitor with the focus" geometry_is "800 0 800 600"
must "all of it" now_shows_none_of right '#ff00ff'
check "and nothing else" shows_some_of right '#ffff00'
go_left
must "that has it by then" geometry_is "0 0 800 600"
n=$(maps)
xrandr --delmonitor left
must "a monitor that goes takes the showing with it" is_gone
settle
check "which does not come up elsewhere" mapped_times "$n"
check "nor ends the program" kill -0 "$app"
xdotool key x
must "the keyboard is free" grep -q '^key x' "$work"/window-*.log
kill -TERM "$app"
wait "$app"
xrandr --delmonitor right

n=$(maps)
start app "$MORROWLEAF"
app=$last
must "it shows on the one monitor" opened_since "$n"
must "all over it" geometry_is "0 0 1600 600"
xrandr --newmode smaller 40 800 840 968 1056 600 601 605 628
xrandr --addmode screen smaller
xrandr --output screen --mode smaller
must "it follows a smaller resolution" geometry_is "0 0 800 600"
xrandr --output screen --mode 1600x600
must "and a larger one" geometry_is "0 0 1600 600"
check "all in one showing" mapped_times $((n + 1))

# With --fb the server keeps its size, as when a lid is closed.
off() { xrandr --output screen --off --fb 1600x600; }
on() { xrandr --output screen --mode 1600x600; }
n=$(maps)
off
must "the last monitor's end is that of the showing" is_gone
check "not that of the program" kill -0 "$app"
"$MORROWLEAF"
launched=$(milliseconds)
settle
check "a launch without a monitor shows nothing" mapped_times "$n"
outlast_throttle "$launched" # it counts as a showing
wake
unlock c1
settle
check "nor does a wake" mapped_times "$n"
on
must "but a monitor that comes back has the quotation on it" opened_since "$n"
must "all over" geometry_is "0 0 1600 600"
outlast_fade
check "once" mapped_times $((n + 1))
check "and for good" is_shown
kill -TERM "$app"
wait "$app"
must "it is gone" is_gone

for scale in 1.25 2; do
    n=$(maps)
    QT_SCALE_FACTOR=$scale start app "$MORROWLEAF"
    app=$last
    must "at scale $scale it shows" opened_since "$n"
    must "at scale $scale it is as large as the screen" geometry_is "0 0 1600 600"
    for colour in '#ffff00' '#ff00ff' '#206040'; do
        must "at scale $scale it covers $colour" now_shows_none_of "scale$scale" "$colour"
    done
    kill -TERM "$app"
    wait "$app"
done

# Two monitors of different scales.
xrandr --setmonitor left 800/200x600/150+0+0 screen
xrandr --setmonitor right 800/200x600/150+800+0 none
# The smaller resolution has moved them.
xdotool search --name '^onleft$' windowmove 100 100
xdotool search --name '^onright$' windowmove 1000 100
title_focus onright
QT_SCREEN_SCALE_FACTORS='left=1;right=2' start app "$MORROWLEAF"
app=$last
must "it covers the monitor of twice the scale" geometry_is "800 0 800 600"
must "all of it" now_shows_none_of right2 '#ff00ff'
check "and nothing else" shows_some_of right2 '#ffff00'
go_left
must "which has the single scale" geometry_is "0 0 800 600"
# By then the mouse is free, also for a screen locker.
put_window locker '#00ff00' 0 0 640 480 grabbing
locker=$last
must "after some seconds others can have the mouse" grep -q grabbed "$work/window-locker.log"
stop "$locker"
xdotool mousemove 1100 200 mousedown 1 sleep 0.5 mouseup 1
must "a click on the other monitor closes it" is_gone
must "and arrives there" grep -q '^click' "$work/window-onright.log"
kill -TERM "$app"
wait "$app"

# As on Xwayland, where the window manager says which monitor it is.
title_focus onleft
begun=$(xdotool getactivewindow)
start active xprop -root -spy _NET_ACTIVE_WINDOW
MORROWLEAF_PLATFORM=xwayland start app "$MORROWLEAF"
must "a window that the window manager places covers the monitor" geometry_is "0 0 800 600"
shown=$(overlay)
is_active() { [ "$(xdotool getactivewindow)" -eq "$shown" ]; }
must "and has the focus" is_active
# Of all that were active, as numbers.
strangers() {
    grep -o '0x[0-9a-f]*' "$work/active.log" | while read -r id; do echo $((id)); done |
        grep -vxF -e 0 -e "$begun" -e "$shown"
}
check "no other window had it" not strangers
finish
