#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# The installed program is started by the bus, whatever the first request is.
#   activation.sh BUILD-FOLDER
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"
id=org.morrowleaf.Morrowleaf
installed=$work/installed
cmake --install "$1" --prefix "$installed" >"$work/install.log" 2>&1 || die "no installation"
mkdir -p "$XDG_DATA_HOME/dbus-1/services"
cp "$installed/share/dbus-1/services/$id.service" "$XDG_DATA_HOME/dbus-1/services"

start_x 640x480
start_manager openbox
settings '{"dismissSeconds": 600}'
start_session_bus
application() {
    gdbus call --session -d $id -o /org/morrowleaf/Morrowleaf \
        -m "org.freedesktop.Application.$1" "${@:2}"
}
bus_call() {
    gdbus call --session -d org.freedesktop.DBus -o /org/freedesktop/DBus \
        -m "org.freedesktop.DBus.$1" "${@:2}"
}
runs() { bus_call NameHasOwner "$id" | grep -q true; }
program() { readlink "/proc/$(bus_call GetConnectionUnixProcessID $id | tr -dc '0-9 ' | awk '{print $NF}')/exe"; }
quit() {
    application ActivateAction quit '[]' '{}'
    must "it quits" not runs
    must "its window is gone" is_gone
}

check "nothing runs" not runs
application Activate '{"activation-token": <"abc">}'
must "activating starts it and shows the quotation" opened_since 0
settle
check "once" mapped_times 1
check "it is the installed program" [ "$(program)" = "$installed/bin/morrowleaf" ]
quit

n=$(maps)
# Like a desktop that knows the entry's actions.
exec_line=$(sed -n '/^\[Desktop Action edit-appearance\]/,/^\[/s/^Exec=//p' \
    "$installed/share/applications/$id.desktop")
$exec_line
must "an action starts it as well" opened_since "$n"
settle
check "the quotation is not shown before the editor" mapped_times $((n + 1))
must "which has the keyboard" focus_is Morrowleaf
xdotool key a
outlast_fade
check "in the editor other keys leave it open" is_shown
xdotool key Escape
must "and Escape closes it" is_gone
quit

n=$(maps)
application ActivateAction settings '[]' '{}'
must "the settings can be the first thing" \
    xdotool search --onlyvisible --name '^Morrowleaf Settings$'
check "and nothing else is shown" mapped_times "$n"
quit
finish
