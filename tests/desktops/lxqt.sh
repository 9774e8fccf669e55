#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# LXQt, which brings no compositor and no locker.
. "$(dirname "$0")/lib.sh"
. "$desks/walk.sh"
. "$desks/x11.sh"

points=$size ratio=1
# As its starter sets them; without these folders the panel is empty.
export XDG_CONFIG_DIRS=/etc:/etc/xdg:/usr/share XDG_MENU_PREFIX=lxqt- QT_QPA_PLATFORMTHEME=lxqt
start_session LXQt lxqt
tell_services XDG_CONFIG_DIRS XDG_MENU_PREFIX QT_QPA_PLATFORMTHEME
mkdir -p "$XDG_CONFIG_HOME/pcmanfm-qt/lxqt"
printf '[Desktop]\nWallpaper=%s\nWallpaperMode=stretch\n' "$work/wall.png" \
    >"$XDG_CONFIG_HOME/pcmanfm-qt/lxqt/settings.conf"
start manager openbox
until_true 60 has_manager || die "no window manager"
start panel lxqt-panel
until_true 60 has_dock lxqt-panel || die "no panel"
start desktop pcmanfm-qt --desktop --profile lxqt
sleep 4

# What its session sets at that scale.
double_scale() { export QT_SCALE_FACTOR=2; }

walk_login
walk_all
end_walk
