#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# The settings window under real keys and clicks: after each step the settings
# file holds what the control shows, and nothing else has changed.
#   settings.sh openbox|xfwm4 [DESKTOP]    the name of a desktop whose theme Qt looks up
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"
. "$here/controls.sh"

start_x 1280x1024
start_manager "${1:-openbox}"
start_reader
start server "$here/patientserver.py" "$work/port" "$work/release"
until_true 60 test -s "$work/port" || die "no server"
slow=http://127.0.0.1:$(cat "$work/port")/quote
begin_with '{"screenAnimation": "still", "grainEnabled": false}'
autostart=$XDG_CONFIG_HOME/autostart/org.morrowleaf.Morrowleaf.desktop
frequency() { there "combo box" "Every $1"; }

use_theme_of "${2:-}"
start app "$MORROWLEAF" --settings
app=$last
window() { xdotool search --onlyvisible --name '^Morrowleaf Settings$'; }
must "the settings window opens" window
must "and has the keyboard" focus_is "Morrowleaf Settings"
check_theme "$app"
must "it is a window to a screen reader" there frame "Morrowleaf Settings"
id=$(window | head -1)
put_window Other '#a0a0ff' 0 300 700 700
must "another window takes the keyboard" focus_is Other
shot above
check "and stays below the settings" test "$(convert "$work/above.png" \
    -crop 400x300+60+500 -fill black +opaque '#a0a0ff' -format '%[fx:mean]' info:)" = 0
