# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# shellcheck shell=bash disable=SC2034,SC2154
# Functions for tests on a private X server; needs lib.sh.

# start_x WIDTHxHEIGHT
start_x() {
    Xvfb -displayfd 7 -screen 0 "${1}x24" -nolisten tcp -noreset 7>"$work/display" \
        >"$work/xvfb.log" 2>&1 &
    x_pid=$!
    pids+=("$x_pid")
    until_true 60 test -s "$work/display" || die "no X server"
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
    until_true 60 xdpyinfo || die "no X server"
    xsetroot -solid '#206040'
    start mapwatch "$E2E_MAPWATCH" Morrowleaf
    until_true 60 grep -q watching "$work/mapwatch.log" || die "no watcher"
}

# start_manager openbox|xfwm4|none
start_manager() {
    case $1 in
    none) return ;;
    xfwm4) start manager xfwm4 --compositor=off ;;
    *) start manager "$1" ;;
    esac
    until_true 60 sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id"' ||
        die "no window manager"
}

start_compositor() {
    start compositor picom --backend xrender --config /dev/null
    until_true 60 sh -c 'xwininfo -root -tree | grep -qi picom' || die "no compositor"
}

# put_window TITLE COLOUR X Y WIDTH HEIGHT [KIND]
put_window() {
    start "window-$1" "$E2E_WINDOW" "$@"
    until_true 60 xdotool search --onlyvisible --name "^$1\$" || die "no window $1"
}

maps() { grep -c '^map$' "$work/mapwatch.log"; }
unmaps() { grep -c '^unmap$' "$work/mapwatch.log"; }
mapped_times() { [ "$(maps)" -eq "$1" ]; }
last_map() { awk '$1 == "at" && $3 == "map" { at = $2 } END { printf "%.0f", at }' "$work/mapwatch.log"; }
is_shown() { [ "$(maps)" -gt "$(unmaps)" ]; }
is_gone() { [ "$(maps)" -eq "$(unmaps)" ]; }
# opened_since N: more than N showings have opened
opened_since() { [ "$(maps)" -gt "$1" ]; }
# launch_showing: starts the program as $app and waits for its showing
launch_showing() {
    local n
    n=$(maps)
    start app "$MORROWLEAF"
    app=$last
    until_true 60 opened_since "$n" || die "no showing"
}

# mark_display: waits until the watcher has seen all earlier events of the X
# server
mark_display() {
    local n
    n=$(marks)
    DISPLAY=${outside:-$DISPLAY} xprop -root -f E2E_MARK 8s -set E2E_MARK "$n"
    until_true 60 marked_since "$n" || die "the watcher sees no mark"
}
marks() { grep -c '^mark$' "$work/mapwatch.log"; }
marked_since() { [ "$(marks)" -gt "$1" ]; }

shot() { import -window root "$work/$1.png"; }
# share NAME COLOUR: the fraction of the picture's pixels that have exactly this
# colour
share() {
    convert "$work/$1.png" -fill black +opaque "$2" -fill white -opaque "$2" \
        -colorspace gray -format '%[fx:mean]' info:
}
shows_none_of() { [ "$(share "$1" "$2")" = 0 ]; }
# now_shows_none_of NAME COLOUR: takes the picture first
now_shows_none_of() { shot "$1" && shows_none_of "$1" "$2"; }
now_shows_some_of() { shot "$1" && shows_some_of "$1" "$2"; }
shows_some_of() { [ "$(share "$1" "$2")" != 0 ]; }

focused_title() { xdotool getwindowname "$(xdotool getwindowfocus)"; }
focus_is() { [ "$(focused_title)" = "$1" ]; }
