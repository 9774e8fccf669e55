#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# The program is asked to quit while its source does not answer.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

start_x 1280x800
start_manager openbox
start_session_bus
start server "$here/patientserver.py" "$work/port" "$work/release"
until_true 60 test -s "$work/port" || die "no server"
store=$XDG_CONFIG_HOME/morrowleaf/settings.json

asked() { [ "$(grep -c 'asked for' "$work/server.log")" -ge "$1" ]; }
ended() { ! kill -0 "$1"; }

# quits_quickly SIGNAL: launches the program, waits for its request and ends it
loads=0
quits_quickly() {
    local signal=$1 app began took
    start app "$MORROWLEAF"
    app=$last
    loads=$((loads + 1))
    until_true 60 asked "$loads" || die "the source was not asked"
    began=${EPOCHREALTIME/./}
    kill -"$signal" "$app"
    wait "$app"
    check "it ends with status 0 after $signal" test $? -eq 0
    took=$(((${EPOCHREALTIME/./} - began) / 1000))
    echo "after $took ms"
    # The load would last six seconds; a busy machine needs some time to quit.
    check "without waiting for its source" test "$took" -lt 3000
}

address=http://127.0.0.1:$(cat "$work/port")/quote
settings "{\"quoteSourceURL\": \"$address\", \"frequency\": 6}"
quits_quickly TERM
check "and leaves the settings as they are" grep -q quoteSourceURL "$store"
check "with nothing cached" not grep -q cachedQuoteText "$store"
finish
