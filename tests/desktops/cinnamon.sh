#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Cinnamon.
. "$(dirname "$0")/lib.sh"
. "$desks/walk.sh"
. "$desks/x11.sh"

points=$size ratio=1
start_session X-Cinnamon cinnamon
gsettings set org.cinnamon.desktop.session idle-delay 0
start manager cinnamon
until_true 60 has_manager || die "no window manager"
start settings csd-xsettings
# Its own program for that waits for a session manager.
start background hsetroot -fill "$work/wall.png"
start locker cinnamon-screensaver
sleep 10

# Debian 12 has no watcher of status notifiers for it; its panel embeds the symbol.
has_item() { xwininfo -root -tree | grep -Eq '"Morrowleaf".* (1[6-9]|2[0-9])x'; }
# The embedded window does not tell its place: the first symbol at the right of the panel.
open_settings_by_tray() {
    click_at $((width - 120)) $((height - 20))
    sleep 1
    shot tray-menu
    keys Down Down Down Return
}

locker() {
    gdbus call --session -d org.cinnamon.ScreenSaver -o /org/cinnamon/ScreenSaver \
        -m "org.cinnamon.ScreenSaver.$1" "${@:2}"
}
# Without a password: it heeds the login manager of the machine, and the walk has a mocked one.
gsettings set org.cinnamon.desktop.screensaver lock-enabled false
lock() { locker SetActive true; }
is_locked() { locker GetActive | grep -q true; }
unlock_own() { locker SetActive false; }

wish_little_motion() {
    gsettings set org.cinnamon.desktop.interface enable-animations "$([ "$1" = on ] && echo false || echo true)"
}

walk_login
walk_all
end_walk
