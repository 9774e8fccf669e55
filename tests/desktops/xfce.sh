#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# XFCE. Debian 12 has no locker of its own for it.
. "$(dirname "$0")/lib.sh"
. "$desks/walk.sh"
. "$desks/x11.sh"

points=$size ratio=1
start_session XFCE xfce
xfconf-query -c xfwm4 -p /general/use_compositing -n -t bool -s true
xfconf-query -c xfwm4 -p /general/vblank_mode -n -t string -s off
for monitor in monitorscreen monitor0; do
    for key in image-style:int:4 last-image:string:"$work/wall.png"; do
        IFS=: read -r name type value <<<"$key"
        xfconf-query -c xfce4-desktop -n -t "$type" -s "$value" \
            -p "/backdrop/screen0/$monitor/workspace0/$name"
    done
done
start settings xfsettingsd --no-daemon
start manager xfwm4 --compositor=on
until_true 60 has_manager || die "no window manager"
start desktop xfdesktop
start panel xfce4-panel --disable-wm-check
until_true 60 has_dock xfce4-panel || die "no panel"
sleep 4

wish_little_motion() {
    xfconf-query -c xsettings -p /Gtk/EnableAnimations -n -t bool -s "$([ "$1" = on ] && echo false || echo true)"
}

walk_login
walk_all
end_walk
