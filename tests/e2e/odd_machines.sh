#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Machines on which something is missing or unusual.
#   odd_machines.sh LIBRARY
# LIBRARY moves the calendar beyond the year 2262.
here=$(dirname "$0")
clock=$1
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

settings '{"dismissSeconds": 600, "quoteFrequency": "6h"}'
n=$(maps)
# The runtime of the address sanitizer insists on being the first library.
start future env LD_PRELOAD="$clock" ASAN_OPTIONS="verify_asan_link_order=0:$ASAN_OPTIONS" \
    "$MORROWLEAF"
must "in the year 2300 it shows a quotation" opened_since "$n"
must "which covers the screen" now_shows_none_of future '#206040'
check "and ends with status 0" quits "$last"

mkdir "$work/bare"
cp "$MORROWLEAF" "$work/bare/morrowleaf"
start host /usr/bin/python3 "$here/notifierhost.py" serve
until_true 60 grep -q serving "$work/host.log" || die "no tray host"
n=$(maps)
start bare "$work/bare/morrowleaf"
must "without its resources it shows a quotation" opened_since "$n"
must "which covers the screen" now_shows_none_of bare '#206040'
has_symbol() {
    /usr/bin/python3 "$here/notifierhost.py" props | grep -qE '^IconPixmap = .*\(22, 22,'
}
must "and has a symbol in the tray" has_symbol
check "and ends with status 0" quits "$last"

Xvfb -displayfd 8 -screen 0 640x480x8 -nolisten tcp 8>"$work/shallow" >"$work/shallow.log" 2>&1 &
pids+=("$!")
until_true 60 test -s "$work/shallow" || die "no X server"
check "on a screen with a palette it says that it cannot, with status 1" sh -c '
    said=$(DISPLAY=:$1 timeout 20 "$MORROWLEAF" 2>&1); test $? = 1 &&
    test "$said" = "The display has too few colours: it needs 15 bits, and has 8."' \
    - "$(cat "$work/shallow")"

# Another process holds the lock of the settings while the file has to be repaired.
settings '{"dismissSeconds": 600'
printf '%s\nmorrowleaf\n%s\n' "$$" "$(hostname)" >"$XDG_CONFIG_HOME/morrowleaf/.settings.json.lock"
n=$(maps)
start locked "$MORROWLEAF"
must "with the settings locked by another it shows the quotation" opened_since "$n"
check "and ends with status 0" quits "$last"
finish
