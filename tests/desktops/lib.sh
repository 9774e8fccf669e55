# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# shellcheck shell=bash disable=SC2034,SC2154
# Functions for walks through real desktops. A script of a desktop sources this file and
# defines what differs; walk.sh does the same on all of them. PREFIX is where the program is
# installed, SNAPSHOT and E2E_WINDOW are programs of the build, OUT keeps pictures, logs and
# ticks.
desks=$(dirname "${BASH_SOURCE[0]}")
here=$desks/../e2e
# shellcheck source=../e2e/lib.sh
. "$here/lib.sh"
# shellcheck source=../e2e/logind.sh
. "$here/logind.sh"
id=org.morrowleaf.Morrowleaf

# Unlike a session of its own, a desktop has the files and themes of the machine.
unset FONTCONFIG_FILE QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE QT_IM_MODULE
export XDG_DATA_DIRS=$PREFIX/share:/usr/local/share:/usr/share XDG_CONFIG_DIRS=/etc/xdg
export PATH=$PREFIX/bin:/usr/local/bin:/usr/bin:/bin:/usr/sbin LANG=C.UTF-8
export LIBGL_ALWAYS_SOFTWARE=1 XDG_SEAT=seat0 XDG_SESSION_CLASS=user
# The walk finds controls by the accessibility bus, which the session bus starts.
unset NO_AT_BRIDGE
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
export USER=${USER:-nobody} SHELL=/bin/sh
export LOGNAME=$USER

keep_and_clean() {
    cp "$work"/*.log "$OUT" 2>/dev/null
    end_strangers
    cleanup
}
# What a desktop has started itself has no pid here: it is known by the folder in its
# environment.
strangers() {
    local process
    for process in /proc/[0-9]*; do
        if [ -O "$process" ] &&
            tr '\0' '\n' <"$process/environ" | grep -qx "XDG_RUNTIME_DIR=$XDG_RUNTIME_DIR"; then
            echo "${process#/proc/}"
        fi
    done 2>/dev/null
}
end_strangers() {
    local signal
    for signal in TERM KILL; do
        # shellcheck disable=SC2046
        kill -$signal $(strangers) 2>/dev/null
        [ $signal = KILL ] || sleep 1
    done
}
trap keep_and_clean EXIT

# tick BEHAVIOUR SENTENCE COMMAND...: one cell of the table gets a check; it is ticked if
# all of its checks pass. A command has a minute, and three attempts on a machine that is
# so busy that a minute is not enough for them.
tick() {
    local cell=$1 what=$2
    shift 2
    if until_true 60 "$@" || once "$@" || once "$@"; then
        record "$cell" ok "$what"
    else
        record "$cell" failed "$what"
    fi
}
# now BEHAVIOUR SENTENCE COMMAND...: the same, but the command must succeed at once
now() {
    local cell=$1 what=$2
    shift 2
    if once "$@"; then record "$cell" ok "$what"; else record "$cell" failed "$what"; fi
}
once() { "$@" >/dev/null 2>&1; }
# record CELL ok|failed SENTENCE
record() {
    echo "$1|$2|$3" >>"$OUT/ticks"
    if [ "$2" = ok ]; then
        echo "ok: $1: $3"
    else
        fail "$1: $3"
        outside_shot "failed-$(grep -c '|failed|' "$OUT/ticks")-$1"
    fi
}
# cannot BEHAVIOUR REASON: the desktop has no such thing
cannot() {
    echo "cannot: $1: $2"
    echo "$1|cannot|$2" >>"$OUT/ticks"
}

# The display that shows the whole desktop; that of the session may be another.
start_outside() {
    Xvfb -displayfd 7 -screen 0 "${1}x24" -nolisten tcp -noreset +extension GLX \
        7>"$work/display" >"$work/xvfb.log" 2>&1 &
    pids+=("$!")
    until_true 60 test -s "$work/display" || die "no X server"
    outside=:$(cat "$work/display")
    until_true 60 env DISPLAY="$outside" xdpyinfo || die "no X server"
}
# With little compression, which takes most of the time of a picture.
outside_shot() { DISPLAY=$outside import -window root -quality 11 "$OUT/$1.png"; }
shot() { outside_shot "$@"; }
keys() { DISPLAY=$outside xdotool key --delay 30 "$@"; }
mouse() { DISPLAY=$outside xdotool mousemove "$1" "$2"; }
click_at() { DISPLAY=$outside xdotool mousemove "$1" "$2" sleep 0.2 click "${3:-1}"; }

look() { /usr/bin/python3 "$desks/look.py" "$@"; }

# start_buses: both buses, a login manager with this session
start_buses() {
    start_system_bus
    start_logind
    # Plasma's locker asks for its session by this name, which the mock does not know.
    until_true 60 add_session auto "$(id -u)"
    start_display_manager
    start bus dbus-daemon --session --nofork --nopidfile --address="unix:path=$work/run/bus"
    export DBUS_SESSION_BUS_ADDRESS=unix:path=$work/run/bus
    until_true 60 answers_on --session || die "no session bus"
}
# GNOME's shell locks the screen only beside a display manager.
start_display_manager() {
    start gdm /usr/bin/python3 -m dbusmock --system org.gnome.DisplayManager \
        /org/gnome/DisplayManager/Manager org.gnome.DisplayManager.Manager
    until_true 60 gdbus call --system -d org.gnome.DisplayManager \
        -o /org/gnome/DisplayManager/Manager -m $mock.AddProperty \
        org.gnome.DisplayManager.Manager Version "<'43.0'>" || die "no display manager"
}
# tell_services VARIABLE...: passes variables on to what the bus starts
tell_services() {
    dbus-update-activation-environment XDG_DATA_DIRS XDG_RUNTIME_DIR PATH "$@" >/dev/null
}

# A desktop with one strong colour on its left and another on its right.
make_wallpaper() {
    convert -size 64x72 xc:'#20a040' xc:'#a02060' +append -scale 1280x720! "$work/wall.png"
    chmod a+r "$work/wall.png"
}
