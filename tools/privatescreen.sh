# shellcheck shell=bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# For sourcing: a private virtual screen with a window manager, a compositor, a session
# bus and a home of its own, and a clock of the program that advances only from picture
# to picture, so that the pictures show the same instants on any machine.
#   screen (1512x982)   the size of the virtual screen, if set before

work=$(mktemp -d)
pids=()

cleanup() {
    local i
    for ((i = ${#pids[@]} - 1; i >= 0; i--)); do
        kill "${pids[i]}" 2>/dev/null || true
        until_true 5 ended "${pids[i]}" || kill -9 "${pids[i]}" 2>/dev/null || true
    done
    rm -rf "$work"
}
ended() { ! kill -0 "$1"; }
trap cleanup EXIT
trap 'exit 1' INT TERM

die() {
    printf '%s\n' "$*" >&2
    tail -n 20 "$work"/*.log >&2 || true
    exit 1
}

start() {
    local name=$1
    shift
    "$@" >"$work/$name.log" 2>&1 &
    pids+=($!)
}

# until_true SECONDS COMMAND...
until_true() {
    local end=$((SECONDS + $1))
    shift
    until "$@" >/dev/null 2>&1; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.02
    done
}

export HOME=$work/home XDG_RUNTIME_DIR=$work/run
export XDG_CONFIG_HOME=$HOME/.config XDG_DATA_HOME=$HOME/.local/share XDG_CACHE_HOME=$HOME/.cache
mkdir -p "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$XDG_CACHE_HOME"
mkdir -m 700 "$XDG_RUNTIME_DIR"
unset WAYLAND_DISPLAY QT_QPA_PLATFORM XDG_SESSION_ID XDG_SESSION_TYPE
export NO_AT_BRIDGE=1

start bus dbus-daemon --session --nofork --nopidfile --address="unix:path=$work/run/bus"
until_true 20 test -S "$work/run/bus" || die "There is no session bus."
export DBUS_SESSION_BUS_ADDRESS=unix:path=$work/run/bus

start xvfb Xvfb -displayfd 7 -screen 0 "${screen:-1512x982}x24" -nolisten tcp -noreset 7>"$work/display"
until_true 20 test -s "$work/display" || die "The virtual screen does not start."
DISPLAY=:$(cat "$work/display")
export DISPLAY
until_true 20 xdpyinfo || die "The virtual screen does not answer."
start manager openbox
until_true 20 sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id"' ||
    die "The window manager does not start."
start compositor picom --backend xrender --config /dev/null
# It has taken over once it has drawn the desktop.
desktop_is_drawn() { ! import -silent -window root -resize 1x1 txt:- | grep -q black; }
until_true 20 desktop_is_drawn || die "The compositor does not start."

window() { xdotool search --onlyvisible --class '^morrowleaf$'; }
gone() { ! window; }

# It begins at the machine's own time, by which the system ends waits for an instant.
milliseconds=$(python3 -c 'import time; print(time.monotonic_ns() // 1_000_000)')
set_clock() {
    perl -e 'print pack("q", shift() * 1_000_000)' "$milliseconds" |
        dd of="$work/clock" conv=notrunc status=none
}
named() {
    dbus-send --session --print-reply --dest=org.freedesktop.DBus / \
        org.freedesktop.DBus.NameHasOwner string:org.morrowleaf.Morrowleaf | grep -q true
}
# Returns when the program has fired the timers that were due: its main thread
# answers a call, and the second answer comes from a later turn of its event loop.
follow() {
    local answer
    for _ in 1 2; do
        answer=$(dbus-send --session --print-reply --dest=org.morrowleaf.Morrowleaf \
            /org/morrowleaf/Morrowleaf org.freedesktop.Application.NoSuchMethod 2>&1) || true
        [[ $answer == *UnknownMethod* ]] || die "The program does not answer: $answer"
    done
}
# advance MILLISECONDS: lets that time pass for the program, in frames
advance() {
    local end=$((milliseconds + $1)) frame=50
    while [ "$milliseconds" -lt "$end" ]; do
        milliseconds=$((milliseconds + frame))
        set_clock
        follow
    done
}
# shot NAME: takes pictures until two in a row are the same, since the compositor
# draws a little later than the program
shot() {
    local tries=0
    import -silent -window root "$work/$1.ppm"
    until
        mv "$work/$1.ppm" "$work/before"
        import -silent -window root "$work/$1.ppm"
        cmp -s "$work/before" "$work/$1.ppm"
    do
        tries=$((tries + 1))
        [ "$tries" -lt 50 ] || die "The picture $1 does not come to rest."
    done
}

# launch CLOCK PROGRAM [ARGUMENT...]: starts it with the library of steppedclock.cpp
launch() {
    local clock=$1
    shift
    # The runtime of the address sanitizer insists on being the first library.
    start morrowleaf env LD_PRELOAD="$clock" STEPPED_CLOCK="$work/clock" \
        ASAN_OPTIONS="verify_asan_link_order=0:${ASAN_OPTIONS:-}" "$@"
    until_true 60 window || die "No window appears."
    until_true 60 named || die "The program does not come to the session bus."
}

set_clock
