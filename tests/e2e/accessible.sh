#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# What a screen reader gets from the quotation, the editor and the settings
# window, over a private accessibility bus.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"
. "$here/controls.sh"

start_x 1280x1024
start_manager openbox
start_reader
echo '{"quote": "Still waters run deep.", "author": "A Proverb"}' >"$work/quote.json"
settings "{\"quoteSourceURL\": \"$work/quote.json\", \"dismissSeconds\": 600,
           \"screenAnimation\": \"still\", \"grainEnabled\": false}"

start app "$MORROWLEAF"
must "the quotation is shown" is_shown
must "the quotation is a text" read_aloud find "static|label" "Still waters run deep."
must "the author is a text" read_aloud find "static|label" "A Proverb"
must "the screen is named by both" read_aloud find "" "Still waters run deep. — A Proverb"
xdotool key a
must "it goes" is_gone

"$MORROWLEAF" --settings
must "the settings can be read" read_aloud find "check box" "Show on wake and unlock"
check "their window is a window" there frame "Morrowleaf Settings"
while IFS='|' read -r role name; do
    check "the settings: $name" read_aloud find "$role" "$name"
done <<'EOT'
button|Edit Appearance…
slider|Close after
check box|Open at login
panel|Appearance
panel|Behaviour
panel|Quotes
text|Source URL
button|Presets
button|Test
button|Show Today's Quote
button|Quit
EOT
for _ in 1 2 3 4 5 6; do
    focused "check box" "Open at login" && break
    xdotool key Tab
    settle
done
check "the source is named before its text" read_aloud tab "Source URL"
check "every control of the settings has a name and a role" read_aloud names 10
check "the settings: New quote" read_aloud labelled "combo box" "New quote"
read_aloud press "Edit Appearance…"
must "a button can be pressed from afar" is_shown
must "the editor can be read" read_aloud find "" "Reset"
check "the screen's window is a window" there frame "Morrowleaf" 2
check "every control of the editor has a name and a role" read_aloud names 38
while IFS='|' read -r role name; do
    check "the editor: $name" read_aloud find "$role" "$name"
done <<'EOT'
panel|Appearance
panel|Palette
panel|Your photo
radio button|Auto
radio button|Midnight
radio button|Noir
radio button|Aurora
button|Add
combo box|Typeface
slider|Size
slider|Vignette
slider|Transparency
check box|Liquid Glass
combo box|Text reveal
combo box|Screen motion
check box|Film grain
button|Reset
button|Done
EOT
read_aloud set "Vignette" 0.25
must "a slider can be set from afar" \
    grep -qE '"vignetteStrength": *0.25' "$XDG_CONFIG_HOME/morrowleaf/settings.json"
read_aloud press Done
must "Done ends the editing" is_gone
[ "$failures" -eq 0 ] || read_aloud list
finish
