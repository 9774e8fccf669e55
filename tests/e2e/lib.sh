# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# shellcheck shell=bash disable=SC2034,SC2154
# Functions for tests that run the program in a private session. A script
# sources this file, starts what it needs and calls the checks; everything it
# has started ends with the script. E2E_KEEP names a folder that keeps the
# pictures.
set -u

# Nothing of the desktop that this machine may have reaches a session: no
# variable of it, no service that a bus could start, no theme, and no typeface
# but those in the folders of DejaVu and Noto. With E2E_DESKTOP set, the machine's
# portal, input method, platform theme and typefaces are on instead.
while read -r name; do
    unset "$name"
done < <(compgen -e | grep -E '^(XDG|QT|GTK|GDK|GIO|GNOME|KDE|DESKTOP|IBUS|WAYLAND|SWAY|WLR|AT_SPI)')
unset DISPLAY XAUTHORITY DBUS_SESSION_BUS_ADDRESS SESSION_MANAGER XMODIFIERS XCOMPOSEFILE LANGUAGE

work=$(mktemp -d)
chmod 755 "$work"
pids=()
failures=0
export HOME=$work/home XDG_RUNTIME_DIR=$work/run
export XDG_CONFIG_HOME=$HOME/.config XDG_DATA_HOME=$HOME/.local/share XDG_CACHE_HOME=$HOME/.cache
mkdir -p "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$XDG_CACHE_HOME"
mkdir -m 700 "$XDG_RUNTIME_DIR"

# The window managers look for their own files in these folders.
export XDG_DATA_DIRS=$work/share XDG_CONFIG_DIRS=$work/xdg
mkdir -p "$XDG_DATA_DIRS/themes" "$XDG_CONFIG_DIRS"
ln -s /usr/share/themes/{Clearlooks,Default} "$XDG_DATA_DIRS/themes"
ln -s /etc/xdg/{openbox,xfce4} "$XDG_CONFIG_DIRS"
# Without these the accessibility bus and the toolkit of other desktops abort.
ln -s /usr/share/glib-2.0 /usr/share/mime "$XDG_DATA_DIRS"
export FONTCONFIG_FILE=$work/fonts.conf
cat >"$FONTCONFIG_FILE" <<'EOF'
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig>
<dir>/usr/share/fonts/truetype/dejavu</dir><dir>/usr/share/fonts/truetype/noto</dir>
<include>/usr/share/fontconfig/conf.avail/45-generic.conf</include>
<include>/usr/share/fontconfig/conf.avail/45-latin.conf</include>
<include>/usr/share/fontconfig/conf.avail/49-sansserif.conf</include>
<include>/usr/share/fontconfig/conf.avail/60-generic.conf</include>
<include>/usr/share/fontconfig/conf.avail/60-latin.conf</include>
<cachedir>/var/cache/fontconfig</cachedir><cachedir prefix="xdg">fontconfig</cachedir>
</fontconfig>
EOF
export QT_IM_MODULE=compose QT_QPA_PLATFORMTHEME=generic QT_STYLE_OVERRIDE=Fusion
if [ -n "${E2E_DESKTOP:-}" ]; then
    unset FONTCONFIG_FILE QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME
    export XDG_DATA_DIRS=/usr/local/share:/usr/share XDG_CONFIG_DIRS=/etc/xdg
    export XDG_CURRENT_DESKTOP=GNOME
    export QT_IM_MODULE=ibus GTK_IM_MODULE=ibus XMODIFIERS=@im=ibus
fi
# Keeps the tests away from the machine's own bus.
export DBUS_SYSTEM_BUS_ADDRESS=unix:path=$work/run/no-system-bus
export NO_AT_BRIDGE=1 LC_ALL=C.UTF-8
# A program built with sanitizers reports to files, because it writes nothing to
# standard error; a report fails the session.
export ASAN_OPTIONS=log_path=$work/sanitizer:${ASAN_OPTIONS:-}
export UBSAN_OPTIONS=print_stacktrace=1:log_path=$work/sanitizer:${UBSAN_OPTIONS:-}

