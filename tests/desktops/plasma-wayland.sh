#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Plasma on Wayland; once more with MONITORS=2.
. "$(dirname "$0")/lib.sh"
. "$desks/walk.sh"
. "$desks/plasma.sh"

points=$size ratio=1
monitors=${MONITORS:-1}
make_wallpaper
start_outside "$((width * monitors))x$height"
start_buses
export XDG_CURRENT_DESKTOP=KDE XDG_SESSION_DESKTOP=KDE XDG_SESSION_TYPE=wayland
export DESKTOP_SESSION=plasmawayland KWIN_WAYLAND_NO_PERMISSION_CHECKS=1
prepare_plasma
# A copy lacks the capability of the installed file, which needs one of the system's own.
cp /usr/bin/kwin_wayland "$work/kwin_wayland"
start kwin "$work/kwin_wayland" --x11-display "$outside" --width "$width" --height "$height" \
    --output-count "$monitors" --xwayland --socket desk
until_true 60 test -S "$XDG_RUNTIME_DIR/desk" || die "no compositor"
export WAYLAND_DISPLAY=desk
has_xwayland() { pgrep -P "$last" Xwayland; }
until_true 30 has_xwayland
DISPLAY=$(pgrep -P "$last" -a Xwayland | grep -o ' :[0-9]*' | tr -d ' ')
XAUTHORITY=$(find "$XDG_RUNTIME_DIR" -name 'xauth_*' | head -1)
export DISPLAY XAUTHORITY
tell_services DISPLAY WAYLAND_DISPLAY XAUTHORITY XDG_CURRENT_DESKTOP XDG_SESSION_TYPE \
    KDE_FULL_SESSION KDE_SESSION_VERSION LIBGL_ALWAYS_SOFTWARE
start_plasma_shell

# in_kwin JAVASCRIPT: the compositor has no other way to be asked
in_kwin() {
    local script=$work/kwin.js number
    echo "$1" >"$script"
    number=$(gdbus call --session -d org.kde.KWin -o /Scripting \
        -m org.kde.kwin.Scripting.loadScript "$script" "walk$RANDOM" | grep -o '[0-9]*')
    gdbus call --session -d org.kde.KWin -o "/$number" -m org.kde.kwin.Script.run >/dev/null
    sleep 0.2
}
focused() {
    in_kwin 'print("ACTIVE " + (workspace.activeClient ? workspace.activeClient.caption : ""));'
    grep -o 'ACTIVE .*' "$work/kwin.log" | tail -1 | sed 's/^ACTIVE //; s/"$//'
}

double_scale() { kscreen-doctor output.1.scale.2; }

monitor_place() { echo "$(($1 * width)),0,$width,$height"; }
use_monitor() {
    must "the window is on monitor $1" moves_to "$1"
    mouse "$(($1 * width + 300))" 600
    sleep 1
}
moves_to() {
    in_kwin "workspace.clientList().filter(c => c.caption == 'below').forEach(c => {
        workspace.sendClientToScreen(c, $1); workspace.activeClient = c; })"
    focus_is below
}
if [ "$monitors" = 2 ]; then
    # Each monitor is a window; they appear in the same place.
    second=$(DISPLAY=$outside xwininfo -root -tree |
        grep -o '0x[0-9a-f]* "KDE Wayland' | sort | tail -1 | cut -d' ' -f1)
    DISPLAY=$outside xdotool windowmove "$second" "$width" 0
    walk_monitors_alone
fi
walk_login
walk_all
if [ -z "${WALK:-}" ]; then
    MONITORS=2 "$0" || fail "two monitors"
fi
end_walk
