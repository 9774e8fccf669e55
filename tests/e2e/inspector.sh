#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# The appearance editor under real keys and clicks: after each step the settings
# file holds what the control shows, and nothing else has changed.
#   inspector.sh [DESKTOP]    the name of a desktop whose theme Qt looks up
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"
. "$here/controls.sh"

start_x 1280x1024
start_manager openbox
start_reader
own=$XDG_DATA_HOME/Morrowleaf/backgrounds
mkdir -p "$own"
convert -size 80x60 xc:red "$own/one.png"
convert -size 80x60 xc:blue "$own/two.png"
begin_with "{\"screenAnimation\": \"still\", \"grainEnabled\": false,
             \"customBackgrounds\": [\"$own/one.png\", \"$own/two.png\"]}"
palettes=(Midnight Ember Forest Plum Slate Brass Violet Paper Noir)
photos=(Aurora Dunes Forest Lake Ridges Sea)
photo() { printf '"%s/%s.jpg"' "$folder" "${1,,}"; }
dialog() { xdotool search --onlyvisible --name '^Add a Photo$'; }

# Some of these themes let Return press the focused control.
use_theme_of "${1:-}"
start app "$MORROWLEAF" --settings
app=$last
must "the settings window opens" focus_is "Morrowleaf Settings"
check_theme "$app"
# edit: opens the editor and waits until it is in place
in_place() { [ "$(column panel Appearance "$1" 4)" = 960 ]; }
edit() {
    must "the editor opens by its button" there "push button" "Edit Appearance"
    click_on "push button" "Edit Appearance"
    must "the editor is there" is_shown
    must "and has the keyboard" focus_is Morrowleaf
    must "and has slid in" in_place 2
}
edit
shot editor

# By keyboard, in visual order.
tab_to "radio button" Auto
press space
keeps "the automatic palette" paletteIndex -1 backgroundImagePath '""'
for i in "${!palettes[@]}"; do
    tab_to "radio button" "${palettes[i]}"
    press space
    keeps "palette ${palettes[i]}" paletteIndex "$i"
    must "and it is marked" checked "radio button" "${palettes[i]}"
