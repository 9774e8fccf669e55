#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Buses that do not answer delay neither the start nor the end, and there is only
# one instance whatever the buses do. The tray is one for which the toolkit asks
# the session bus first.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"
. "$here/controls.sh"

start_x 640x480
start_manager openbox
start_session_bus
start_system_bus
start silent "$here/silentbus.py" "$work/run/silent"
until_true 60 test -S "$work/run/silent" || die "no silent bus"
start tray trayer --edge bottom --align right --widthtype request --height 24
until_true 60 xdotool search --onlyvisible --name '^panel$' || die "no tray"
has_symbol() {
    xwininfo -tree -id "$(xdotool search --onlyvisible --name '^panel$' | tail -1)" |
        grep -q '"Morrowleaf"'
}
settings '{"dismissSeconds": 600}'

# Each runs a command beside buses in that state.
healthy() { "$@"; }
silent_session() { DBUS_SESSION_BUS_ADDRESS=unix:path=$work/run/silent "$@"; }
stopped_session() { beside_stopped "$bus_pid" -- "$@"; }
stopped_system() { beside_stopped "$system_bus_pid" -- "$@"; }
both_stopped() { beside_stopped "$bus_pid" "$system_bus_pid" -- "$@"; }
beside_stopped() {
    local stopped=() result
    while [ "$1" != -- ]; do
        stopped+=("$1")
        shift
    done
    shift
    kill -STOP "${stopped[@]}"
    "$@"
    result=$?
    kill -CONT "${stopped[@]}"
    return $result
}

# launch: opens the program and ends it; the milliseconds of both are in
# $to_show and $to_end
launch() {
    local n begun pid
    n=$(maps)
    begun=$(milliseconds)
    "$MORROWLEAF" >"$work/app.log" 2>&1 &
    pid=$!
    pids+=("$pid")
    until_true 200 opened_since "$n" || return 1
    to_show=$(($(last_map) - begun))
    begun=$(milliseconds)
    kill "$pid"
    wait "$pid" || return 1
    to_end=$(($(milliseconds) - begun))
    until_true 60 is_gone
}
# three STATE: the quickest start and the slowest end of three launches
three() {
    local show=999999 end=0
    for _ in 1 2 3; do
        "$1" launch || return 1
        [ "$to_show" -ge "$show" ] || show=$to_show
        [ "$to_end" -le "$end" ] || end=$to_end
    done
    to_show=$show to_end=$end
}
# A neighbour may slow one measurement down but not the next.
no_slower() {
    local reference
    for _ in 1 2 3; do
        three healthy || return 1
        reference=$to_show
        three "$1" || return 1
        echo "$1: shown after $to_show ms ($reference when healthy), ended after $to_end ms"
        [ $((2 * to_show)) -gt $((3 * reference)) ] || [ "$to_end" -gt 1000 ] || return 0
    done
    return 1
}
check "the program starts and ends" launch
for state in silent_session stopped_session stopped_system both_stopped; do
    if no_slower $state; then echo "ok: $state"; else fail "$state delays start or end"; fi
done

is_named() { gdbus call --session -d org.freedesktop.DBus -o /org/freedesktop/DBus \
    -m org.freedesktop.DBus.NameHasOwner org.morrowleaf.Morrowleaf | grep -q true; }
n=$(maps)
start_beside() { start app "$MORROWLEAF" && until_true 60 opened_since "$n"; }
check "beside stopped buses it shows the quotation" both_stopped start_beside
app=$last
must "when they go on it has its name" is_named
must "and its symbol is in the tray" has_symbol
settle
check "without another showing" mapped_times $((n + 1))

# second SENTENCE: a later launch is quick, and shows the quotation in the first
second() {
    local n begun
    n=$(maps)
    begun=$(milliseconds)
    "$MORROWLEAF" || fail "$1: status 0"
    check "$1: it ends within 5 seconds" test $(($(milliseconds) - begun)) -lt 5000
    must "$1: the first shows the quotation" opened_since "$n"
    check "$1: the first is the only one" only_one
}
only_one() { [ "$(pgrep -c -x -P $$ morrowleaf)" = 1 ] && kill -0 "$app"; }
second "healthy buses"
both_stopped second "stopped buses"
silent_session second "a silent session bus"
kill "$bus_pid"
wait "$bus_pid" 2>/dev/null
second "a dead session bus"
rm -f "$work/run/bus"
start_session_bus
second "a new session bus"
must "and it has its name there" is_named
n=$(maps)
check "what the bus starts leaves the request to the bus" \
    env DBUS_STARTER_BUS_TYPE=session "$MORROWLEAF"
