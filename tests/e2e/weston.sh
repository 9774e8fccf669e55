#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# A Wayland compositor without layer surfaces: the quotation is a full-screen
# window on Xwayland or, without Xwayland, of the compositor. The compositor
# draws in a window of an X server, of which the test takes pictures.
#   weston.sh [xwayland]
here=$(dirname "$0")
if [ "$(id -u)" = 0 ]; then
    exec setpriv --reuid=nobody --regid=nogroup --clear-groups "$0" "$@"
fi
. "$here/lib.sh"
. "$here/x11.sh"

start_x 640x480
outside=$DISPLAY
cat >"$work/weston.ini" <<EOI
[core]
idle-time=0
xwayland=$([ "${1:-}" = xwayland ] && echo true || echo false)
[shell]
background-type=tile
background-color=0xff206040
panel-color=0xffff0000
locking=false
EOI
start weston weston --backend=x11-backend.so --use-pixman --width=640 --height=480 \
    --config="$work/weston.ini" --socket=wayland-test
until_true 60 test -S "$work/run/wayland-test" || die "no compositor"
start_session_bus
unset DISPLAY
export WAYLAND_DISPLAY=wayland-test
if [ "${1:-}" = xwayland ]; then
    until_true 60 grep -q 'xserver listening on display' "$work/weston.log" || die "no Xwayland"
    DISPLAY=$(sed -n 's/.*xserver listening on display //p' "$work/weston.log")
    export DISPLAY
fi
outside() { DISPLAY=$outside "$@"; }
look() { outside shot now; }
covered() { look && shows_none_of now '#ffff00' && shows_none_of now '#ff0000'; }
uncovered() { look && shows_some_of now '#ffff00' && shows_some_of now '#ff0000'; }
sees_window() { look && shows_some_of now '#ffff00'; }

QT_QPA_PLATFORM=wayland start window "$E2E_WINDOW" typing '#ffff00' 100 100 200 150
must "a window stands below a panel" uncovered
settings '{"dismissSeconds": 2}'
start app "$MORROWLEAF"
app=$last
must "a launch covers both" covered
must "it goes by itself" uncovered
change_settings '{"dismissSeconds": 600}'
again() {
    "$MORROWLEAF"
    must "a second launch shows it" covered
    settle
}
again
if [ "${1:-}" = xwayland ]; then
    check "in a window of Xwayland" xdotool search --onlyvisible --name '^Morrowleaf$'
fi
outside xdotool key q
must "a key closes it" uncovered
again
outside xdotool mousemove 320 240 click 1
must "a left click closes it" uncovered
again
outside xdotool mousemove 300 400 click 3
must "a right click closes it" uncovered
check "no key went elsewhere" not grep -q '^key q' "$work/window.log"
check "no click either" not grep -q '^click' "$work/window.log"
kill -TERM "$app"
wait "$app"
check "SIGTERM ends it with status 0" test $? -eq 0
finish
