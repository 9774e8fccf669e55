# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# shellcheck shell=bash disable=SC2034,SC2154
# What all desktops on X11 have in common; needs lib.sh and walk.sh.

# start_session NAME: the variables of a session on the display, and its buses
start_session() {
    make_wallpaper
    start_outside "$size"
    export DISPLAY=$outside XDG_SESSION_TYPE=x11 XDG_CURRENT_DESKTOP=$1 XDG_SESSION_DESKTOP=$2
    export DESKTOP_SESSION=$2
    start_buses
    tell_services DISPLAY XDG_CURRENT_DESKTOP XDG_SESSION_TYPE XDG_SESSION_DESKTOP
}
focused() { DISPLAY=$outside xdotool getactivewindow getwindowname; }
has_manager() { DISPLAY=$outside xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }
has_dock() { DISPLAY=$outside xdotool search --onlyvisible --class "$1"; }

# Two monitors are the halves of the screen: a server without real outputs has no other.
split_screen() {
    local half=$((width / 2))
    xrandr --setmonitor left "$half/300x$height/300+0+0" screen
    xrandr --setmonitor right "$half/300x$height/300+$half+0" none
    sleep 2
    expect half "${half}x$height" 1
}
join_screen() {
    xrandr --delmonitor left
    xrandr --delmonitor right
    sleep 2
}
monitor_place() { echo "$(($1 * width / 2)),0,$((width / 2)),$height"; }
use_monitor() {
    local left=$(($1 * width / 2 + 40))
    must "the window is on monitor $1" moves_to "$left"
    mouse $((left + 50)) $((height - 100))
}
moves_to() {
    xdotool search --name '^below$' windowmove "$1" 150 windowactivate
    sleep 0.5
    focus_is below
}