settle
check "and shows nothing" mapped_times "$n"
check "a later launch needs no window system" \
    env LD_DEBUG=files LD_DEBUG_OUTPUT="$work/loaded" "$MORROWLEAF"
check "which it does not load" not grep -q libqxcb "$work"/loaded.*

# later: a launch that waits for the first, which has stopped
later() {
    settle
    kill -STOP "$app"
    start later "$MORROWLEAF"
    must "a launch reaches one that has stopped" is_connected
}
# The socket is listed once more for every connection, by the name under which the
# toolkit has made it.
is_connected() { [ "$(grep -c " $XDG_RUNTIME_DIR/\.[^/]*/s\$" /proc/net/unix)" -gt 1 ]; }
later
begun=$(milliseconds)
kill "$last"
wait "$last"
check "and can be ended at once" test $(($(milliseconds) - begun)) -le 1000
kill -CONT "$app"
settle
n=$(maps)
later
kill -9 "$app"
wait "$app" 2>/dev/null
app=$last
must "or takes its place when that is killed" opened_since "$n"
must "with its name" is_named
must "and its symbol in the tray" has_symbol

kill -STOP "$bus_pid"
begun=$(milliseconds)
kill "$app"
wait "$app"
check "it ends with status 0 beside a bus that has stopped" test $? -eq 0
check "within a second" test $(($(milliseconds) - begun)) -le 1000
kill -CONT "$bus_pid"

# The toolkit would wait for 25 seconds.
answers_in_time() {
    local begun
    begun=$(milliseconds)
    settle
    [ $(($(milliseconds) - begun)) -lt 10000 ]
}
start host /usr/bin/python3 "$here/notifierhost.py" serve
host=$last
until_true 60 grep -q serving "$work/host.log" || die "no watcher of status notifiers"
n=$(maps)
kill -STOP "$host"
start app "$MORROWLEAF"
app=$last
must "beside a watcher of status notifiers that hangs it shows the quotation" opened_since "$n"
check "and has its name, and goes on" answers_in_time
check "without a symbol in the other tray" not has_symbol
kill -9 "$host"
must "which gets it once that has ended" has_symbol
stop "$app"

# connections SOCKET: how many there are, including the socket that listens
connections() { grep -c " $1\$" /proc/net/unix; }
more_connections() { [ "$(connections "$1")" -gt "$2" ]; }

# At a busy login a bus may need a while for its first answer.
start monitor dbus-monitor --session "member='NameHasOwner',arg0='org.a11y.Bus'"
until_true 60 grep -q NameLost "$work/monitor.log" || die "no monitor"
n=$(maps)
before=$(connections "$work/run/bus")
kill -STOP "$bus_pid"
start app "$MORROWLEAF"
app=$last
until more_connections "$work/run/bus" "$before"; do :; done
kill -CONT "$bus_pid"
must "beside a slow bus it shows the quotation" opened_since "$n"
must "and can be read aloud" grep -q org.a11y.Bus "$work/monitor.log"
stop "$app"

start_reader
export NO_AT_BRIDGE=1 # the bridge of a GTK theme waits before the program handles signals
address=$(reader_address)
reader=$(pgrep -f -- "--address=unix:path=$address\$") || die "no accessibility bus"
before=$(connections "$address")
kill -STOP "$reader"
start app "$MORROWLEAF"
app=$last
must "with a screen reader whose bus hangs it waits" more_connections "$address" "$before"
begun=$(milliseconds)
kill "$app"
must "and can be ended" not kill -0 "$app"
wait "$app"
check "with status 0" test $? -eq 0
check "within 6 seconds" test $(($(milliseconds) - begun)) -le 6000
kill -CONT "$reader"
finish
