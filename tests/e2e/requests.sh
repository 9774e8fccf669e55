#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Requests that wait at the same moment become one.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

start_x 1920x1080
start_manager openbox
start_session_bus
settings '{"dismissSeconds": 600}'
start app "$MORROWLEAF"
app=$last
must "it shows the quotation" opened_since 0
settle
# requests N: sends them without waiting for the answers
requests() { /usr/bin/python3 "$here/requests.py" "$1"; }
# The most memory since the last call, in kilobytes.
most_memory() {
    awk '/^VmHWM:/ {print $2}' "/proc/$app/status"
    echo 5 >"/proc/$app/clear_refs"
}

most_memory >"$work/start.log"
for n in 1 2 3; do
    requests 1
    must "request $n during a showing replaces it" mapped_times $((n + 1))
    settle
done
one=$(most_memory)
n=$(maps)
kill -STOP "$app"
requests 400
kill -CONT "$app"
must "400 that waited show it again" opened_since "$n"
settle
outlast_fade
many=$(most_memory)
shown=$(($(maps) - n))
echo "400 requests: $shown showings, $many kB at most; a request during a showing: $one kB"
# The first shows it at once, and the others arrive meanwhile.
check "at most twice" test "$shown" -le 2
# A showing keeps a picture of its backdrop while texts appear, and it is a matter of moments
# whether those of two showings are there together.
picture=$((1920 * 1080 * 4 / 1024))
check "with the memory of two showings" test "$many" -le $((one + one / 10 + picture))
must "the last one stays" is_shown
kill "$app"
wait "$app"
check "it ends with status 0" test $? -eq 0
finish
