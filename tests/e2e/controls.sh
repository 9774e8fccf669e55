# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# shellcheck shell=bash disable=SC2034,SC2154
# Functions for tests that press the program's controls with real keys and
# clicks; needs x11.sh. The accessibility bus gives the position and the state
# of a control, the settings file the result.

read_aloud() { /usr/bin/python3 "$here/accessible.py" "$@"; }

# Starts an accessibility bus, and a session bus unless there is one; call it before
# the program starts.
start_reader() {
    [ -n "${DBUS_SESSION_BUS_ADDRESS:-}" ] || start_session_bus
    unset NO_AT_BRIDGE
    export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
    start launcher /usr/libexec/at-spi-bus-launcher --launch-immediately
    until_true 60 dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus \
        org.a11y.Bus.GetAddress || die "no accessibility bus"
}

# reader_address: the socket of the accessibility bus
reader_address() {
    gdbus call --session -d org.a11y.Bus -o /org/a11y/bus -m org.a11y.Bus.GetAddress |
        sed "s/.*unix:path=\([^,']*\).*/\1/"
}

# column ROLE NAME WHICH NUMBER: a column of the WHICHth control with that role
# whose name begins with NAME
column() {
    local place
    place=$(read_aloud place "$1" "$2" "$3") && cut -d'|' -f "$4" <<<"$place"
}
there() { column "$1" "$2" "${3:-1}" 2; }
stands() { column "$1" "$2" "${4:-1}" 3 | grep -qw "$3"; }
# focused ROLE NAME [WHICH], checked ROLE NAME [WHICH]
focused() { stands "$1" "$2" focused "${3:-1}"; }
checked() { stands "$1" "$2" checked "${3:-1}"; }
enabled() { stands "$1" "$2" enabled "${3:-1}"; }

# editor_listens: a control of the editor at the right edge has the keyboard
editor_listens() {
    read_aloud places | awk -F'|' '$3 ~ /focused/ && $4 >= 960 { found = 1 } END { exit !found }'
}

# point ROLE NAME [WHICH [PART]]: moves the mouse to the middle of a control, or
# to another fraction of its width
point() {
    local place x y
    place=$(read_aloud place "$1" "$2" "${3:-1}") || {
        fail "there is no $1 $2"
        return 1
    }
    read -r x y < <(awk -F'|' -v part="${4:-0.5}" '{print int($4 + $6 * part), int($5 + $7 / 2)}' \
        <<<"$place")
    xdotool mousemove "$x" "$y"
}
click_on() { point "$@" && xdotool click 1; }

press() { xdotool key --delay 20 "$@"; }
# tab_to ROLE NAME: presses Tab, which must lead to the control
tab_to() {
    press Tab
    must "Tab leads to $2" focused "$@"
}

# begin_with JSON: writes the settings that the program finds at its start
begin_with() {
    settings "$1"
    printf '%s' "$1" >"$work/expected.json"
}
stored() {
    /usr/bin/python3 "$here/stored.py" "$XDG_CONFIG_HOME/morrowleaf/settings.json" \
        "$work/expected.json" "$@" 2>"$work/stored.last"
}
# keeps SENTENCE [KEY VALUE]...: waits until the settings file has these values
# and all others are unchanged
keeps() {
    local what=$1
    shift
    must "$what" stored "$@" || cat "$work/stored.last"
}

# use_theme_of DESKTOP: sets what tells Qt that programs that start from now on run
# on this desktop, or, with an empty name, on none. Qt's own theme of that name is
# used, except with E2E_DESKTOP: then it is the one that Qt finds on the machine.
use_theme_of() {
    unset XDG_CURRENT_DESKTOP KDE_SESSION_VERSION
    case $1 in
    "") export QT_QPA_PLATFORMTHEME=generic ;;
    KDE) export XDG_CURRENT_DESKTOP=$1 KDE_SESSION_VERSION=5 QT_QPA_PLATFORMTHEME=kde ;;
    *) export XDG_CURRENT_DESKTOP=$1 QT_QPA_PLATFORMTHEME=gnome ;;
    esac
    [ -z "${E2E_DESKTOP:-}" ] || unset QT_QPA_PLATFORMTHEME
}
# has_theme PID: the program has loaded a theme of the machine
has_theme() { grep -q '/platformthemes/' "/proc/$1/maps"; }
# check_theme PID: it has, where it should
check_theme() {
    case ${E2E_DESKTOP:+${XDG_CURRENT_DESKTOP:-}} in
    GNOME | XFCE) check "the theme of the desktop is on" has_theme "$1" ;;
    esac
}
