#!/bin/bash
# What a screen reader gets of the quotation, of the editor and of the settings
# window, over an accessibility bus of its own.
here=$(dirname "$0")
. "$here/lib.sh"
. "$here/x11.sh"

read_aloud() { /usr/bin/python3 "$here/accessible.py" "$@"; }

start_x 1280x1024
start_manager openbox
start_session_bus
unset NO_AT_BRIDGE
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
start launcher /usr/libexec/at-spi-bus-launcher --launch-immediately
until_true 30 dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus \
    org.a11y.Bus.GetAddress || die "no accessibility bus"
echo '{"quote": "Still waters run deep.", "author": "A Proverb"}' >"$work/quote.json"
settings "{\"quoteSourceURL\": \"$work/quote.json\", \"dismissSeconds\": 60,
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
while IFS='|' read -r role name; do
    check "the settings: $name" read_aloud find "$role" "$name"
done <<'EOT'
button|Edit Appearance…
slider|Close after
check box|Open at login
text|Source URL
button|Presets
button|Test
button|Show Today's Quote
button|Quit
EOT
check "the settings: New quote" read_aloud labelled "combo box" "New quote"
read_aloud press "Edit Appearance…"
must "a button can be pressed from afar" is_shown
must "the editor can be read" read_aloud find "" "Reset"
while IFS='|' read -r role name; do
    check "the editor: $name" read_aloud find "$role" "$name"
done <<'EOT'
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
