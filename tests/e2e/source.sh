#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# A quotation from a source: the scheduled one is shown first, the loaded one
# replaces it, and after the server is gone the cached one is shown.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

start_x 1280x800
start_manager openbox
start_compositor
start_session_bus
start server "$here/patientserver.py" "$work/port" "$work/release"
server=$last
until_true 60 test -s "$work/port" || die "no server"
address=http://127.0.0.1:$(cat "$work/port")/quote

# Without motion after the entrance, pictures can be compared.
look='"dismissSeconds": 600, "screenAnimation": "still", "paletteIndex": 4'
store=$XDG_CONFIG_HOME/morrowleaf/settings.json

leave() {
    kill -TERM "$app"
    wait "$app"
    check "it ends with status 0" test $? -eq 0
}
# A picture of the column, which comes to rest before header and hint do.
column() { import -window root -crop 1000x420+140+190 +repage "$work/$1.png"; }
differing() {
    local n
    n=$(compare -metric AE "$work/$1.png" "$work/$2.png" null: 2>&1)
    printf '%.0f' "$n"
}
# column_at_rest NAME: waits until eight pictures in a row are the same
column_at_rest() { until_true 60 has_come_to_rest "$1" || fail "the picture comes to rest"; }
has_come_to_rest() {
    local i
    column "$1"
    for ((i = 0; i < 8; i++)); do
        column next
        same "$1" next || return 1
    done
}
# column_becomes NAME OTHER: a new picture of the column equals OTHER
column_becomes() { column "$1" && same "$1" "$2"; }
same() { [ "$(differing "$1" "$2")" -eq 0 ]; }
cached() { grep -q '"cachedQuoteText": *"The lamp that is lit' "$store"; }

settings "{$look}"
launch_showing
column_at_rest scheduled
leave

settings "{$look, \"quoteSourceURL\": \"$address\"}"
launch_showing
must "while the source is silent the scheduled quotation stands" column_becomes waiting scheduled
check "the source was asked once" test "$(grep -c 'asked for /quote' "$work/server.log")" -eq 1
check "for JSON" grep -q 'accepting application/json$' "$work/server.log"
touch "$work/release"
must "the loaded quotation is cached" cached
must "with its author" grep -q '"cachedQuoteAuthor": *"A Neighbour"' "$store"
must "and shown" not column_becomes loaded scheduled
column_at_rest loaded
check "to stay" not same scheduled loaded
leave

kill "$server"
launch_showing
must "without the server the cached quotation stands" column_becomes offline loaded
leave
finish
