#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# The program is asked to quit while it decodes a photo of 48 megapixels.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

start_x 1280x800
start_manager openbox
start_session_bus
"$here/largephoto.py" "$work/large.png" || die "no photo"
settings "{\"dismissSeconds\": 600, \"screenAnimation\": \"still\",
    \"backgroundImagePath\": \"$work/large.png\"}"

# Processor time in hundredths of a second, of the whole program and of the
# workers that decode.
spent() { awk '{print $14 + $15}' "/proc/$app/stat"; }
workers() { grep -lF '(pooled)' "/proc/$app/task/"*/comm 2>/dev/null | sed 's/comm$/stat/'; }
decoding() { workers | xargs -r sed 's/.*) //' | awk '{sum += $12 + $13} END {print sum + 0}'; }
at_rest() { [ "$(decoding)" -gt 0 ] && ! workers | xargs sed 's/.*) //' | grep -q '^[RD]'; }
is_decoded() { at_rest && sleep 0.3 && at_rest; }
has_begun() { [ "$(decoding)" -ge 5 ]; }
# The processor time of all programs that have ended so far.
ended_spent() {
    times >"$work/times"
    sum=$(tail -n 1 "$work/times" | tr 'ms' '  ' |
        awk '{printf "%d", 100 * (60 * ($1 + $3) + $2 + $4)}')
}

launch() {
    local n
    n=$(maps)
    start app "$MORROWLEAF"
    app=$last
    until_true 60 opened_since "$n" || die "no showing"
}

launch
until_true 120 is_decoded || die "the photo is never decoded"
whole=$(decoding)
echo "decoding takes $whole hundredths of a second"
[ "$whole" -ge 30 ] || die "the photo is decoded too quickly"
kill -TERM "$app"
wait "$app"
check "it ends with status 0 after the decoding" test $? -eq 0

for _ in 1 2 3; do
    launch
    until_true 60 has_begun || die "the photo is not decoded again"
    before=$(spent)
    begun=$(decoding)
    ended_spent
    others=$sum
    kill -TERM "$app"
    wait "$app"
    status=$?
    ended_spent
    after=$((sum - others - before))
    [ "$begun" -gt $((whole / 2)) ] || break
done
[ "$begun" -le $((whole / 2)) ] || die "the signal always came too late"
check "it ends with status 0 in the middle of it" test "$status" -eq 0
echo "told after $begun hundredths of the decoding, it took $after more to end"
check "without decoding to the end" test "$after" -lt $(((whole - begun) / 2))
finish
