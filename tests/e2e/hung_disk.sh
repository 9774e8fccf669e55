#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# The photo and the source are on a file system that hangs: only the readers hang.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

mkdir "$work/disk"
start disk "$here/hungdisk.py" "$work/disk"
until_true 60 test -s "$work/disk.log" || die "no file system"
if grep -q cannot "$work/disk.log"; then
    echo "no file system can be mounted here"
    exit 77
fi
start_x 1280x800
start_manager openbox
start_session_bus
settings "{\"dismissSeconds\": 600, \"screenAnimation\": \"still\",
    \"backgroundImagePath\": \"$work/disk/photo.jpg\", \"quoteSourceURL\": \"$work/disk/quote\"}"

n=$(maps)
start app "$MORROWLEAF"
app=$last
must "the quotation is shown" opened_since "$n"
hangs() { pgrep -P "$app" -x "$1"; }
must "the reader of the photo hangs" hangs photoreader
must "the reader of the source hangs" hangs quotereader
settle
xdotool key Escape
must "the showing ends at a key" is_gone
began=$(milliseconds)
kill -TERM "$app"
wait "$app"
check "it ends with status 0" test $? -eq 0
took=$(($(milliseconds) - began))
echo "after $took ms"
check "within a second" test "$took" -le 1000
check "and leaves the settings as they are" grep -q quoteSourceURL "$settings_file"
check "with nothing cached" not grep -q cachedQuoteText "$settings_file"
finish
