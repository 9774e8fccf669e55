#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# GNOME on X11.
. "$(dirname "$0")/lib.sh"
. "$desks/walk.sh"
. "$desks/x11.sh"
. "$desks/gnome.sh"

points=$size ratio=1
start_session GNOME gnome
prepare_gnome x11
# Without it the shell waits for the input method for ever.
start ibus ibus-daemon --xim --panel disable
until_true 60 ibus engine xkb:us::eng || die "no input method"
start shell gnome-shell --x11 --unsafe-mode
until_true 60 shell_is_ready || die "the shell does not start"
allow_animations
start xsettings /usr/libexec/gsd-xsettings
must "the overview is open" overview_is_open

# Where nothing accelerates drawing, the shell now and then stops drawing until something
# reminds it, even its own locker.
shot() {
    in_shell 'global.stage.queue_redraw()' >/dev/null
    sleep 0.2
    outside_shot "$1"
}

walk_login
close_overview
walk_all
end_walk