cleanup() {
    local status=$? i
    for ((i = ${#pids[@]} - 1; i >= 0; i--)); do kill "${pids[i]}" 2>/dev/null; done
    for ((i = ${#pids[@]} - 1; i >= 0; i--)); do
        until_true 2 not kill -0 "${pids[i]}"
        kill -9 "${pids[i]}" 2>/dev/null
    done
    wait 2>/dev/null
    if [ -n "${E2E_KEEP:-}" ]; then cp "$work"/*.png "$work"/*.log "$E2E_KEEP" 2>/dev/null; fi
    if compgen -G "$work/sanitizer.*" >/dev/null; then
        echo "FAILED: a sanitizer has found something"
        cat "$work"/sanitizer.*
        status=1
    fi
    rm -rf "$work"
    exit $status
}
trap cleanup EXIT
trap 'exit 1' INT TERM

# start NAME COMMAND...: runs it in the background, output to NAME.log, pid in
# $last
start() {
    local name=$1
    shift
    "$@" >"$work/$name.log" 2>&1 &
    last=$!
    pids+=("$last")
}

# stop PID: ends a started process and waits for its end
stop() {
    kill "$1"
    wait "$1"
}

# has_ended PID: also if nobody has asked for its status, as for an orphan in a container
has_ended() { ! grep -qs '^State:[[:space:]]*[^Z[:space:]]' "/proc/$1/status"; }

# until_true SECONDS COMMAND...: repeats the command until it succeeds; fails
# after that time
until_true() {
    local end=$((${EPOCHREALTIME/./} + ${1%.*} * 1000000))
    shift
    until "$@" >/dev/null 2>&1; do
        [ "${EPOCHREALTIME/./}" -lt "$end" ] || return 1
        sleep 0.03
    done
}

fail() {
    echo "FAILED: $*"
    failures=$((failures + 1))
}
# must SENTENCE COMMAND...: the command must succeed within a minute
must() {
    local what=$1
    shift
    if until_true 60 "$@"; then echo "ok: $what"; else fail "$what"; fi
}
# check SENTENCE COMMAND...: the command must succeed now
check() {
    local what=$1
    shift
    if "$@" >/dev/null 2>&1; then echo "ok: $what"; else fail "$what"; fi
}
not() { ! "$@"; }
die() {
    echo "CANNOT TEST: $*"
    exit 1
}
finish() {
    [ "$failures" -eq 0 ] || exit 1
    exit 0
}

settings_file=$XDG_CONFIG_HOME/morrowleaf/settings.json
settings() {
    mkdir -p "$XDG_CONFIG_HOME/morrowleaf"
    printf '%s' "$1" >"$settings_file"
}
# change_settings JSON: writes the settings and waits until the program, on a
# session bus, has read them; waits a second if the file system records no
# access times
change_settings() {
    settings "$1"
    until_true 1 settings_are_read
    settle
}
settings_are_read() { [ "$(stat -c %.9X "$settings_file")" \> "$(stat -c %.9Y "$settings_file")" ]; }

# settle: waits until the program has handled all messages that the buses have
# for it and has requested the windows that follow from them. What has not
# happened by then is not a consequence of earlier steps.
settle() {
    /usr/bin/python3 "$here/marker.py" || fail "the program answers on the bus"
    if [ -s "$work/mapwatch.log" ]; then mark_display; fi
}
# A closed window leaves the screen at the end of a fade of 0.45 s.
outlast_fade() {
    settle
    sleep 0.6
    settle
}
milliseconds() { echo $((${EPOCHREALTIME/./} / 1000)); }
# outlast_throttle INSTANT: waits until eight seconds after INSTANT, in
# milliseconds
outlast_throttle() {
    local left=$(($1 + 8100 - $(milliseconds)))
    [ "$left" -le 0 ] || sleep "$((left / 1000)).$(printf %03d $((left % 1000)))"
}

# answers_on --session|--system
answers_on() {
    gdbus call "$1" -d org.freedesktop.DBus -o /org/freedesktop/DBus \
        -m org.freedesktop.DBus.GetId
}

start_session_bus() {
    local config=/usr/share/dbus-1/session.conf
    if [ -z "${E2E_DESKTOP:-}" ]; then
        config=$work/session.conf
        cat >"$config" <<EOF
<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>session</type><auth>EXTERNAL</auth><listen>unix:path=$work/run/bus</listen>
<servicedir>$XDG_DATA_HOME/dbus-1/services</servicedir>
<policy context="default"><allow send_destination="*" eavesdrop="true"/>
<allow eavesdrop="true"/><allow own="*"/></policy>
<limit name="service_start_timeout">120000</limit></busconfig>
EOF
    fi
    start bus dbus-daemon --config-file="$config" --nofork --nopidfile \
        --address="unix:path=$work/run/bus"
    bus_pid=$last
    export DBUS_SESSION_BUS_ADDRESS=unix:path=$work/run/bus
    until_true 60 answers_on --session || die "no session bus"
    if [ -n "${E2E_DESKTOP:-}" ]; then
        start ibus ibus-daemon --panel disable
        until_true 60 ibus engine xkb:us::eng || die "no input method"
    fi
}

start_system_bus() {
    cat >"$work/system.conf" <<EOF
<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>system</type><listen>unix:path=$work/run/system-bus</listen>
<auth>EXTERNAL</auth><policy context="default"><allow send_destination="*" eavesdrop="true"/>
<allow eavesdrop="true"/><allow own="*"/></policy></busconfig>
EOF
    rm -f "$work/run/system-bus"
    start systembus dbus-daemon --config-file="$work/system.conf" --nofork --nopidfile
    system_bus_pid=$last
    export DBUS_SYSTEM_BUS_ADDRESS=unix:path=$work/run/system-bus
    until_true 60 answers_on --system || die "no system bus"
}
