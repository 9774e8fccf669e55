#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# GNOME on Wayland; once more with MONITORS=2.
. "$(dirname "$0")/lib.sh"
monitors=${MONITORS:-1}
# The shell offers twice the scale only where 800 × 480 points are left.
[ "$monitors" = 2 ] || size=1600x960
. "$desks/walk.sh"
. "$desks/gnome.sh"

points=$size ratio=1
make_wallpaper
start_outside "$((width * monitors))x$height"
start_buses
prepare_gnome wayland
export MUTTER_DEBUG_DUMMY_MODE_SPECS=$size MUTTER_DEBUG_NUM_DUMMY_MONITORS=$monitors
# What the shell starts looks for its display when that has begun to listen.
WAYLAND_DISPLAY=desk tell_services WAYLAND_DISPLAY
DISPLAY=$outside start shell gnome-shell --nested --wayland --wayland-display=desk --unsafe-mode
until_true 60 test -S "$XDG_RUNTIME_DIR/desk" || die "no compositor"
until_true 60 shell_is_ready || die "the shell does not start"
export WAYLAND_DISPLAY=desk
DISPLAY=$(grep -o 'public X11 display :[0-9]*' "$work/shell.log" | grep -o ':[0-9]*')
XAUTHORITY=$(ls "$XDG_RUNTIME_DIR"/.mutter-Xwaylandauth.* | head -1)
export DISPLAY XAUTHORITY
tell_services DISPLAY WAYLAND_DISPLAY XAUTHORITY XDG_CURRENT_DESKTOP XDG_SESSION_TYPE
# The shell has already started the portals, without knowing the display of X11.
for process in $(strangers); do
    case $(cat "/proc/$process/comm") in xdg-desktop-por*) kill "$process" ;; esac
done
allow_animations
start xsettings /usr/libexec/gsd-xsettings
must "the overview is open" overview_is_open

double_scale() {
    local serial
    serial=$(display_config GetCurrentState | grep -o 'uint32 [0-9]*' | head -1)
    display_config ApplyMonitorsConfig "$serial" 1 \
        "[(0, 0, 2.0, uint32 0, true, [($(display_config GetCurrentState |
            grep -o "('[^']*', '[^']*', '[^']*', '[^']*'), \[('[^']*'" |
            sed "s/^(\('[^']*'\).*\[(\('.*'\)/\1, \2/"), @a{sv} {})])]" '{}' >/dev/null
}
display_config() {
    gdbus call --session -d org.gnome.Mutter.DisplayConfig -o /org/gnome/Mutter/DisplayConfig \
        -m "org.gnome.Mutter.DisplayConfig.$1" "${@:2}"
}

monitor_place() { echo "$(($1 * width)),0,$width,$height"; }
use_monitor() {
    in_shell "global.get_window_actors().map(a => a.meta_window).filter(
        w => w.title == 'below').forEach(w => w.move_to_monitor($1))" >/dev/null
    activate_window below
    must "the pointer is there" points_at "$1"
}
# A nested shell mistakes the first motion of the pointer.
points_at() {
    mouse "$(($1 * width + 300 + RANDOM % 9))" 300
    sleep 0.5
    shell_says 'global.display.get_current_monitor()' "$1"
}
if [ "$monitors" = 2 ]; then
    walk_monitors_alone
fi
walk_login
close_overview
# A nested shell mistakes the place of the first click.
for place in 300 400; do
    sleep 1
    click_at "$place" "$((height - 60))"
done
walk_all
if [ -z "${WALK:-}" ]; then
    MONITORS=2 "$0" || fail "two monitors"
fi
end_walk
