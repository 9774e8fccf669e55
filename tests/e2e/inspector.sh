#!/bin/bash
# The appearance editor and the settings window under real keys and clicks:
# after each step the settings file holds what the control says.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

start_x 1280x1024
start_manager openbox
file=$XDG_CONFIG_HOME/morrowleaf/settings.json
settings '{"screenAnimation": "still", "grainEnabled": false}'

# stored KEY VALUE: the file holds the key with this JSON value
stored() {
    python3 - "$file" "$1" "$2" <<'EOF'
import json, sys
value = json.load(open(sys.argv[1])).get(sys.argv[2])
sys.exit(0 if value == json.loads(sys.argv[3]) and value is not None else 1)
EOF
}
# stored_near KEY NUMBER
stored_near() {
    python3 - "$file" "$1" "$2" <<'EOF'
import json, sys
value = json.load(open(sys.argv[1])).get(sys.argv[2], 1e9)
sys.exit(0 if abs(value - float(sys.argv[3])) < 0.03 else 1)
EOF
}
press() { xdotool key --delay 40 "$@"; }
tabs() {
    local i
    for ((i = 0; i < $1; i++)); do xdotool key Tab; sleep 0.02; done
}
click() { xdotool mousemove "$1" "$2" click 1; }

start app "$MORROWLEAF" --settings
app=$last
window() { xdotool search --onlyvisible --name '^Morrowleaf Settings$'; }
must "the settings window opens" window
sleep 0.5
shot settings
# The buttons and rows, by their places in the view of 520 x 545 points.
in_settings() { xdotool mousemove --window "$(window | head -1)" "$1" "$2" click 1; }
in_settings 460 137
must "the wake switch is stored" stored showOnWake false
in_settings 460 137
must "and goes back" stored showOnWake true
in_settings 300 335
xdotool type --delay 20 'http://127.0.0.1:9/none'
must "the source is stored as typed" stored quoteSourceURL '"http://127.0.0.1:9/none"'
press ctrl+a BackSpace
must "and emptied" stored quoteSourceURL '""'
shot settings-after

in_settings 430 59
must "the button opens the editor" is_shown
sleep 1.2
shot editor

# By keyboard, in visual order: automatic, nine palettes, six photos, the add
# tile, typeface, size, vignette, transparency, ...
tabs 3
press space
must "the second palette is stored" stored paletteIndex 1
tabs 8
press space
must "the photo is chosen" grep -q 'backgroundImagePath.*aurora.jpg' "$file"
check "and the palette stays" stored paletteIndex 1
tabs 7
press space Down Return
must "the typeface is stored" stored fontDesign '"serif"'
check "Return in the menu ends nothing" is_shown
press space Escape
sleep 0.3
check "Escape in the menu ends nothing" is_shown
tabs 1
press End
must "the size is stored" stored textScale 1.6
tabs 1
press Home
must "the vignette is stored" stored vignetteStrength 0.0
tabs 1
press Prior Prior Prior
must "the transparency is stored" stored_near backdropTransparency 0.3
shot editor-transparent
tabs 1
press space
must "the glass is stored" stored useLiquidGlass false
tabs 1
press space Down Down Return
must "the reveal is stored" stored textAnimation '"typewriter"'
tabs 1
press space Home Return
must "the motion is stored" stored screenAnimation '"drift"'
tabs 1
press space
must "the grain is stored" stored grainEnabled true
tabs 1
press space
must "Reset puts the typeface back" stored fontDesign '"fraunces"'
check "and the photo" stored backgroundImagePath '""'
check "and the palette" stored paletteIndex -1
check "and the glass" stored useLiquidGlass true
shot editor-reset

# By mouse, at the panel's right edge.
click 300 500
sleep 0.3
check "a click on the picture ends nothing" is_shown
click 1062 113
must "a palette can be clicked" stored paletteIndex 0
shot editor-mouse
press Escape
must "Escape ends the editing" is_gone

in_settings 430 59
must "the editor opens again" is_shown
sleep 0.8
press Return
must "Return ends the editing" is_gone
check "the program goes on" kill -0 "$app"
finish
