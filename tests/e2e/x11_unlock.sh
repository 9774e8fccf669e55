#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# The picture of the desktop after an unlock has nothing of the locker, which may leave the
# screen a little later than it says.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"
. "$here/logind.sh"

start_x 640x480
start_manager openbox
start_session_bus
start_system_bus
start_logind
settings '{"dismissSeconds": 600, "paletteIndex": 0, "screenAnimation": "still",
           "grainEnabled": false, "backdropTransparency": 1.0}'
start app "$MORROWLEAF"
must "a launch shows the quotation" opened_since 0
throttle_over() { outlast_throttle "$(last_map)"; }
close_it() {
    xdotool key Escape
    until_true 60 is_gone || fail "it could not be closed"
}
# redness NAME: how much redder than green the lower left of the picture is, in percent
redness() {
    convert "$work/$1.png" -gravity SouthWest -crop 200x100+0+0 \
        -format '%[fx:round(100*(mean.r-mean.g))]' info:
}
sleep 2 # until the glass is there
shot without
plain=$(redness without)
# is_like_without NAME
is_like_without() { shot "$1" && [ "$(($(redness "$1") - plain))" -le 3 ]; }

close_it
throttle_over
set_hint true
put_window Locker '#d01010' 0 0 640 480 locker
locker=$last
n=$(maps)
unlock c1
set_hint false
sleep 0.2
stop "$locker" 2>/dev/null
must "an unlock shows the quotation" opened_since "$n"
sleep 2
must "over the desktop, without the locker" is_like_without unlocked

close_it
throttle_over
put_window Locker '#d01010' 0 0 640 480 locker
n=$(maps)
began=$(milliseconds)
wake
must "beside a window that stays there is a showing too" opened_since "$n"
check "after half a second" test "$(($(last_map) - began))" -lt 1500
check "at the earliest" test "$(($(last_map) - began))" -ge 400
close_it
throttle_over
n=$(maps)
wake
must "and the next time" opened_since "$n"

close_it
throttle_over
# The same window comes with the next lock.
id=$(xdotool search --onlyvisible --name '^Locker$')
xdotool windowunmap --sync "$id"
settle
xdotool windowmap --sync "$id"
set_hint true
n=$(maps)
unlock c1
set_hint false
sleep 0.2
stop "$last" 2>/dev/null
must "after it has left the screen it is a locker again" opened_since "$n"
sleep 2
must "which the desktop does not show" is_like_without again
finish
