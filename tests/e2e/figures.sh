#!/bin/bash
# Figures of the running program on a private X server; not a test.
#   MORROWLEAF=... E2E_MAPWATCH=... figures.sh [SHOWINGS]
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"
showings=${1:-100}

start_x 1920x1080
start_manager openbox
start_session_bus
settings '{"dismissSeconds": 60}'
start app "$MORROWLEAF"
app=$last
until_true 30 opened_since 0 || die "no showing"
ticks() { awk '{print $14 + $15}' "/proc/$app/stat"; }
# of the threads that live: idle workers end after half a minute
switches() { cat /proc/"$app"/task/*/status | awk '/^voluntary/ {s += $2} END {print s}'; }
threads() { ls "/proc/$app/task" | wc -l; }
pss() { awk '/^Pss:/ {print $2}' "/proc/$app/smaps_rollup"; }
activate() {
    gdbus call --session -d org.morrowleaf.Morrowleaf -o /org/morrowleaf/Morrowleaf \
        -m org.freedesktop.Application.Activate '{}' >/dev/null
}
close_it() {
    xdotool key Escape
    until_true 30 is_gone || die "it stays"
    sleep 0.2
}

sleep 5
before=$(ticks)
sleep 10
echo "CPU of a showing at 1920x1080: $(($(ticks) - before)) per mille of a core"
echo "PSS while shown: $(pss) kB"
close_it
sleep 2
echo "PSS idle: $(pss) kB, private $(awk '/^Private/ {s += $2} END {print s}' "/proc/$app/smaps_rollup") kB"
sleep 35
before=$(switches)
workers=$(threads)
sleep 60
[ "$(threads)" -eq "$workers" ] || echo "threads have ended meanwhile: the next figure is too low"
echo "wake-ups in 60 idle seconds: $(($(switches) - before))"
for _ in 1 2 3 4 5; do
    asked=${EPOCHREALTIME/./}
    activate
    sleep 1.2
    painted=$(awk '/ map$/ {m = $2} / painted$/ {p = $2} END {print m, p}' "$work/mapwatch.log")
    awk -v a="$asked" -v mp="$painted" 'BEGIN {split(mp, t, " ");
        printf "asked to mapped %.0f ms, to the first frame that differs %.0f ms\n", \
            t[1] - a / 1000, t[2] - a / 1000}'
    close_it
done
memory=$(pss)
files=$(ls "/proc/$app/fd" | wc -l)
for round in 1 2 3 4; do
    for _ in $(seq $((showings / 4))); do
        activate
        sleep 0.15
    done
    close_it
    sleep 2
    echo "after $((round * (showings / 4))) showings: PSS $(($(pss) - memory)) kB more," \
        "$(($(ls "/proc/$app/fd" | wc -l) - files)) files more"
done
