#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# The user's own photo in the dialog of the machine's portal: it stands in front of
# the quote screen and of the settings, has the keyboard, and its choice takes effect.
#   desktop_photo.sh openbox|xfwm4 MODULE
# The module makes the program slow where window managers compare times.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"
. "$here/controls.sh"

start_x 1280x1024
start_manager "$1"
start_reader
begin_with '{"paletteIndex": 8, "screenAnimation": "still", "grainEnabled": false}'
convert -size 800x600 xc:'#c02020' "$work/red.png"
own=$XDG_DATA_HOME/Morrowleaf/backgrounds
# Of the toolkit's portal, or of that of the desktop.
dialogs() { xdotool search --onlyvisible --class '^xdg-desktop-portal-'; }
copied() { cmp -s "$work/red.png" "$own"/*; }
topmost() { [ $(($(xprop -root _NET_CLIENT_LIST_STACKING | sed 's/.*[, ]//'))) -eq "$(dialogs | tail -1)" ]; }
has_keyboard() { [ "$(xdotool getactivewindow)" -eq "$(dialogs | tail -1)" ]; }
ask() {
    click_on "push button" "Add a photo"
    must "the portal opens its dialog" dialogs
    must "which has the keyboard" has_keyboard
}

start app env LD_PRELOAD="$2" "$MORROWLEAF" --settings
app=$last
must "the settings open" focus_is "Morrowleaf Settings"
click_on "push button" "Edit Appearance"
must "the editor is there" is_shown
must "with the keyboard" focus_is Morrowleaf
slid_in() { [ "$(column panel Appearance 2 4)" = 960 ]; }
must "and has slid in" slid_in
ask
must "it stands in front of the settings" topmost
shot dialog
press Escape
must "Escape closes it" not dialogs
must "the editor has the keyboard" editor_listens
check "and is there" is_shown
check "nothing is copied" not test -e "$own"
ask
# The slash opens the field for a path.
xdotool type --delay 50 "$work/red.png"
press Return
must "a chosen photo is copied" copied
must "the dialog has gone" not dialogs
must "the photo is marked" checked "radio button" "Your photo 1"
must "the editor has the keyboard" editor_listens
must "and the focus of the display" focus_is Morrowleaf
press Escape
must "Escape ends the editing" is_gone
check "the program goes on" kill -0 "$app"
finish
