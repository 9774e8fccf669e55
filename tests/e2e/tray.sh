#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# The status item: without a host, with a host that comes late, that restarts,
# or that is there from the start.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

host() { /usr/bin/python3 "$here/notifierhost.py" "$@"; }
start_host() {
    rm -f "$work/host.log" # of an earlier host
    start host /usr/bin/python3 "$here/notifierhost.py" serve
    host_pid=$last
    until_true 60 grep -q serving "$work/host.log" || die "no tray host"
}
has_item() { grep -q '^item' "$work/host.log"; }

start_x 640x480
start_manager openbox
start_session_bus
settings '{"dismissSeconds": 600}'
start app "$MORROWLEAF" --settings
app=$last
must "it runs without a tray" xdotool search --onlyvisible --name '^Morrowleaf Settings$'
settle
start_host
must "an item comes with a late host" has_item
host props >"$work/props.log" 2>&1
check "it is called Morrowleaf" grep -qE '^(Title|ToolTip|Id) = .*[Mm]orrowleaf' "$work/props.log"
host menu >"$work/menu.log" 2>&1
cat >"$work/wanted.log" <<'EOF'
Show Today's Quote|Control+S
Edit Appearance…|Control+E
Settings…|Control+,
separator
Quit|Control+Q
EOF
cat "$work/menu.log"
check "the menu has its four entries" diff -i "$work/wanted.log" "$work/menu.log"

stop "$host_pid"
settle
start_host
must "a restarted host gets the item again" has_item

host click "Show Today's Quote"
must "the first entry shows the quotation" opened_since 0
xdotool key Escape
must "which Escape closes" is_gone
host click "Edit Appearance…"
must "the second opens the editor" opened_since 1
must "which has the keyboard" focus_is Morrowleaf
xdotool key a
outlast_fade
check "which other keys leave open" is_shown
shot editor
xdotool key Escape
must "and Escape closes" is_gone
# Activated first: keys sent to the window itself would stay pressed when it
# closes.
xdotool windowactivate --sync "$(xdotool search --onlyvisible --name '^Morrowleaf Settings$')"
xdotool key alt+F4
must "the settings window can be closed" \
    not xdotool search --onlyvisible --name '^Morrowleaf Settings$'
check "and the program stays" kill -0 "$app"
host click "Settings…"
must "the third opens the settings" xdotool search --onlyvisible --name '^Morrowleaf Settings$'
settle
shot settings
# The menu is a window of the program in addition to the settings window.
windows() { xdotool search --onlyvisible --class morrowleaf | wc -l; }
alone=$(windows)
menu_open() { [ "$(windows)" -gt "$alone" ]; }
check "no menu is open" not menu_open
host activate
must "a left click opens the menu" menu_open
shot menu
xdotool key Escape
must "Escape closes it" not menu_open

symbol_is() {
    host props >"$work/props.log" 2>&1
    grep -qE "^IconPixmap = .*\(22, 22, $1\)" "$work/props.log"
}
must "the symbol is dark on a light desktop" symbol_is '[0-5]?[0-9]'
if [ -n "${E2E_DESKTOP:-}" ]; then
    gsettings set org.gnome.desktop.interface color-scheme prefer-dark
else
    start portal /usr/bin/python3 "$here/portal.py" serve 2
    until_true 60 grep -q serving "$work/portal.log" || die "no portal"
    /usr/bin/python3 "$here/portal.py" scheme 1
fi
must "and light when it turns dark" symbol_is '2[0-9][0-9]'

stop "$bus_pid"
check "the program outlives the bus" kill -0 "$app"
rm -f "$work/run/bus"
start_session_bus
start_host
must "on a bus that comes back it has an item again" has_item
n=$(maps)
check "a second launch finds it there" timeout 60 "$MORROWLEAF"
must "and shows the quotation in it" opened_since "$n"
xdotool key Escape
must "once" is_gone
check "without another" mapped_times $((n + 1))
check "it is still the first" kill -0 "$app"

host click "Quit"
must "the last ends it" not kill -0 "$app"
wait "$app"
check "with status 0" test $? -eq 0

stop "$host_pid"
start_host
n=$(maps)
start app "$MORROWLEAF"
app=$last
must "a host that is there from the start gets an item" has_item
must "beside the launch's showing" opened_since "$n"
xdotool key Escape
must "which Escape closes" is_gone
host menu >"$work/menu.log" 2>&1
check "with the same menu" diff -i "$work/wanted.log" "$work/menu.log"
host click "Show Today's Quote"
must "that works" opened_since $((n + 1))
kill -TERM "$app"
wait "$app"
check "it ends with status 0" test $? -eq 0
finish
