#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# What closes a showing and what does not, and who grabs keyboard and mouse.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"
. "$here/logind.sh"

start_x 640x480
start_manager openbox
start_session_bus
start_system_bus
start_logind
settings '{"dismissSeconds": 600}'
# A key that the keyboard lacks would be mapped for a moment only, and a busy
# program could learn of it too late.
foreign=(dead_acute Multi_key ISO_Level5_Shift Mode_switch ISO_Next_Group Hyper_L Meta_L)
for key in "${foreign[@]}"; do
    free=$(xmodmap -pke | awk 'NF == 3 {code = $2} END {print code}')
    xmodmap -e "keycode $free = $key" || die "no key $key"
done
put_window typing '#ffff00' 50 50 200 200
start app "$MORROWLEAF"
app=$last
must "a launch shows the quotation" opened_since 0
show_again() {
    local n
    n=$(maps)
    "$MORROWLEAF"
    must "it shows again" opened_since "$n"
}
stays() { outlast_fade && is_shown; }

xdotool key Shift_L key Control_L key Alt_L key Super_L key Hyper_L key Meta_L \
    key Caps_Lock key Caps_Lock key Num_Lock key Num_Lock key Scroll_Lock
check "modifiers and locks leave it" stays
xdotool key ISO_Level3_Shift key ISO_Level5_Shift key Mode_switch key ISO_Next_Group
check "shifts of further levels leave it" stays
xdotool key XF86AudioRaiseVolume key XF86AudioMute key XF86AudioPlay \
    key XF86MonBrightnessUp key XF86KbdBrightnessDown key XF86WakeUp key XF86RFKill
check "keys that work the machine leave it" stays
xdotool mousemove 300 300 click 2 click 4 click 5 click 8 mousemove 20 20
check "the middle button, the wheel and the mouse's way leave it" stays
for key in dead_acute Multi_key F5 Print Tab space KP_Enter ctrl+q alt+F4; do
    settle
    xdotool key "$key"
    must "$key closes it" is_gone
    show_again
done
check "none of them ended the program" kill -0 "$app"
xdotool key Escape
must "nor Escape" is_gone

# A full-screen game that grabs keyboard and mouse.
put_window game '#00ff00' 0 0 640 480 grabbing
game=$last
until_true 60 grep -q grabbed "$work/window-game.log" || die "no grab"
show_again
xdotool key w
must "a key goes to whom holds the keyboard" grep -q '^key w' "$work/window-game.log"
check "and leaves the quotation" stays
stop "$game"
held_again() {
    xdotool key w
    until_true 2 is_gone
}
must "let go of, it closes it" held_again
check "and no window below has had the key" not grep -q '^key w' "$work/window-typing.log"

# A screen locker must be able to take the grabs of the quotation.
sleeps() {
    call_login -o /org/freedesktop/login1 -m "$mock.EmitSignal" "$login.Manager" PrepareForSleep b \
        '[<true>]' >/dev/null
}
lock() { session_call c1 "$mock.EmitSignal" "$login.Session" Lock '' '[]'; }
refused() { [ "$(grep -c refused "$work/window-$name.log")" -ge "$1" ]; }
for leaving in lock sleeps "set_hint true"; do
    name=locker-${leaving%% *}
    put_window "$name" '#00ff00' 0 0 640 480 grabbing "$work/$name.asks"
    locker=$last
    show_again
    settle
    touch "$work/$name.asks"
    must "a locker asks for the keyboard in vain" refused 3
    check "just after it appeared nobody else holds the keyboard" \
        not grep -q grabbed "$work/window-$name.log"
    $leaving
    must "at '$leaving' a locker can" grep -q grabbed "$work/window-$name.log"
    check "with the quotation still there" is_shown
    xdotool key w
    must "it gets the keys" grep -q '^key w' "$work/window-$name.log"
    stop "$locker"
    xdotool mousemove 300 300 click 1
    must "a click closes it" is_gone
done
set_hint false

# Nor does one that nobody announces have to wait until the quotation is closed, and still
# no key goes to a window that takes the focus.
put_window waiting '#00ff00' 0 0 640 480 grabbing "$work/waiting.asks"
locker=$last
show_again
touch "$work/waiting.asks"
must "a locker that goes on asking gets the keyboard" grep -q grabbed "$work/window-waiting.log"
check "with the quotation still there" is_shown
stop "$locker"
put_window newcomer '#00ff00' 0 0 640 480
newcomer=$last
must "a new window takes the focus" focus_is newcomer
xdotool key w
must "a key still closes the quotation" is_gone
check "and does not go to the window" not grep -q '^key w' "$work/window-newcomer.log"
stop "$newcomer"

# Nor in the editor, which takes the keyboard from a window that has the focus.
put_window latecomer '#00ff00' 0 0 640 480 grabbing "$work/latecomer.asks"
locker=$last
gdbus call --session -d org.morrowleaf.Morrowleaf -o /org/morrowleaf/Morrowleaf \
    -m org.freedesktop.Application.ActivateAction edit-appearance '[]' '{}' >/dev/null
must "the editor opens" is_shown
must "with the keyboard" focus_is Morrowleaf
put_window other '#00ff00' 0 0 640 480
other=$last
must "another window takes the focus" grep -q '^active' "$work/window-other.log"
must "and the editor takes it back" focus_is Morrowleaf
touch "$work/latecomer.asks"
must "a locker that goes on asking gets the keyboard" grep -q grabbed "$work/window-latecomer.log"
check "with the editor still there" is_shown
stop "$locker"
stop "$other"
must "the editor has the keyboard" focus_is Morrowleaf
xdotool key Escape
must "and Escape closes it" is_gone

# The settings window comes to the front even while the user types elsewhere.
xdotool windowactivate --sync "$(xdotool search --name '^typing$')" type --delay 40 abc
"$MORROWLEAF" --settings
must "the settings come to the front" focus_is "Morrowleaf Settings"
xdotool windowactivate --sync "$(xdotool search --name '^typing$')" type --delay 40 abc
must "the window is left again" focus_is typing
"$MORROWLEAF" --settings
must "and they come to the front again" focus_is "Morrowleaf Settings"

# The text field has an input method, which keeps dead and Compose keys to itself.
press_tab() { xdotool key --delay 50 Tab; }
for _ in 1 2 3 4 5; do press_tab; done
composed() { grep -q "\"quoteSourceURL\": *\"$1\"" "$settings_file"; }
xdotool key --delay 50 dead_acute e
must "a text field composes letters" composed é
for key in dead_acute Multi_key; do
    show_again
    settle
    xdotool key "$key"
    must "beside it $key closes the quotation" is_gone
done
must "the settings have the keyboard again" focus_is "Morrowleaf Settings"
xdotool key --delay 50 dead_acute e
must "with nothing half composed" composed éé
finish
