#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# One showing after another on Wayland, under a compositor with layer surfaces,
# which refuses to run as root.
here=$(dirname "$0")
if [ "$(id -u)" = 0 ]; then
    exec setpriv --reuid=nobody --regid=nogroup --clear-groups "$0" "$@"
fi
. "$here/lib.sh"
. "$here/sway.sh"

start_sway 1
start_session_bus

covered() { shot now && [ "$(share now '#206040')" = 0 ]; }
uncovered() { shot now && [ "$(share now '#206040')" != 0 ] && [ "$(share now '#ffff00')" != 0 ]; }

QT_QPA_PLATFORM=wayland start window "$E2E_WINDOW" typing '#ffff00' 100 100 400 300
must "a window stands on the desktop" uncovered
settings '{"dismissSeconds": 2}'
opened=${EPOCHREALTIME/./}
start app "$MORROWLEAF"
app=$last
must "a launch covers it" covered
must "it goes by itself" uncovered
waited=$(((${EPOCHREALTIME/./} - opened) / 100000))
check "after its five seconds" test "$waited" -ge 50

change_settings '{"dismissSeconds": 600}'
"$MORROWLEAF" || fail "a second launch ends with status 0"
must "a second launch shows it again" covered
QT_QPA_PLATFORM=wayland start late "$E2E_WINDOW" late '#00ffff' 500 500 200 200
must "a later window opens" has_window late
shot late
check "a later window stays below" [ "$(share late '#00ffff')" = 0 ]
wtype -s 200 -k q
must "a key closes it" uncovered
check "and goes nowhere else" not grep -q '^key q' "$work/window.log" "$work/late.log"
wtype -s 200 x
must "the window has the keyboard again" grep -q '^key x' "$work/window.log" "$work/late.log"

change_settings '{"dismissSeconds": 600, "backdropTransparency": 0.7}'
"$MORROWLEAF"
must "it shows over a picture of the desktop" covered
wtype -s 200 -k Escape
must "and closes" uncovered

gdbus call --session -d org.morrowleaf.Morrowleaf -o /org/morrowleaf/Morrowleaf \
    -m org.freedesktop.Application.ActivateAction edit-appearance '[]' '{}' >/dev/null
must "the editor opens" covered
settle
wtype -s 200 -k a
outlast_fade
check "other keys leave it open" covered
check "and go nowhere else" not grep -q '^key a' "$work/window.log" "$work/late.log"
wtype -s 200 -k Escape
must "Escape closes it" uncovered
kill -TERM "$app"
wait "$app"
check "SIGTERM ends it with status 0" test $? -eq 0
finish
