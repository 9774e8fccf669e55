#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Runs the program through one whole showing on a private virtual screen, with
# a window manager, a compositor, a session bus and a home of its own, and
# leaves pictures of it.
#   showing.sh PROGRAM FOLDER
set -euo pipefail

program=$1
folder=$2
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

start xvfb Xvfb -displayfd 7 -screen 0 1512x982x24 -nolisten tcp -noreset 7>"$work/display"
until_true 20 test -s "$work/display" || die "The virtual screen does not start."
DISPLAY=:$(cat "$work/display")
export DISPLAY
until_true 20 xdpyinfo || die "The virtual screen does not answer."
start manager openbox
until_true 20 sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id"' ||
    die "The window manager does not start."
start compositor picom --backend xrender --config /dev/null
# It has taken over once it has drawn the desktop.
drawn() { ! import -silent -window root -resize 1x1 txt:- | grep -q black; }
until_true 20 drawn || die "The compositor does not start."

window() { xdotool search --onlyvisible --class '^morrowleaf$'; }
gone() { ! window; }
# An uncompressed picture is soon taken.
shot() { import -silent -window root "$work/$1.ppm"; }
brightness() { convert "$work/$1.ppm" -resize '1x1!' -format '%[fx:int(mean*1000)]' info:; }
differs() { shot now && [ "$(brightness now)" != "$desktop" ]; }

shot desktop
desktop=$(brightness desktop)
start morrowleaf "$program"
until_true 60 differs || die "The quote screen does not appear."
shot 1-entrance-a
sleep 0.3
shot 1-entrance-b
sleep 0.6
shot 1-entrance-c
sleep 4
shot 2-whole
xdotool key space
fades=0
while window >/dev/null 2>&1 && [ "$fades" -lt 60 ]; do
    fades=$((fades + 1))
    shot "fade-$fades"
done
until_true 10 gone || die "The quote screen does not go away."
[ "$fades" -gt 0 ] || die "The quote screen went away without fading."

# Of the pictures of the fade the one nearest to its middle.
middle=$((($(brightness 2-whole) + desktop) / 2))
nearest=10000
for ((i = 1; i <= fades; i++)); do
    distance=$(($(brightness "fade-$i") - middle))
    if [ "${distance#-}" -lt "$nearest" ]; then
        nearest=${distance#-}
        cp "$work/fade-$i.ppm" "$work/3-fading-out.ppm"
    fi
done

mkdir -p "$folder"
rm -f "$folder"/showing-*.png
for picture in "$work"/[1-3]-*.ppm; do
    name=showing-$(basename "$picture" .ppm).png
    convert "$picture" "$folder/$name"
    echo "Picture: $folder/$name"
done
montage "$work"/[1-3]-*.ppm -resize 756x -geometry +12+12 -tile 2x -background '#202020' \
    "$folder/showing-sheet.png"
echo "Contact sheet: $folder/showing-sheet.png"
