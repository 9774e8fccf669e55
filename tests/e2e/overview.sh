#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# An overview of the shell that is open makes way for the quotation. Afterwards it is open
# again, unless the program was started from it.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

start_x 640x480
start_manager openbox
start_session_bus
settings '{"dismissSeconds": 600}'
start shell /usr/bin/python3 "$here/shell.py"
until_true 60 grep -q serving "$work/shell.log" || die "no shell"
properties() {
    gdbus call --session -d org.gnome.Shell -o /org/gnome/Shell \
        -m "org.freedesktop.DBus.Properties.$1" org.gnome.Shell OverviewActive "${@:2}" >/dev/null
}
overview_is() { [ "$(tail -n 1 "$work/shell.log")" = "$1" ]; }
close_it() {
    xdotool key Escape
    must "it is closed" is_gone
    settle
    properties Get # comes after what the program has set
}

start app "$MORROWLEAF"
app=$last
must "a start of the session shows the quotation" opened_since 0
must "and closes the overview" overview_is closed
close_it
must "which is there again afterwards" overview_is open

n=$(maps)
"$MORROWLEAF"
must "a start by the user shows it" opened_since "$n"
must "and closes the overview, too" overview_is closed
close_it
check "which the user has left" overview_is closed
properties Set '<true>'
kill -TERM "$app"
wait "$app"

n=$(maps)
XDG_ACTIVATION_TOKEN=abc start app "$MORROWLEAF"
must "a first start by the user shows it" opened_since "$n"
must "and closes the overview" overview_is closed
close_it
check "which the user has left" overview_is closed
finish
