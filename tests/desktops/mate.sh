#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# MATE.
. "$(dirname "$0")/lib.sh"
. "$desks/walk.sh"
. "$desks/x11.sh"

points=$size ratio=1
start_session MATE mate
gsettings set org.mate.Marco.general compositing-manager true
gsettings set org.mate.background picture-filename "$work/wall.png"
start settings mate-settings-daemon
start manager marco
until_true 60 has_manager || die "no window manager"
start panel mate-panel
until_true 60 has_dock mate-panel || die "no panel"
start desktop caja --no-default-window --force-desktop
start locker mate-screensaver --no-daemon
sleep 5

locker() {
    gdbus call --session -d org.mate.ScreenSaver -o /org/mate/ScreenSaver \
        -m "org.mate.ScreenSaver.$1" "${@:2}"
}
# It asks the login manager of the machine for its session, and the walk has a mocked one:
# without a password it can be ended here.
gsettings set org.mate.screensaver lock-enabled false
lock() { locker SetActive true; }
is_locked() { locker GetActive | grep -q true; }
unlock_own() { locker SetActive false; }

wish_little_motion() {
    gsettings set org.mate.interface gtk-enable-animations "$([ "$1" = on ] && echo false || echo true)"
}

double_scale() { gsettings set org.mate.interface window-scaling-factor 2; }

walk_login
walk_all
end_walk