done
for name in "${photos[@]}"; do
    which=1
    [ "$name" = Forest ] && which=2
    tab_to "radio button" "$name" "$which"
    press space
    must "photo $name is marked" checked "radio button" "$name" "$which"
    folder=$(/usr/bin/python3 -c "import json, os, sys
print(os.path.dirname(json.load(open(sys.argv[1]))['backgroundImagePath']))" \
        "$XDG_CONFIG_HOME/morrowleaf/settings.json")
    keeps "and stored, and the palette stays" backgroundImagePath "$(photo "$name")"
done
check "no palette is marked beside a photo" not checked "radio button" Noir
tab_to "radio button" "Your photo 1"
press space
keeps "an own photo" backgroundImagePath "\"$own/one.png\""
tab_to "push button" "Remove your photo 1"
tab_to "radio button" "Your photo 2"
press space
keeps "the other one" backgroundImagePath "\"$own/two.png\""
tab_to "push button" "Remove your photo 2"
press space
keeps "removed, it is neither listed nor chosen" backgroundImagePath '""' \
    customBackgrounds "[\"$own/one.png\"]"
must "nor there" not test -e "$own/two.png"
must "and the keyboard stays where it was" focused "push button" "Add a photo"
press space
must "the dialog opens" dialog
must "and has the keyboard" focus_is "Add a Photo"
press Escape
must "Escape closes it" not dialog
must "and the editor has the keyboard" editor_listens
keeps "a cancelled dialog changes nothing"
must "nor moves the focus" focused "push button" "Add a photo"

tab_to "combo box" Typeface
press space Down Return
keeps "the typeface" fontDesign '"serif"'
press space Down Escape
keeps "Escape in the menu changes nothing"
check "and ends nothing" is_shown
tab_to slider Size
press End
keeps "the largest size" textScale 1.6
must "is read out" there label 160%
press Home
keeps "the smallest" textScale 0.7
press Right Up Prior
keeps "and one between" textScale 0.80..0.82
tab_to slider Vignette
press Home
keeps "no vignette" vignetteStrength 0.0
must "is read out" there label 0.00
tab_to slider Transparency
check "the glass is off without transparency" not enabled "check box" "Liquid Glass"
press Prior Prior Prior
keeps "the transparency" backdropTransparency 0.29..0.31
must "is read out" there label 30%
tab_to "check box" "Liquid Glass"
press space
keeps "the glass" useLiquidGlass false
tab_to "combo box" "Text reveal"
press space Down Down Return
keeps "the reveal" textAnimation '"typewriter"'
tab_to "combo box" "Screen motion"
press space Home Return
keeps "the motion" screenAnimation '"drift"'
press space Down Return
keeps "and back" screenAnimation '"still"'
tab_to "check box" "Film grain"
press space
keeps "the grain" grainEnabled true
tab_to "push button" Reset
press space
factory=(backgroundImagePath '""' paletteIndex -1 fontDesign '"fraunces"' textScale 1.0
    vignetteStrength 0.55 backdropTransparency 0.0 useLiquidGlass true
    textAnimation '"fade"' screenAnimation '"drift"' grainEnabled true)
keeps "Reset puts everything back, and keeps the photo" "${factory[@]}"
tab_to "push button" "Done"
tab_to "radio button" Auto
tab_to "radio button" Midnight
press x ctrl+s Menu F5
check "other keys end nothing" is_shown
press Return
must "Return ends the editing" is_gone
must "and gives the keyboard back" focus_is "Morrowleaf Settings"
keeps "and presses nothing"
for keys in KP_Enter shift+Return; do
    edit
    mapfile -t tabs < <(yes Tab | head -n $((${#palettes[@]} + ${#photos[@]} + 3)))
    press "${tabs[@]}"
    must "Tab leads to the small cross" focused "push button" "Remove your photo 1"
    press "$keys"
    must "$keys ends the editing there too" is_gone
    must "and gives the keyboard back" focus_is "Morrowleaf Settings"
    keeps "and removes nothing"
done

# By mouse.
for keys in Return KP_Enter ctrl+Return; do
    edit
    xdotool mousemove 300 500 click 1 click 3
    check "a click on the picture ends nothing" is_shown
    press "$keys"
    must "$keys ends the editing after a click on the picture" is_gone
    must "and gives the keyboard back" focus_is "Morrowleaf Settings"
    keeps "and changes nothing"
done
edit
click_on "combo box" "Screen motion"
must "the menu opens by mouse" there "list item" Still
click_on "list item" Still
keeps "a motion by mouse" screenAnimation '"still"'
click_on "check box" "Film grain"
keeps "the grain by mouse" grainEnabled false
for i in "${!palettes[@]}"; do
    click_on "radio button" "${palettes[i]}"
    keeps "palette ${palettes[i]} by mouse" paletteIndex "$i"
done
click_on "radio button" Auto
keeps "and the automatic one" paletteIndex -1
for name in "${photos[@]}"; do
    which=1
    [ "$name" = Forest ] && which=2
    click_on "radio button" "$name" "$which"
    keeps "photo $name by mouse" backgroundImagePath "$(photo "$name")"
done
click_on "radio button" "Your photo 1"
keeps "the own one" backgroundImagePath "\"$own/one.png\""
click_on "push button" "Add a photo"
must "the dialog opens by mouse" dialog
must "with the keyboard" focus_is "Add a Photo"
press Escape
must "and goes" not dialog
must "and gives the keyboard back" editor_listens
click_on "push button" "Remove your photo 1"
keeps "the removal by mouse" backgroundImagePath '""' customBackgrounds '[]'
click_on "combo box" Typeface
must "the typefaces open" there "list item" Mono
click_on "list item" Mono
keeps "a typeface by mouse" fontDesign '"mono"'
click_on "combo box" "Text reveal"
must "the reveals open" there "list item" "Rise"
xdotool mousemove 300 500 click 1
must "a press beside the menu closes it" not there "list item" "Rise"
keeps "and changes nothing"
check "nor ends it the editing" is_shown
drag() {
    point slider "$1" 1 "$2"
    xdotool mousedown 1
    point slider "$1" 1 "$3"
    xdotool mouseup 1
}
drag Size 0.2 0.5
keeps "the size by mouse" textScale 1.12..1.18
drag Vignette 0.9 0.01
keeps "the vignette by mouse" vignetteStrength 0.0
drag Transparency 0.5 0.99
keeps "the transparency by mouse" backdropTransparency 1.0
must "the glass can be switched" enabled "check box" "Liquid Glass"
shot editor-transparent
click_on "check box" "Liquid Glass"
keeps "the glass by mouse" useLiquidGlass false
click_on "push button" Reset
keeps "Reset by mouse" "${factory[@]}"
click_on "push button" Done
must "Done ends the editing" is_gone
must "and gives the keyboard back" focus_is "Morrowleaf Settings"

edit
press Escape
must "Escape ends the editing" is_gone
check "the program goes on" kill -0 "$app"
finish
