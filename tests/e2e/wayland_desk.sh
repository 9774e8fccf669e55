#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Outputs that appear late and change, a tray, and starting by the bus on
# Wayland.
here=$(dirname "$0")
if [ "$(id -u)" = 0 ]; then
    exec setpriv --reuid=nobody --regid=nogroup --clear-groups "$0" "$@"
fi
. "$here/lib.sh"
. "$here/sway.sh"
. "$here/logind.sh"
id=org.morrowleaf.Morrowleaf

mkdir -p "$XDG_DATA_HOME/dbus-1/services"
cat >"$XDG_DATA_HOME/dbus-1/services/$id.service" <<EOS
[D-BUS Service]
Name=$id
Exec=/bin/sh -c 'exec env WAYLAND_DEBUG=1 "$MORROWLEAF" 2>"$work/activated.log"'
EOS
start_sway 0
start_session_bus
start_system_bus
start_logind
settings '{"dismissSeconds": 600}'

# The log contains all requests of the program to the compositor.
log=$work/app.log
count() { grep -c "$1" "$log"; }
opened() { count 'get_layer_surface('; }
open_now() { [ $(($(opened) - $(count ' -> zwlr_layer_surface_v1@[0-9]*\.destroy('))) -eq "$1" ]; }
opened_times() { [ "$(opened)" -eq "$1" ]; }
configured() { grep -q "zwlr_layer_surface_v1@[0-9]*\.configure([0-9]*, $1)" "$log"; }
covered() { shot now && [ "$(share now '#206040')" = 0 ]; }
uncovered() { shot now && [ "$(share now '#206040')" = 1 ]; }
close_it() {
    wtype -s 200 -k q
    must "a key closes it" open_now 0
}

WAYLAND_DEBUG=1 start app "$MORROWLEAF"
app=$last
launched=$(milliseconds)
host() { /usr/bin/python3 "$here/notifierhost.py" "$@"; }
start host /usr/bin/python3 "$here/notifierhost.py" serve
must "it runs without any output, with a symbol in the tray" grep -q '^item' "$work/host.log"
check "and shows nothing" opened_times 0
outlast_throttle "$launched" # it counts as a showing
wake
unlock c1
settle
check "nor at a wake" opened_times 0
swaymsg create_output
# A new output is black until it has a background: that alone shows nothing.
must "an output that comes has a showing" open_now 1
must "all over" covered
settle
check "once" opened_times 1

swaymsg output HEADLESS-1 scale 2
must "it follows a change of scale" configured '640, 400'
must "and covers all" covered
swaymsg output HEADLESS-1 scale 1
swaymsg output HEADLESS-1 mode 1024x768
must "it follows a change of resolution" configured '1024, 768'
must "and covers all" covered
check "it is the same showing" opened_times 1
close_it
must "the desktop is back" uncovered

host activate
must "a tray that only activates shows the quotation" covered
check "once" opened_times 2
close_it
host click "Show Today's Quote"
must "so does its menu" opened_times 3
must "all over" covered
close_it
host click "Settings…"
must "which opens the settings" grep -q 'set_title("Morrowleaf Settings")' "$log"
check "and nothing else" opened_times 3
host click "Quit"
must "and quits" not kill -0 "$app"
wait "$app"
check "with status 0" test $? -eq 0

log=$work/activated.log
gdbus call --session -d $id -o /org/morrowleaf/Morrowleaf \
    -m org.freedesktop.Application.ActivateAction settings '[]' '{"activation-token": <"abc">}'
must "the bus starts it for the settings" grep -q 'set_title("Morrowleaf Settings")' "$log"
must "and the token comes along" grep -q 'xdg_activation_v1@[0-9]*\.activate("abc"' "$log"
check "nothing else is shown" opened_times 0
gdbus call --session -d $id -o /org/morrowleaf/Morrowleaf \
    -m org.freedesktop.Application.Activate '{"activation-token": <"def">}'
must "activating shows the quotation" covered
check "once" opened_times 1
close_it
XDG_ACTIVATION_TOKEN=ghi "$MORROWLEAF" --settings
must "a second launch passes its token on" \
    grep -q 'xdg_activation_v1@[0-9]*\.activate("ghi"' "$log"
host click "Quit"
finish