xdotool windowminimize "$id"
"$MORROWLEAF" --settings
must "asked for again it comes, wherever it was" focus_is "Morrowleaf Settings"
second_workspace() {
    xdotool set_num_desktops 2 set_desktop 1
    [ "$(xdotool get_desktop)" = 1 ]
}
must "there is a second workspace" second_workspace
must "it stays on its workspace" not window
# The window learns a moment later that it has lost the keyboard.
comes_when_asked() { "$MORROWLEAF" --settings && until_true 2 focus_is "Morrowleaf Settings"; }
must "and comes to another that it is asked for on" comes_when_asked
check "it cannot be resized" not sh -c "xprop -id $id _NET_WM_ALLOWED_ACTIONS | grep -q RESIZE"
check "it has an icon" sh -c "xprop -id $id _NET_WM_ICON | grep -q 'Icon (32 x 32)'"
# The window has the position and the size of a frame with its title bar.
frame_is() {
    local left bottom x y height
    IFS=', ' read -r left _ _ bottom < <(xprop -id "$id" _NET_FRAME_EXTENTS | sed 's/.*= //')
    read -r x y height < <(xwininfo -id "$id" | awk '/Absolute upper-left X/ {x = $4}
        /Absolute upper-left Y/ {y = $4} / Height:/ {print x, y, $2}')
    echo "$((x - left)) $((y + height + bottom))"
    [ "$((x - left))" -eq "$1" ] && [ "$((y + height + bottom))" -eq "$2" ]
}
must "it stands 32 points from the left, with its end 400 below the middle" frame_is 32 912

# By keyboard, in visual order.
must "the first control has the keyboard" focused "push button" "Edit Appearance"
press space
must "the button opens the editor" is_shown
must "which takes the keyboard" focus_is Morrowleaf
press Escape
must "Escape ends the editing" is_gone
must "and the settings have the keyboard again" focus_is "Morrowleaf Settings"
tab_to "check box" "Show on wake and unlock"
press space
keeps "the wake switch is stored" showOnWake false
press space
keeps "and goes back" showOnWake true
tab_to "combo box" "Every"
press Home
keeps "six hours are stored" quoteFrequency '"6h"'
press Down
keeps "twelve" quoteFrequency '"12h"'
press Down
keeps "a day" quoteFrequency '"24h"'
press Down
keeps "every time" quoteFrequency '"every"'
press space
press Up Escape
keeps "Escape in the open list changes nothing"
check "nor closes the window" window
press space
press Up Return
keeps "Return in it chooses" quoteFrequency '"24h"'
tab_to slider "Close after"
press Home
keeps "the shortest time is stored" dismissSeconds 5.0
must "and read out" there label 5s
press End
keeps "the longest" dismissSeconds 60.0
press Left Left
keeps "and one in between" dismissSeconds 58.0
must "and read out" there label 58s
tab_to "check box" "Open at login"
press space
must "switched on, the program starts at login" grep -q '^Exec=' "$autostart"
press space
must "switched off, it does not" not test -e "$autostart"
tab_to text "Source URL"
xdotool type --delay 20 '/a b?c=1#d'
keeps "the source is stored as typed" quoteSourceURL '"/a b?c=1#d"'
press ctrl+a BackSpace
keeps "and emptied" quoteSourceURL '""'
tab_to "push button" Presets
preset() { press space "$@" Return; }
# The menu's window while no quotation is shown; screen readers do not list it.
menu() { xdotool search --onlyvisible --class morrowleaf | grep -vx "$id"; }
preset Down
keeps "the first preset" quoteSourceURL '"https://zenquotes.io/api/today"'
preset Down Down
keeps "the second" quoteSourceURL '"https://zenquotes.io/api/random"'
preset Down Down Down
keeps "the third" quoteSourceURL '"https://dummyjson.com/quotes/random"'
preset Up
keeps "the last empties the field" quoteSourceURL '""'
press space
must "a menu opens" menu
press Escape
must "Escape closes the menu" not menu
check "and not the window" window
press shift+Tab
must "back to the field" focused text "Source URL"
xdotool type --delay 5 "$slow"
keeps "the source is stored" quoteSourceURL "\"$slow\""
press Tab
tab_to "push button" Test
press space
must "a test is under way" there "push button" "Testing…"
check "and cannot be begun twice" not enabled "push button" "Testing…"
press space
check "a second press does nothing" is_gone
touch "$work/release"
must "the test tells what it found" \
    there label '“The lamp that is lit for one lights the whole stair.” — A Neighbour'
must "and can be begun again" focused "push button" Test
keeps "a test stores nothing"
check "the source was asked once" test "$(grep -c 'asked for' "$work/server.log")" -eq 1
tab_to "push button" "Show Today's Quote"
press space
must "the quotation is shown" is_shown
must "with the keyboard" focus_is Morrowleaf
press a
must "a key sends it away" is_gone
must "and the settings have the keyboard again" focus_is "Morrowleaf Settings"
keeps "the showing has cached what it loaded" \
    cachedQuoteText '"The lamp that is lit for one lights the whole stair."' \
    cachedQuoteAuthor '"A Neighbour"'
tab_to "push button" Quit
tab_to "push button" "Edit Appearance"
shot settings-keyboard

# Return presses what has the keyboard, as Space does.
press Return
must "Return opens the editor" is_shown
must "which takes the keyboard" focus_is Morrowleaf
press Escape
must "Escape ends the editing" is_gone
must "and the settings have the keyboard again" focus_is "Morrowleaf Settings"
tab_to "check box" "Show on wake and unlock"
press Return
keeps "Return switches off" showOnWake false
press KP_Enter
keeps "and the keypad's Enter on" showOnWake true
tab_to "combo box" "Every"
press Return
must "Return opens the list" there "list item" "Every 12 hours"
press Up Return
keeps "and chooses in it" quoteFrequency '"12h"'
tab_to slider "Close after"
press Return
tab_to "check box" "Open at login"
press Return
must "login by Return" grep -q '^Exec=' "$autostart"
press Return
must "and off" not test -e "$autostart"
tab_to text "Source URL"
press Return
keeps "Return in slider and field changes nothing"
tab_to "push button" Presets
press Return
must "Return opens the menu" menu
press Down Return
keeps "and chooses in it" quoteSourceURL '"https://zenquotes.io/api/today"'

# By mouse.
click_on "push button" "Edit Appearance"
must "the editor opens by mouse" is_shown
must "with the keyboard" focus_is Morrowleaf
press Escape
must "and goes" is_gone
must "and gives the keyboard back" focus_is "Morrowleaf Settings"
click_on "check box" "Show on wake and unlock" 1 0.1
keeps "the wake switch by mouse" showOnWake false
click_on "combo box" "Every"
must "the list opens" there "list item" "Every 12 hours"
click_on "list item" "Every 12 hours"
keeps "a frequency by mouse" quoteFrequency '"12h"'
point slider "Close after" 1 0.02
xdotool mousedown 1
point slider "Close after" 1 0.5
xdotool mouseup 1
keeps "dragged, the time is in the middle" dismissSeconds 30..35
click_on "check box" "Open at login"
must "login by mouse" grep -q '^Exec=' "$autostart"
click_on "check box" "Open at login"
must "and off" not test -e "$autostart"
click_on text "Source URL"
press ctrl+a
xdotool type --delay 5 "$work/quote.json"
keeps "the field by mouse" quoteSourceURL "\"$work/quote.json\""
click_on "push button" Test
must "the mouse tests what is not there" there label "No quote found at that source."
echo '{"quote": "Still waters run deep.", "author": "A Proverb"}' >"$work/quote.json"
click_on "push button" Test
must "and what is" there label '“Still waters run deep.” — A Proverb'
click_on "push button" Presets
must "the menu opens" menu
height=$(xwininfo -id "$(menu)" | awk '/ Height:/ {print $2}')
xdotool mousemove --window "$(menu)" 40 $((height * 7 / 8)) click 1
keeps "a preset by mouse" quoteSourceURL '""'

# The system refuses a change: a file takes the place of the folder.
rm -r "$XDG_CONFIG_HOME/autostart"
touch "$XDG_CONFIG_HOME/autostart"
click_on "check box" "Open at login"
must "a refused switch goes back" not checked "check box" "Open at login"

# Changes by another program appear in the open window.
settings '{"dismissSeconds": 31.9, "showOnWake": true, "quoteFrequency": "weekly",
           "quoteSourceURL": "/elsewhere"}'
must "a change of the file shows" there label 31s
must "in every control" checked "check box" "Show on wake and unlock"
must "and an unknown frequency chooses nothing" not there "combo box" "Every"
check "nor is it overwritten" grep -q weekly "$XDG_CONFIG_HOME/morrowleaf/settings.json"

unreadable() { there label "Unreadable settings are kept in $1"; }
settings 'not json'
must "an unreadable file is told of" unreadable settings.json
check "the settings in effect stay" there label 31s
shot settings-unreadable
settings '{"dismissSeconds": 31.9, "showOnWake": true, "quoteFrequency": "weekly",
           "quoteSourceURL": "/elsewhere"}'
must "until it is mended" not unreadable settings.json

press alt+F4
must "the window can be closed" not window
check "the program goes on" kill -0 "$app"
"$MORROWLEAF" --settings
must "and opened again" focus_is "Morrowleaf Settings"
check "what was tested is still told" there label '“Still waters run deep.” — A Proverb'
shot settings-mouse
click_on "push button" "Show Today's Quote"
must "the quotation is shown by mouse" is_shown
must "with the keyboard" focus_is Morrowleaf
xdotool click 1
must "a click sends it away" is_gone
must "and gives the keyboard back" focus_is "Morrowleaf Settings"
click_on "push button" Quit
ended() { ! kill -0 "$app"; }
must "Quit ends the program" ended
wait "$app"
check "with status 0" test $? -eq 0
finish
