# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# shellcheck shell=bash disable=SC2034,SC2154
# Functions for tests under a headless sway, which refuses to run as root;
# needs lib.sh.

# start_sway OUTPUTS
start_sway() {
    cat >"$work/sway.conf" <<'CONF'
output * bg #206040 solid_color
output HEADLESS-1 mode 1280x800@60Hz position 0 0
xwayland disable
default_border none
for_window [title=".*"] floating enable
CONF
    WLR_BACKENDS=headless WLR_LIBINPUT_NO_DEVICES=1 WLR_RENDERER=pixman WLR_HEADLESS_OUTPUTS=$1 \
        start sway sway -c "$work/sway.conf"
    until_true 60 test -S "$work/run/wayland-1" || die "no compositor"
    export WAYLAND_DISPLAY=wayland-1
    SWAYSOCK=$(ls "$work"/run/sway-ipc.*.sock)
    export SWAYSOCK
    until_true 60 swaymsg -t get_version || die "no compositor"
}

has_window() { swaymsg -t get_tree -r | jq -e ".. | objects | select(.name? == \"$1\" and .visible)"; }

shot() { grim "$work/$1.png"; }
share() {
    convert "$work/$1.png" -fill black +opaque "$2" -fill white -opaque "$2" \
        -colorspace gray -format '%[fx:mean]' info:
}
