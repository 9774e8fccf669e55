#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Machines on which something is missing or unusual.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

start_x 640x480
start_manager openbox
start_session_bus
quits() {
    kill "$1"
    wait "$1"
}

# The last letters are in a script that no shipped face has; the program has to
# look for another, of which its toolkit may warn.
mkdir -p "$work/source"
echo '{"text": "Quiet ៘ 𓂀 𐎀", "author": "Ⴆ"}' >"$work/source/quote.json"
settings "{\"dismissSeconds\": 600, \"quoteSourceURL\": \"$work/source/quote.json\"}"
mkfifo "$work/errors"
start reader sh -c "exec head -c 0 '$work/errors'"
n=$(maps)
QT_IM_MODULE=nonsense QT_QPA_PLATFORMTHEME=nonsense sh -c "exec '$MORROWLEAF' 2>'$work/errors'" &
app=$!
pids+=("$app")
must "with a standard error that nobody reads it shows the quotation" opened_since "$n"
settle
check "and runs" kill -0 "$app"
check "until it is ended" quits "$app"

# A damaged photo of a format whose library writes to standard error by itself.
printf 'II*\0\010\0\0\0\377\377garbage that is no directory of tags at all' >"$work/damaged.tiff"
settings "{\"dismissSeconds\": 600, \"backgroundImagePath\": \"$work/damaged.tiff\"}"
run_with_photo() {
    local n
    n=$(maps)
    start photo "$MORROWLEAF"
    until_true 60 opened_since "$n" || return 1
    settle
    sleep 0.5
    quits "$last"
}
check "a damaged photo does not end it" run_with_photo
check "and nothing is said about it" not test -s "$work/photo.log"
export QT_LOGGING_RULES='*=true'
check "it runs with logging switched on" run_with_photo
check "which logs" test -s "$work/photo.log"
unset QT_LOGGING_RULES

finish
