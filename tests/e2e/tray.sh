#!/bin/bash
# The status item: without a host, with one that comes late, that restarts, and
# that is there from the start.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

host() { /usr/bin/python3 "$here/notifierhost.py" "$@"; }
start_host() {
    start host /usr/bin/python3 "$here/notifierhost.py" serve
    host_pid=$last
    until_true 30 grep -q serving "$work/host.log" || die "no tray host"
}
has_item() { grep -q '^item' "$work/host.log"; }

start_x 640x480
start_manager openbox
start_session_bus
settings '{"dismissSeconds": 60}'
start app "$MORROWLEAF" --settings
app=$last
must "it runs without a tray" xdotool search --onlyvisible --name '^Morrowleaf Settings$'
sleep 0.5
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

kill "$host_pid"
sleep 0.3
start_host
must "a restarted host gets the item again" has_item

host click "Show Today's Quote"
must "the first entry shows the quotation" opened_since 0
xdotool key Escape
must "which Escape closes" is_gone
host click "Edit Appearance…"
must "the second opens the editor" opened_since 1
sleep 0.7
xdotool key a
sleep 0.7
check "which other keys leave open" is_shown
shot editor
xdotool key Escape
must "and Escape closes" is_gone
xdotool search --name '^Morrowleaf Settings$' windowactivate --sync key alt+F4
must "the settings window can be closed" \
    not xdotool search --onlyvisible --name '^Morrowleaf Settings$'
check "and the program stays" kill -0 "$app"
host click "Settings…"
must "the third opens the settings" xdotool search --onlyvisible --name '^Morrowleaf Settings$'
sleep 0.3
shot settings
host activate
sleep 0.7
shot menu
xdotool key Escape
host click "Quit"
until_true 30 not kill -0 "$app"
wait "$app"
check "the last ends it with status 0" test $? -eq 0
finish
