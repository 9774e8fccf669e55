#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Puts the running program through one stage of faults, in a session of its own.
#   MORROWLEAF=... E2E_MAPWATCH=... FULLDISK=... endure.sh STAGE
# It prints what has been done and lost, and the program's own memory and open files before
# and after. Losing anything is a failure.
# shellcheck source-path=SCRIPTDIR/../e2e
here=$(dirname "$(readlink -f "$0")")/../e2e
tests=$here/..
. "$here/lib.sh"
. "$here/x11.sh"
. "$here/logind.sh"

lost=0
count=0
lose() {
    echo "LOST: $*"
    lost=$((lost + 1))
}
own_memory() { awk '/^Anonymous:/ {print $2}' "/proc/$app/smaps_rollup"; }
open_files() { find "/proc/$app/fd" -mindepth 1 | wc -l; }
readers() { pgrep -P "$app" -x '.*reader'; }
no_readers() { ! readers; }
activate() {
    gdbus call --session -d org.morrowleaf.Morrowleaf -o /org/morrowleaf/Morrowleaf \
        -m org.freedesktop.Application.Activate '{}' >/dev/null
}
# show: one more showing; a showing that is up is replaced
show() {
    local n
    n=$(maps)
    activate && until_true 60 opened_since "$n"
}
close_it() {
    xdotool key Escape
    until_true 60 is_gone || lose "a showing that can be closed"
}
launch() {
    launch_showing
    settle
}
# member NAME VALUE...: the members of a JSON object
members() {
    /usr/bin/python3 -c 'import json, sys
print(json.dumps(dict(zip(sys.argv[1::2], map(json.loads, sys.argv[2::2])))))' "$@"
}
begin() {
    start_x 640x480
    start_manager openbox
    start_session_bus
}
# measure: begins to count, after a showing that loads what every showing needs
measure() {
    show || die "no showing"
    close_it
    settle
    sleep 1
    memory=$(own_memory)
    files=$(open_files)
}
report() {
    if kill -0 "$app"; then
        is_gone || close_it
        until_true 60 no_readers || lose "readers that end"
        settle
        sleep 1
        echo "memory: $memory kB before, $(own_memory) kB after"
        echo "open files: $files before, $(open_files) after"
        [ "$(open_files)" -le $((files + 2)) ] || lose "open files"
    else
        lose "the program"
    fi
}

start_servers() {
    mkfifo "$work/open"
    exec 8<>"$work/open" # it serves until its standard input is closed
    /usr/bin/python3 -B "$tests/fakes/hostileserver.py" <&8 >"$work/servers.log" 2>"$work/errors.log" &
    pids+=($!)
    until_true 60 test -s "$work/servers.log" || die "no servers"
    read -r http ipv6 _ https SSL_CERT_FILE <"$work/servers.log"
    export SSL_CERT_FILE no_proxy='*'
}
asked() { grep -cxF "$1" "$work/servers.log"; }
was_asked() { [ "$(asked "$1")" -ge 1 ]; }

# choose_source ADDRESS: whether it is the source now. The settings are written without
# their lock here, so what the program writes at this moment may take their place.
choose_source() {
    change_settings "{\"dismissSeconds\": 600, \"screenAnimation\": \"still\",
        \"quoteSourceURL\": \"$1\"}"
    grep -qF "$1\"" "$settings_file"
}
servers() {
    local behaviour tag host
    begin
    start_servers
    settings '{"dismissSeconds": 600, "screenAnimation": "still"}'
    launch
    measure
    mapfile -t behaviours < <(/usr/bin/python3 -B "$tests/fakes/hostileserver.py" --list)
    for host in "http://127.0.0.1:$http" "https://127.0.0.1:$https" "http://[::1]:$ipv6" \
        "http://127.0.0.1:$http/via"; do
        for behaviour in "${behaviours[@]}"; do
            count=$((count + 1))
            tag="$behaviour?$count"
            until_true 10 choose_source "$host/$tag" || lose "the choice of $tag"
            show || lose "the showing of $tag"
            until_true 7 was_asked "$tag" || lose "the request for $tag"
        done
    done
    until_true 60 no_readers
    for tag in $(grep -x '[a-z0-9-]*?[0-9]*' "$work/servers.log" | sort | uniq -d); do
        lose "the only request for $tag: there were $(asked "$tag")"
    done
    until_true 10 choose_source "http://127.0.0.1:$http/ok" || lose "the choice of a good source"
    show
    until_true 10 grep -q '"cachedQuoteText": *"A"' "$settings_file" || lose "a good load in the end"
    echo "hostile servers, plain, encrypted, on IPv6 and behind a redirect: $count"
    report
}

photos() {
    local path
    begin
    "$tests/endure/hostilephotos.py" "$tests/fuzz/photo" "$work/photos" >"$work/paths" ||
        die "no photos"
    settings '{"dismissSeconds": 600, "screenAnimation": "still"}'
    launch
    measure
    while read -r path <&9; do
        count=$((count + 1))
        change_settings "$(members dismissSeconds 600 screenAnimation '"still"' \
            backgroundImagePath "$path")"
        show || lose "the showing with $path"
        until_true 30 no_readers || lose "the reader of $path"
    done 9<"$work/paths"
    echo "hostile photos: $count"
    report
}

