#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# The program is asked to quit, and is killed, while a photo of 48 megapixels is decoded.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

start_x 1280x800
start_manager openbox
start_session_bus
"$here/largephoto.py" "$work/large.png" || die "no photo"
settings "{\"dismissSeconds\": 600, \"screenAnimation\": \"still\",
    \"backgroundImagePath\": \"$work/large.png\"}"

has_reader() { reader=$(pgrep -P "$app" -x photoreader); }
# Processor time of the reader in hundredths of a second.
spent() { awk '{print $14 + $15}' "/proc/$reader/stat" 2>/dev/null; }
has_begun() { [ "$(spent)" -ge 5 ]; }
launch() {
    launch_showing
    until_true 60 has_reader || die "nobody reads the photo"
}

launch
whole=0
while now=$(spent) && [ -n "$now" ]; do
    whole=$now
    sleep 0.02
done
echo "decoding takes $whole hundredths of a second"
[ "$whole" -ge 30 ] || die "the photo is decoded too quickly"
check "the program itself decodes nothing" not grep -qF -- "$work/large.png" /proc/"$app"/maps
kill -TERM "$app"
wait "$app"
check "it ends with status 0 after the decoding" test $? -eq 0

# ends_with_reader SIGNAL: the reader ends with the program, long before it is done
ends_with_reader() {
    launch
    until_true 60 has_begun || die "the photo is not decoded again"
    kill -"$1" "$app"
    wait "$app"
    status=$?
    check "the reader ends too" until_true 1 has_ended "$reader"
}
ends_with_reader TERM
check "it ends with status 0 in the middle of it" test "$status" -eq 0
ends_with_reader KILL
finish
