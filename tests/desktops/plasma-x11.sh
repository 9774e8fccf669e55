#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Plasma on X11.
. "$(dirname "$0")/lib.sh"
. "$desks/walk.sh"
. "$desks/x11.sh"
. "$desks/plasma.sh"

points=$size ratio=1
start_session KDE KDE
prepare_plasma
tell_services KDE_FULL_SESSION KDE_SESSION_VERSION LIBGL_ALWAYS_SOFTWARE
start manager kwin_x11
until_true 60 has_manager || die "no window manager"
start session ksmserver
start_plasma_shell

# What its starter sets at that scale.
double_scale() {
    export QT_SCREEN_SCALE_FACTORS=screen=2 QT_AUTO_SCREEN_SCALE_FACTOR=0
    echo 'Xft.dpi: 192' | xrdb -merge
}

walk_login
walk_all
end_walk
