#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Machines on which something is missing or unusual.
#   odd_machines.sh LIBRARY WRITER
# LIBRARY moves the calendar beyond the year 2262, WRITER can hold the lock of the
# settings.
here=$(dirname "$0")
clock=$1
writer=$2
. "$here/lib.sh"
. "$here/x11.sh"

start_x 640x480
start_manager openbox
start_session_bus
quits() {
    kill "$1"
    wait "$1"
}

# The log goes to a pipe that nobody reads any more.
settings '{"dismissSeconds": 600}'
mkfifo "$work/errors"
start reader sh -c "exec head -c 0 '$work/errors'"
n=$(maps)
QT_LOGGING_RULES='*=true' sh -c "exec '$MORROWLEAF' 2>'$work/errors'" &
app=$!
pids+=("$app")
must "with a log that nobody reads it shows the quotation" opened_since "$n"
settle
check "and runs" kill -0 "$app"
check "until it is ended" quits "$app"

# A damaged photo of a format whose library writes to standard error by itself, and
# letters in a script that no shipped face has, for which the toolkit looks for
# another.
printf 'II*\0\010\0\0\0\377\377garbage that is no directory of tags at all' >"$work/damaged.tiff"
echo '{"text": "Quiet ៘ 𓂀 𐎀", "author": "Ⴆ"}' >"$work/quote.json"
settings "{\"dismissSeconds\": 600, \"quoteSourceURL\": \"$work/quote.json\",
    \"backgroundImagePath\": \"$work/damaged.tiff\"}"
# start_with_photo: until the photo has been read, or for a second if the file system
# records no access times
start_with_photo() {
    n=$(maps)
    touch -d '1 hour ago' "$work/damaged.tiff"
    start photo env QT_IM_MODULE=nonsense QT_QPA_PLATFORMTHEME=nonsense "$MORROWLEAF"
    until_true 60 opened_since "$n" || return 1
    until_true 1 was_read
    settle
}
was_read() { [ "$(stat -c %X "$work/damaged.tiff")" -gt "$(stat -c %Y "$work/damaged.tiff")" ]; }
export QT_LOGGING_RULES='*=true'
check "with logging switched on it shows the quotation" start_with_photo
must "and logs that a damaged photo has no pixels" \
    grep -q 'photoreader has not answered' "$work/photo.log"
check "and ends with status 0" quits "$last"
unset QT_LOGGING_RULES
check "without logging it shows the quotation" start_with_photo
check "and ends with status 0" quits "$last"
check "and says nothing" not test -s "$work/photo.log"
export QT_LOGGING_RULES='*.debug=false'
check "with a category switched off it shows the quotation" start_with_photo
check "and ends with status 0" quits "$last"
check "and says nothing" not test -s "$work/photo.log"
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
mkfifo "$work/never"
start holder sh -c "exec '$writer' '$settings_file' hold <>'$work/never'"
until_true 60 grep -qx held "$work/holder.log" || die "no lock"
n=$(maps)
start locked "$MORROWLEAF"
must "with the settings locked by another it shows the quotation" opened_since "$n"
check "and ends with status 0" quits "$last"
check "and leaves the file to the other" grep -qx '{"dismissSeconds": 600' "$settings_file"
finish
