# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# shellcheck shell=bash disable=SC2034,SC2119,SC2120,SC2154
# The walk through a desktop; needs lib.sh, and $points and $ratio, which say how large the
# screen is in points and how many pixels these have. A desktop defines
#   focused       prints the title of the window with the keyboard
# and may define
#   lock, unlock_own, is_locked  its own locker
#   has_item, open_settings_by_tray  for a tray without status notifiers
#   activate_window TITLE  brings a window to the front, where a new one is not
#   wish_little_motion on|off, double_scale  the desktop's settings
#   split_screen, join_screen  two monitors, with what walk_monitors needs

size=${size:-1280x720}
width=${size%x*}
height=${size#*x}
settings_of_walk='"paletteIndex": 7, "screenAnimation": "still", "grainEnabled": false, "dismissSeconds": 600'

act() {
    gdbus call --session -d "$id" -o /org/morrowleaf/Morrowleaf \
        -m org.freedesktop.Application.ActivateAction "$1" '[]' '{}' >/dev/null
}
# expect NAME POINTS RATIO [OPTION...]: what the program draws, off-screen
expect() {
    local name=$1 points=$2 ratio=$3
    shift 3
    QT_QPA_PLATFORM=offscreen "$SNAPSHOT" --settings "$settings_file" --size "$points" \
        --dpr "$ratio" --quote ' ' --out "$work/expected" --name "$name" "$@" >/dev/null ||
        die "no expected picture"
    expected=$(ls -t "$work/expected/$name"*.png | head -1)
}
# covered [PLACE]: the program's picture covers all of the screen, or of a monitor
covered() { shot now && look like "$OUT/now.png" "$expected" "$@"; }
# uncovered [PLACE]: none of it is left
uncovered() { shot now && look unlike "$OUT/now.png" "$expected" "$@"; }

# A window that says which keys it gets.
put_window() {
    start "window-$1" "$E2E_WINDOW" "$@"
    until_true 30 is_active_window "$1" || die "no window $1"
}
is_active_window() { activate_window "$1" && sleep 0.3 && grep -q '^active' "$work/window-$1.log"; }
activate_window() { true; }
got_key() { grep -qx "key $2" "$work/window-$1.log"; }
# gets_keys WINDOW KEY: pressed until it arrives
gets_keys() { keys "$2" && sleep 0.3 && got_key "$1" "$2"; }
focus_is() { [ "$(focused)" = "$1" ]; }

# closes_by KEY CELL: the key ends the showing and goes nowhere else
closes_by() {
    keys "$1"
    tick "$2" "a key closes it" uncovered
    now "$2" "and reaches no other window" not got_key below "$1"
}

walk_login() {
    settings "{$settings_of_walk}"
    expect plain "$points" "$ratio"
    shot desktop
    start app morrowleaf
    app=$last
    tick login "the start covers everything" covered
    shot login
    closes_by a login
    tick login "what was there is back" is_as_before_login
    shot after-login
}
is_as_before_login() { true; }

walk_wake() {
    tick wake "a window has the keyboard" gets_keys below b
    throttle
    wake
    tick wake "a wake covers everything" covered
    shot wake
    closes_by c wake
    tick wake "the window has the keyboard again" gets_keys below d
}
throttle() { sleep 8.2; }

walk_unlock() {
    throttle
    lock
    tick unlock "the desktop locks" is_locked
    sleep 1
    shot locked
    now unlock "nothing is shown while it is locked" uncovered
    unlock_own
    tick unlock "unlocking covers everything" covered
    shot unlock
    closes_by e unlock
    tick unlock "the window has the keyboard again" gets_keys below f
}
walk_lock() {
    morrowleaf
    tick lock "a showing is up" covered
    # It holds keyboard and mouse for three seconds, which some lockers do not outlast.
    sleep 4
    lock
    tick lock "the locker comes above it" uncovered
    tick lock "and is up" is_locked
    shot locked-over
    keys g
    unlock_own
    sleep 2
    now lock "it got the key" not got_key below g
    tick lock "afterwards the desktop is back" closes_by_escape
    tick lock "with its window" gets_keys below h
}

closes_by_escape() {
    keys Escape
    sleep 1
    uncovered
}

walk_second() {
    morrowleaf
    tick second "a second launch covers everything" covered
    shot second
    closes_by i second
    tick second "the window has the keyboard again" gets_keys below j
}

walk_tray() {
    tick tray "the tray has the symbol" has_item
    shot tray
    open_settings_by_tray
    tick tray "its menu opens the settings" focus_is "Morrowleaf Settings"
    tick tray "which close" settings_close
}
open_settings_by_tray() { host click "Settings…"; }
host() { /usr/bin/python3 "$here/notifierhost.py" "$@"; }
has_item() { host props | grep -q '^Id = .*[Mm]orrowleaf'; }

walk_settings() {
    morrowleaf --settings
    tick settings "the window has the keyboard" focus_is "Morrowleaf Settings"
    sleep 1
    shot settings
    tick settings "the desktop closes it" settings_close
    tick settings "the window below has the keyboard" gets_keys below k
}

settings_close() {
    if focus_is "Morrowleaf Settings"; then keys alt+F4 && sleep 0.5; fi
    not focus_is "Morrowleaf Settings"
}

walk_editor() {
    expect editing "$points" "$ratio" --editing
    act edit-appearance
    tick editor "the editor covers everything" editor_covers
    shot editor
    keys l
    sleep 1
    now editor "a key leaves it open" editor_covers
    keys Escape
    tick editor "Escape closes it" uncovered
    tick editor "the window has the keyboard again" gets_keys below m
}
# The panel is at the right edge.
left_of_panel() { echo "0,0,$((width - 320 * width / ${points%x*} - 8)),$height"; }
editor_covers() {
    shot now && convert "$expected" -crop "$(($(left_of_panel | cut -d, -f3)))x$height+0+0" +repage \
        "$work/left.png" && look like "$OUT/now.png" "$work/left.png" "$(left_of_panel)"
}

walk_dialog() {
    act edit-appearance
    tick dialog "the editor covers everything" editor_covers
    sleep 1
    shot dialog-before
    press_add_photo
    tick dialog "a dialog is in sight" dialog_in_sight
    sleep 1
    shot dialog
    # Once: a second key would be the editor's.
    keys Escape
    tick dialog "it closes by its key" not dialog_in_sight
    tick dialog "the editor covers everything again" editor_covers
    shot dialog-after
    keys Escape
    tick dialog "and has the keyboard" uncovered
    tick dialog "the window has the keyboard again" gets_keys below n
}
# By a real click: some desktops bring a dialog to the front only where one has led to it.
press_add_photo() {
    local place x y
    until_true 20 place_of_button "Add a photo" || return 1
    place=$(place_of_button "Add a photo")
    read -r x y < <(awk -F'|' -v ratio="$ratio" \
        '{ print int(($4 + $6 / 2) * ratio), int(($5 + $7 / 2) * ratio) }' <<<"$place")
    # A nested compositor mistakes the first motion of the pointer.
    mouse 3 3
    sleep 0.5
    mouse "$x" "$y"
    sleep 1
    DISPLAY=$outside xdotool click 1
}
place_of_button() { /usr/bin/python3 "$here/accessible.py" place "push button" "$1" 1; }
# A dialog covers a part of the middle of the screen. The editor is still around it, which
# some desktops dim, and not the bare desktop.
dialog_in_sight() {
    shot now
    local middle corner
    middle=$((width / 4)),$((height / 4)),$((width / 4)),$((height / 2))
    corner=0,$((height * 3 / 4)),$((width / 16)),$((height / 8))
    differs_from dialog-before "$middle" 0.6 && differs_from desktop "$corner" 0.8
}
# differs_from NAME PLACE FRACTION: at least so many of the pixels there
differs_from() {
    awk -v changed="$(look changed "$OUT/now.png" "$OUT/$1.png" "$2")" -v least="$3" \
        'BEGIN { exit changed < least }'
}

walk_transparency() {
    change "{$settings_of_walk, \"backdropTransparency\": 0.85}"
    throttle
    shot through-before
    wake
    sleep 3
    tick transparency "the desktop shines through" shines_through
    shot transparency
    keys o
    sleep 1.5
    change "{$settings_of_walk}"
}
# The left is greener than the right, as the desktop is, and nothing is black.
shines_through() {
    shot now
    local left right
    read -r -a left < <(look colour "$OUT/now.png" "0,$((height * 3 / 4)),$((width / 8)),$((height / 8))")
    read -r -a right < <(look colour "$OUT/now.png" "$((width * 7 / 8)),$((height * 3 / 4)),$((width / 8)),$((height / 8))")
    [ $((left[1] - left[0])) -gt $((right[1] - right[0] + 25)) ] &&
        [ $((left[0] + left[1] + left[2])) -gt 60 ]
}
change() {
    settings "$1"
    sleep 1.5
}
# The backdrop drifts, except where little motion is wished; the wish changes while the
# program shows.
walk_wishes() {
    change "{\"paletteIndex\": 7, \"grainEnabled\": false, \"dismissSeconds\": 600}"
    throttle
    wake
    sleep 4
    tick wishes "without a wish the quotation's backdrop moves" moves moving
    wish_little_motion on
    tick wishes "nothing moves when little motion is wished" at_rest wishes
    wish_little_motion off
    tick wishes "without the wish it moves again" moves moving
    keys p
    tick wishes "a key closes it" gets_keys below q
    change "{$settings_of_walk}"
}
# The number of pixels that differ between two pictures
differing() { compare -metric AE "$OUT/$1.png" "$OUT/$2.png" null: 2>&1; }
# at_rest NAME, moves NAME: in the course of two seconds
at_rest() { shot "$1" && sleep 2 && shot now && [ "$(differing "$1" now)" = 0 ]; }
moves() { not at_rest "$1"; }

# The program starts anew, as after a login at that scale; nothing comes after this.
walk_scale() {
    act quit
    must "it quits" not kill -0 "$app"
    must "the scale is doubled" double_scale
    sleep 3
    expect unscaled "$points" "$ratio"
    local unscaled=$expected
    expect scaled "$((width / 2))x$((height / 2))" 2
    start app morrowleaf
    app=$last
    tick scale "at twice the scale it covers everything" covered
    tick scale "and its texts have twice the size" header_is_like "$expected" "$unscaled"
    shot scale
    keys t
    tick scale "a key closes it" uncovered
}

# header_is_like PICTURE OTHER: more than like the other
header_is_like() {
    shot now && look nearer "$OUT/now.png" "$1" "$2" "0,0,$width,$((height / 6))"
}

# WALK names the stations, without which all are visited.
walk_all() {
    local station
    put_window below '#c08020' 200 200 500 300
    for station in ${WALK:-wake second settings tray editor dialog transparency wishes monitors unlock lock scale}; do
        case $station in
        wishes)
            if [ "$(type -t wish_little_motion)" != function ]; then
                cannot wishes "this desktop has no setting for little motion"
                continue
            fi
            ;;
        scale)
            if [ "$(type -t double_scale)" != function ]; then
                cannot scale "what the walk can set of the scale reaches programs of GTK only"
                continue
            fi
            ;;
        monitors)
            if [ "$(type -t split_screen)" = function ]; then
                split_screen
                walk_monitors
                join_screen
            fi
            continue
            ;;
        unlock | lock)
            if [ "$(type -t lock)" != function ]; then
                cannot "$station" "no screen locker belongs to this desktop"
                continue
            fi
            ;;
        esac
        "walk_$station"
    done
}
end_walk() {
    act quit
    must "it quits" not kill -0 "$app"
    finish
}

# walk_monitors: with two monitors beside each other and the functions
#   use_monitor 0|1   the window with the keyboard and the pointer are there
#   monitor_place 0|1 prints LEFT,TOP,WIDTH,HEIGHT
walk_monitors() {
    local one other
    for one in 1 0; do
        other=$((1 - one))
        use_monitor $one
        throttle
        wake
        tick monitors "a wake covers monitor $one" covered "$(monitor_place $one)"
        now monitors "and not monitor $other" uncovered "$(monitor_place $other)"
        shot "monitor-$one"
        keys r
        tick monitors "a key closes it" uncovered "$(monitor_place $one)"
        tick monitors "the window has the keyboard again" gets_keys below s
    done
}
# walk_monitors_alone: in a session that has two monitors and has not been walked through
walk_monitors_alone() {
    settings "{$settings_of_walk}"
    expect plain "$points" "$ratio"
    if [ "$(type -t close_overview)" = function ]; then close_overview; fi
    start app morrowleaf --settings
    app=$last
    must "the settings open" focus_is "Morrowleaf Settings"
    settings_close
    put_window below '#c08020' 200 200 500 300
    walk_monitors
    end_walk
}
