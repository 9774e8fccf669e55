# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# shellcheck shell=bash disable=SC2034,SC2154
# What Plasma on Wayland and on X11 have in common; needs lib.sh and walk.sh.

prepare_plasma() {
    export KDE_FULL_SESSION=true KDE_SESSION_VERSION=5
    printf '[Wallet]\nEnabled=false\n' >"$XDG_CONFIG_HOME/kwalletrc"
    printf '[Basic Settings]\nIndexing-Enabled=false\n' >"$XDG_CONFIG_HOME/baloofilerc"
    printf '[Daemon]\nAutolock=false\nLockOnResume=false\nTimeout=0\n' >"$XDG_CONFIG_HOME/kscreenlockerrc"
}
start_plasma_shell() {
    start kded kded5
    start shell plasmashell --no-respawn
    until_true 90 has_panel || die "no panel"
    plasma-apply-wallpaperimage "$work/wall.png" >/dev/null 2>&1
    sleep 5
}
has_panel() {
    gdbus call --session -d org.kde.plasmashell -o /PlasmaShell \
        -m org.freedesktop.DBus.Peer.Ping
}
locker() {
    gdbus call --session -d org.freedesktop.ScreenSaver -o /ScreenSaver \
        -m "org.freedesktop.ScreenSaver.$1"
}
lock() { locker Lock; }
is_locked() { locker GetActive | grep -q true; }
unlock_own() {
    unlock auto
    unlock c1
}
# As the system settings do it, which also tell those who read the file.
wish_little_motion() {
    kwriteconfig5 --file kdeglobals --group KDE --key AnimationDurationFactor \
        "$([ "$1" = on ] && echo 0 || echo 1)"
    gdbus emit --session --object-path /kdeglobals --signal org.kde.kconfig.notify.ConfigChanged \
        "@a{saay} {'KDE': [b'AnimationDurationFactor']}"
}
