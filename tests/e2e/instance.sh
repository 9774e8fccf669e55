#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# One instance per session, however it is started, with and without a bus.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

start_x 640x480
start_manager openbox
settings '{"dismissSeconds": 600}'
close_it() {
    xdotool key Escape
    until_true 2 is_gone
}

settings_open() { xdotool search --onlyvisible --name '^Morrowleaf Settings$'; }

four_at_once() {
    local round=$1 i racers=()
    for i in 1 2 3 4; do
        start "race$round-$i" "$MORROWLEAF"
        racers+=("$last")
    done
    three_ended() {
        local left=0 p
        for p in "${racers[@]}"; do kill -0 "$p" 2>/dev/null && left=$((left + 1)); done
        [ "$left" -eq 1 ]
    }
    must "$round: of four launches one stays" until_true 60 three_ended
    # The first instance answers launches in order, so this one is answered
    # last.
    "$MORROWLEAF" --settings || fail "$round: status 0 with --settings"
    must "$round: a launch with --settings opens the settings of the first" settings_open
    check "$round: which stays" three_ended
    must "$round: and shows the quotation" is_shown
    for i in "${racers[@]}"; do
        if kill -0 "$i" 2>/dev/null; then app=$i; else
            wait "$i" || fail "$round: a later launch ends with status 0"
        fi
    done
    must "$round: a key closes it" close_it
    local n
    n=$(maps)
    xdotool windowminimize --sync "$(settings_open | head -1)"
    "$MORROWLEAF" --settings || fail "$round: status 0 with --settings"
    must "$round: another brings them back" settings_open
    check "$round: and shows nothing else" mapped_times "$n"
    # --selftest wins over --register-login and prints only its own line.
    check "$round: the self-test runs beside it" sh -c 'unset DISPLAY WAYLAND_DISPLAY
        said=$("$MORROWLEAF" --register-login -platform x --selftest) &&
        test "$said" = "selftest ok — 124 quotes, connector parsing ok"'
    check "$round: and registers nothing" \
        not test -e "$XDG_CONFIG_HOME/autostart/org.morrowleaf.Morrowleaf.desktop"
    check "$round: and the login item" \
        sh -c '"$MORROWLEAF" --register-login | grep -qx "login item: enabled"'
    rm -f "$XDG_CONFIG_HOME/autostart/org.morrowleaf.Morrowleaf.desktop"
}

four_at_once "without a bus"
kill -9 "$app"
wait "$app" 2>/dev/null
until_true 60 is_gone
n=$(maps)
start app "$MORROWLEAF"
must "a killed one is no hindrance" opened_since "$n"
kill "$last"
wait "$last"
check "SIGTERM ends it with status 0" test $? -eq 0
must "its window is gone" is_gone

start_session_bus
four_at_once "with a bus"
n=$(maps)
application() {
    gdbus call --session -d org.morrowleaf.Morrowleaf -o /org/morrowleaf/Morrowleaf \
        -m "org.freedesktop.Application.$1" "${@:2}"
}
application Activate '{"activation-token": <"abc">}'
must "the desktop's way of activating shows it" opened_since "$n"
xdotool key Escape
must "a key closes it" is_gone
n=$(maps)
kill -STOP "$app"
"$MORROWLEAF" || fail "a launch beside one that hangs ends with status 0"
kill -CONT "$app"
must "and is answered when that one goes on" opened_since "$n"
settle
check "once" mapped_times $((n + 1))
check "without a display it says so and ends" sh -c 'unset WAYLAND_DISPLAY
    said=$(DISPLAY=:32000 "$MORROWLEAF" 2>&1); test $? = 1 &&
    test "$said" = "There is no display to show anything on."'
application ActivateAction quit '[]' '{}'
must "and its way of quitting ends it" not kill -0 "$app"
finish
