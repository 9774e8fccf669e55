#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# The first minute on a desktop without a tray, with a service for notifications.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

export XDG_STATE_HOME=$work/state
mark=$XDG_STATE_HOME/morrowleaf/introduced
start_x 1280x720
start_manager openbox
start_session_bus
start service /usr/bin/python3 -m dbusmock --session --template notification_daemon
service=(--session --dest org.freedesktop.Notifications
    --object-path /org/freedesktop/Notifications)
until_true 60 gdbus wait --session --timeout 1 org.freedesktop.Notifications || die "no service"
messages() { grep -c ' Notify "Morrowleaf"' "$work/service.log"; }
has_message() { [ "$(messages)" -gt 0 ]; }

settings '{"dismissSeconds": 5}'
start app "$MORROWLEAF"
must "the quotation is shown" is_shown
check "nothing is told while a tray may still come" not has_message
must "it goes" is_gone
must "then the program tells of itself" has_message
check "with the way to the settings" grep -q 'Notify .*morrowleaf --settings' "$work/service.log"
must "it remembers that it has" test -f "$mark"
check "by an empty file" test ! -s "$mark"
check "not by a setting" not grep -q introduc "$XDG_CONFIG_HOME/morrowleaf/settings.json"
gdbus call "${service[@]}" --method org.freedesktop.DBus.Mock.EmitSignal \
    org.freedesktop.Notifications ActionInvoked us '[<uint32 1>, <"default">]' >"$work/click.log"
must "a click opens the settings" xdotool search --onlyvisible --name '^Morrowleaf Settings$'
check "one message was all" [ "$(messages)" = 1 ]
finish
