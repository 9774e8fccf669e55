#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# The user's own photos in Qt's dialog, without any portal: the dialog is in
# front of the quote screen and has the keyboard, and the chosen file takes
# effect.
#   photo.sh openbox|xfwm4
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"
. "$here/controls.sh"

start_x 1280x1024
start_manager "${1:-openbox}"
start_reader
# A dark palette, whatever the day: dialogs are light.
begin_with '{"paletteIndex": 8, "screenAnimation": "still", "grainEnabled": false,
             "vignetteStrength": 0.0}'
own=$XDG_DATA_HOME/Morrowleaf/backgrounds
large=$work/large.jpg
convert -size 800x600 xc:'#c02020' -resize 8000x6000! -quality 90 "$large" || die "no photo"
echo "not a picture" >"$work/words.png"
odd=$work/$(printf 'x%.0s' {1..180}).png
convert -size 40x30 xc:blue "$odd" || die "no photo"
dialog() { xdotool search --onlyvisible --name '^Add a Photo$'; }
copies() { [ "$(find "$own" -type f 2>/dev/null | wc -l)" -eq "$1" ]; }
chosen() {
    /usr/bin/python3 - "$XDG_CONFIG_HOME/morrowleaf/settings.json" <<'EOT'
import json, sys
stored = json.load(open(sys.argv[1]))
photos = stored.get("customBackgrounds", [])
sys.exit(not (photos and stored.get("backgroundImagePath") == photos[-1]))
EOT
}
# picture_is EXPRESSION: holds for a pixel of the photo on the screen
picture_is() {
    shot now
    [ "$(convert "$work/now.png" -crop 1x1+200+760 -format "%[fx:$1]" info:)" = 1 ]
}
# in_front [WINDOW]: the dialog is in front
in_front() {
    shot front
    eval "$(xdotool getwindowgeometry --shell "${1:-$(dialog)}")"
    # More than a few letters wide.
    [ "$(convert "$work/front.png" -crop "60x30+$((X + WIDTH / 2 - 30))+$((Y + 4))" \
        -format '%[fx:mean>0.7]' info:)" = 1 ]
}
ask() {
    click_on "push button" "Add a photo"
    must "the dialog opens" dialog
    must "and has the keyboard" focus_is "Add a Photo"
}
back() {
    must "the dialog has gone" not dialog
    must "the editor has the keyboard" editor_listens
    check "and is there" is_shown
}

put_window Other '#a0a0ff' 900 600 300 300
start app "$MORROWLEAF" --settings
app=$last
must "the settings open" focus_is "Morrowleaf Settings"
click_on "push button" "Edit Appearance"
must "the editor is there" is_shown
must "with the keyboard" focus_is Morrowleaf
slid_in() { [ "$(column panel Appearance 2 4)" = 960 ]; }
must "and has slid in" slid_in

ask
must "it stands in front of the quote screen" in_front
topmost() { [ $(($(xprop -root _NET_CLIENT_LIST_STACKING | sed 's/.*[, ]//'))) -eq "$(dialog)" ]; }
must "and of the settings" topmost
shot dialog
check "and nothing else does" shows_none_of dialog '#a0a0ff'
press Escape
back
keeps "a cancelled dialog changes nothing"
check "and copies nothing" not test -e "$own"

ask
xdotool type --delay 5 "$work/words.png"
press Return
back
ask
keeps "what is no picture is refused without a word"
check "and nothing of it is left" copies 0
press ctrl+a
xdotool type --delay 5 "$large"
press Return
back
must "a large photo is copied" copies 1
must "and chosen" chosen
check "byte for byte" cmp -s "$large" "$own"/*
must "and becomes the background" picture_is 'r>0.4&&g<0.25&&b<0.25'
must "its tile is marked" checked "radio button" "Your photo 1"
shot large

# The photo's file disappears while the editor is open.
rm "$own"/*.jpg
click_on "radio button" Noir
must "another choice" not chosen
click_on "radio button" "Your photo 1"
must "a photo that is gone can be chosen" chosen
must "and shows the palette instead" picture_is 'r<0.3'
check "the program goes on" kill -0 "$app"

ask
press ctrl+a
xdotool type --delay 5 "$work/nothing.png"
press Return
both_in_sight() {
    local number
    for number in $(dialog); do in_front "$number" || return 1; done
}
two_dialogs() { [ "$(dialog | wc -l)" -eq 2 ]; }
must "what is not there is asked about" two_dialogs
must "with the dialog still in sight" both_in_sight
press Escape
must "Escape closes the question" not two_dialogs
check "and not the dialog" dialog
press ctrl+a
xdotool type --delay 5 "$odd"
press Return
back
must "a very long name is no hindrance" copies 1
must "and chosen" chosen
press Escape
must "Escape ends the editing" is_gone
check "the program goes on" kill -0 "$app"

# The showing ends before its dialog is closed.
ask_again() {
    "$MORROWLEAF" --settings
    must "the settings come back" focus_is "Morrowleaf Settings"
    click_on "push button" "Edit Appearance"
    must "the editor opens again" is_shown
    must "with the keyboard" focus_is Morrowleaf
    must "and slides in" slid_in
    ask
}
ask_again
"$MORROWLEAF"
must "a new showing takes the dialog away" not dialog
check "the program goes on" kill -0 "$app"
press Escape
must "the new showing ends" is_gone
ask_again
kill -TERM "$app"
wait "$app"
check "told to end with the dialog open it does so" test $? -eq 0
finish
