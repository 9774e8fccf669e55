#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# An output disappears while it shows the quotation. The compositor draws its
# outputs in windows of an X server; closing one of them unplugs the output.
here=$(dirname "$0")
if [ "$(id -u)" = 0 ]; then
    exec setpriv --reuid=nobody --regid=nogroup --clear-groups "$0" "$@"
fi
. "$here/lib.sh"
. "$here/x11.sh"

start_x 1280x800
start_manager openbox
outside=$DISPLAY
printf 'output * bg #206040 solid_color\nxwayland disable\n' >"$work/sway.conf"
WLR_BACKENDS=x11 WLR_X11_OUTPUTS=2 WLR_RENDERER=pixman start sway sway -c "$work/sway.conf"
until_true 60 test -S "$work/run/wayland-1" || die "no compositor"
unset DISPLAY
export WAYLAND_DISPLAY=wayland-1
SWAYSOCK=$(ls "$work"/run/sway-ipc.*.sock)
export SWAYSOCK
outputs() { [ "$(swaymsg -t get_outputs -r | jq length)" -eq "$1" ]; }
until_true 60 outputs 2 || die "no two outputs"
start_session_bus
settings '{"dismissSeconds": 600}'

log=$work/app.log
opened() { [ "$(grep -c 'get_layer_surface(' "$log")" -eq "$1" ]; }
gone() { [ "$(grep -c ' -> zwlr_layer_surface_v1@[0-9]*\.destroy(' "$log")" -eq "$1" ]; }
drawn() { grep -q ' -> wl_surface@[0-9]*\.attach(wl_buffer' "$log"; }
focused() { swaymsg -t get_outputs -r | jq -e ".[] | select(.name == \"$1\") | .focused"; }
focus() { swaymsg focus output "$1" && focused "$1"; }
# The window of the second output is the last one; its name is not reliable.
close_window() {
    local window
    window=$(DISPLAY=$outside xprop -root _NET_CLIENT_LIST | grep -o '0x[0-9a-f]*' | tail -1)
    [ -n "$window" ] || return
    DISPLAY=$outside timeout 5 xdotool windowactivate --sync "$window"
    DISPLAY=$outside xdotool key alt+F4
}
unplug() {
    outputs 1 || close_window
    until_true 20 outputs 1
}

must "the second output has the focus" focus X11-2
WAYLAND_DEBUG=1 start app "$MORROWLEAF"
app=$last
must "a launch shows the quotation" opened 1
must "and draws it" drawn
settle
must "its output goes" unplug
must "the showing goes with it" gone 1
settle
check "and does not come up elsewhere" opened 1
check "the program stays" kill -0 "$app"
"$MORROWLEAF"
must "the other output gets the next" opened 2
outlast_fade
check "for good" gone 1
check "the other one is still there" focused X11-1
kill -TERM "$app"
wait "$app"
check "SIGTERM ends it with status 0" test $? -eq 0
finish
