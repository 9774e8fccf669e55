#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Waking and unlocking, in every order: one showing each.
#   triggers.sh [orders|signals|services]
# Without an argument it runs all three at the same time, each in a session of
# its own, because they mostly wait.
here=$(dirname "$0")
if [ $# = 0 ]; then
    logs=$(mktemp -d)
    groups=(orders signals services)
    running=()
    trap 'kill "${running[@]}" 2>/dev/null; wait; rm -rf "$logs"' EXIT
    trap 'exit 1' INT TERM
    for group in "${groups[@]}"; do
        "$0" "$group" >"$logs/$group" 2>&1 &
        running+=($!)
    done
    status=0
    for i in "${!groups[@]}"; do
        wait "${running[i]}" || status=1
        sed "s/^/${groups[i]}: /" "$logs/${groups[i]}"
    done
    exit $status
fi
. "$here/lib.sh"
. "$here/x11.sh"
. "$here/logind.sh"

start_x 640x480
start_manager openbox
start_session_bus
start_system_bus
start_logind
settings '{"dismissSeconds": 600}'
start app "$MORROWLEAF"
app=$last
must "a launch shows the quotation" opened_since 0
settle

throttle_over() { outlast_throttle "$(last_map)"; }
close_it() {
    xdotool key Escape
    until_true 60 is_gone || fail "it could not be closed"
}
# order NAME COMMAND...: the commands lead to exactly one showing
order() {
    local name=$1 n
    shift
    close_it
    throttle_over
    n=$(maps)
    "$@"
    must "$name: shows" opened_since "$n"
    settle
    check "$name: shows once" mapped_times $((n + 1))
}

wake_then_unlock() { wake; settle; unlock; }
unlock_then_wake() { unlock; wake; }
everything_at_once() {
    wake
    set_active false
    set_active true
    set_hint true
    set_hint false
    unlock
}
wake_while_locked() {
    set_hint true
    n=$(maps)
    wake
    sleep "${LOCKED_SECONDS:-9}" # longer than the throttle
    settle
    check "nothing while locked" mapped_times "$n"
    unlock
    settle
    set_hint false
}
# No earlier event reports that the session was locked.
hint_alone() { session_call c1 "$mock.UpdateProperties" "$login.Session" '{"LockedHint": <false>}'; }
hint_goes() { set_hint true; set_hint false; }
saver_ends() { saver_active true; saver_active false; }
active_alone() { set_active true; }
wake_twice() { wake; settle; wake; }

orders() {
    order "wake, then unlock" wake_then_unlock
    order "unlock, then wake" unlock_then_wake
    order "wake, active, hint and unlock" everything_at_once
    order "wake while locked" wake_while_locked
}

signals() {
    order "the locked hint, false alone" hint_alone
    order "a lock seen by its hint only" hint_goes
    start_saver
    order "the end of a screen saver alone" saver_ends
    session_call c1 "$mock.UpdateProperties" "$login.Session" '{"Active": <false>}'
    order "becoming active alone" active_alone
    order "two wakes in a row" wake_twice
}

services() {
    local n
    close_it
    throttle_over
    n=$(maps)
    unlock c2
    settle
    check "another user's unlock shows nothing" mapped_times "$n"
    change_settings '{"dismissSeconds": 600, "showOnWake": false}'
    wake
    settle
    check "nor a wake when the user wants none" mapped_times "$n"
    change_settings '{"dismissSeconds": 600}'

    stop "$logind_pid"
    settle
    start_logind
    # The program looks up its session before it can receive signals again.
    woken() { wake && until_true 2 opened_since "$1"; }
    must "a restarted login manager is heard" woken "$n"
    close_it
    throttle_over
    n=$(maps)
    set_hint true
    wake
    settle
    check "nothing while locked" mapped_times "$n"
    stop "$logind_pid"
    must "a login manager that goes leaves nobody locked out" opened_since "$n"
    close_it
    throttle_over
    n=$(maps)
    stop "$system_bus_pid"
    settle
    check "the program outlives the bus" kill -0 "$app"
    start_system_bus
    start_logind
    must "and hears a bus that comes back" woken "$n"
}

"$1"
kill -TERM "$app"
wait "$app"
check "it ends with status 0" test $? -eq 0
finish