kills() {
    local i pid mark left
    begin
    start_servers
    "$here/largephoto.py" "$work/large.png"
    settings "{\"dismissSeconds\": 600, \"screenAnimation\": \"still\",
        \"backgroundImagePath\": \"$work/large.png\",
        \"quoteSourceURL\": \"http://127.0.0.1:$http/slow-but-in-time\"}"
    launch
    measure
    for ((i = 0; i < 200 && count < 100; i++)); do
        show || lose "a showing beside killed readers"
        sleep "0.$((RANDOM % 700 + 100))"
        for pid in $(readers); do
            kill -KILL "$pid" 2>/dev/null && count=$((count + 1))
        done
        kill -0 "$app" || die "the program has died of the death of a reader"
    done
    echo "readers killed: $count"
    report
    count=0
    stop "$app"
    for ((i = 0; i < 100; i++)); do
        count=$((count + 1))
        mark=$RANDOM
        settings "{\"dismissSeconds\": 600, \"mark\": $mark,
            \"backgroundImagePath\": \"$work/large.png\",
            \"quoteSourceURL\": \"http://127.0.0.1:$http/ok\"}"
        "$MORROWLEAF" >"$work/app.log" 2>&1 &
        app=$!
        sleep "$((RANDOM % 2)).$((RANDOM % 900 + 100))"
        left=$(readers)
        kill -KILL "$app"
        wait "$app" 2>/dev/null
        for pid in $left; do
            until_true 2 has_ended "$pid" || lose "the end of a reader"
        done
        [ "$(/usr/bin/jq .mark "$settings_file")" = "$mark" ] || lose "the settings"
    done
    find "$XDG_CONFIG_HOME/morrowleaf" -type f ! -name settings.json ! -name '*.lock' |
        sed 's/^/left behind: /'
    launch
    echo "programs killed: $count"
    stop "$app" || lose "an orderly end"
}

sleeps() {
    local i
    begin
    start_system_bus
    start_logind
    settings '{"dismissSeconds": 5, "screenAnimation": "still"}'
    launch
    measure
    for ((i = 0; i < 40; i++)); do
        "$tests/endure/sleeper.py" 250 || lose "the login manager"
        count=$((count + 250))
        settle
    done
    until_true 60 is_gone || lose "the end of a showing"
    settle
    outlast_throttle "$(last_map)"
    i=$(maps)
    wake
    until_true 10 opened_since "$i" || lose "the showing after the last wake"
    echo "sleep cycles: $count, with $(maps) showings"
    report
}

disk_full() {
    local writes n
    begin
    printf '{"q": "A line.", "a": "B"}' >"$work/quote"
    while true; do
        count=$((count + 1))
        settings "{\"dismissSeconds\": 600, \"screenAnimation\": \"still\", \"mark\": $count,
            \"quoteSourceURL\": \"$work/quote\"}"
        : >"$work/writes"
        n=$(maps)
        LD_PRELOAD=$FULLDISK FULL_FROM=$count FULL_COUNT=$work/writes \
            "$MORROWLEAF" >"$work/app.log" 2>&1 &
        app=$!
        until_true 60 opened_since "$n" || lose "a showing beside a full disk"
        until_true 1 grep -q 'A line' "$settings_file"
        kill -TERM "$app"
        wait "$app" || lose "an orderly end at write $count"
        [ "$(/usr/bin/jq .mark "$settings_file")" = "$count" ] || lose "the settings at write $count"
        writes=$(stat -c %s "$work/writes")
        [ "$writes" -ge "$count" ] || break
    done
    grep -q 'A line' "$settings_file" || lose "what is written where there is space"
    echo "writes at which the disk was full: $((count - 1))"
}

hung_disk() {
    local status=0
    count=1
    "$here/hung_disk.sh" || status=$?
    if [ "$status" = 77 ]; then
        begin
        start_servers
        "$here/largephoto.py" "$work/large.png"
        settings "{\"dismissSeconds\": 600, \"backgroundImagePath\": \"$work/large.png\",
            \"quoteSourceURL\": \"http://127.0.0.1:$http/silent\"}"
        launch
        until_true 10 readers || lose "the readers"
        readers | xargs kill -STOP
        close_it
        local began
        began=$(milliseconds)
        stop "$app" || lose "an orderly end"
        [ $(($(milliseconds) - began)) -le 1000 ] || lose "an end within a second"
    elif [ "$status" -ne 0 ]; then
        lose "the session beside a hung disk"
    fi
    echo "sessions beside a hung disk: $count"
}

hung_buses() {
    count=1
    "$here/hung_buses.sh" || lose "the session beside hung buses"
    echo "sessions beside hung buses: $count"
}

showings() {
    local photo
    begin
    printf '{"q": "A line.", "a": "B"}' >"$work/quote"
    photo=$(find "$tests/../resources/Backgrounds" -name '*.jpg' | sort | head -n 1)
    settings "{\"dismissSeconds\": 600, \"quoteSourceURL\": \"$work/quote\",
        \"backgroundImagePath\": \"$(readlink -f "$photo")\"}"
    launch
    measure
    for ((count = 0; count < 1000; count++)); do
        show || lose "a showing"
        close_it
    done
    echo "showings: $count"
    report
}

case "${1:-}" in
servers | photos | kills | sleeps | disk_full | hung_disk | hung_buses | showings) "$1" ;;
*) die "there is no stage ${1:-}" ;;
esac
echo "lost: $lost"
[ "$lost" -eq 0 ]
exit
