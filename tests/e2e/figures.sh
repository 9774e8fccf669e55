#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Measures the running program on a private X server; not a test.
#   MORROWLEAF=... E2E_MAPWATCH=... figures.sh [SHOWINGS [SETTINGS [picom]]]
# SETTINGS are further members of the settings file, for example
# '"screenAnimation": "still"'.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"
showings=${1:-100}

start_x 1920x1080
start_manager openbox
[ "${3:-}" = picom ] && start_compositor
start_session_bus
settings "{\"dismissSeconds\": 15${2:+, $2}}"
start app "$MORROWLEAF"
app=$last
until_true 60 opened_since 0 || die "no showing"
# Of live threads only; idle workers end after half a minute.
switches() { cat /proc/"$app"/task/*/status | awk '/^voluntary/ {s += $2} END {print s}'; }
threads() { ls "/proc/$app/task" | wc -l; }
pss() { awk '/^Pss:/ {print $2}' "/proc/$app/smaps_rollup"; }
# Memory of the program alone, without shared libraries.
own() { awk '/^Anonymous:/ {print $2}' "/proc/$app/smaps_rollup"; }
median() { sort -n | awk '{v[NR] = $1} END {print v[int((NR + 1) / 2)]}'; }
# since START TICKS: the percentage of one core used since then
since() {
    awk -v start="$1" -v ticks="$2" -v now="${EPOCHREALTIME/./}" \
        '{printf "%.1f\n", ($14 + $15 - ticks) * 1e6 / (now - start)}' "/proc/$app/stat"
}
over() {
    local start=${EPOCHREALTIME/./} ticks
    ticks=$(awk '{print $14 + $15}' "/proc/$app/stat")
    "$@"
    since "$start" "$ticks"
}
activate() {
    gdbus call --session -d org.morrowleaf.Morrowleaf -o /org/morrowleaf/Morrowleaf \
        -m org.freedesktop.Application.Activate '{}' >/dev/null
}
close_it() {
    xdotool key Escape
    until_true 60 is_gone || die "it stays"
    sleep 0.2
}
whole_showing() {
    local n
    n=$(maps)
    activate
    until_true 60 opened_since "$n" || die "no showing"
    until_true 60 is_gone || die "it stays"
}

close_it
echo "CPU at 1920x1080, percent of a core"
echo "  whole showing of 15 s: $(for _ in 1 2 3; do over whole_showing; done | median)"
activate
sleep 6
echo "  text at rest: $(for _ in 1 2 3; do over sleep 2.6; done | median)"
echo "PSS while shown: $(pss) kB, anonymous $(own) kB"
until_true 60 is_gone || die "it stays"
sleep 2
echo "PSS idle: $(pss) kB, anonymous $(own) kB"
sleep 35
before=$(switches)
workers=$(threads)
sleep 60
[ "$(threads)" -eq "$workers" ] || echo "threads have ended meanwhile: the next figure is too low"
echo "wake-ups in 60 idle seconds: $(($(switches) - before))"
for _ in 1 2 3 4 5 6 7; do
    asked=${EPOCHREALTIME/./}
    activate
    sleep 1.2
    awk -v a="$asked" '/ map$/ {m = $2} / painted$/ {p = $2} END {
        printf "%.0f %.0f\n", m - a / 1000, p - a / 1000}' "$work/mapwatch.log"
    close_it
done >"$work/times"
echo "asked to mapped $(cut -d ' ' -f 1 "$work/times" | median) ms," \
    "to the first frame that differs $(cut -d ' ' -f 2 "$work/times" | median) ms"
memory=$(own)
files=$(ls "/proc/$app/fd" | wc -l)
for round in 1 2 3 4; do
    for _ in $(seq $((showings / 4))); do
        n=$(maps)
        activate
        until_true 60 opened_since "$n" || die "no showing"
        xdotool key Escape
        until_true 60 is_gone || die "it stays"
    done
    sleep 2
    echo "after $((round * (showings / 4))) showings: $(($(own) - memory)) anonymous kB more," \
        "$(($(ls "/proc/$app/fd" | wc -l) - files)) files more"
done

# What is loaded: memory that only this process has, because it has written to it, and
# pages of the file, which all programs that use it share.
loaded() {
    awk '/^[0-9a-f]+-/ {name = $6 ~ /^\// && $6 !~ /SYSV|memfd/ ? $6 : "no file"; sub(".*/", "", name)}
        /^Private_Dirty/ {own[name] += $2}
        /^(Private_Clean|Shared_)/ {file[name] += $2}
        END {for (name in own) if (own[name] + file[name] >= 64)
            printf "  %6d kB own %6d kB of the file  %s\n", own[name], file[name], name}' \
        "/proc/$app/smaps" | sort -rn
}
gdbus call --session -d org.morrowleaf.Morrowleaf -o /org/morrowleaf/Morrowleaf \
    -m org.freedesktop.Application.ActivateAction edit-appearance '[]' '{}' >/dev/null
sleep 4
echo "PSS with the editor: $(pss) kB, anonymous $(own) kB"
close_it
sleep 2
echo "PSS just after the editor: $(pss) kB, anonymous $(own) kB"
sleep 30
echo "PSS half a minute after it: $(pss) kB, anonymous $(own) kB"
loaded
