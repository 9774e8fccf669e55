# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# shellcheck shell=bash disable=SC2034,SC2154
# What GNOME on Wayland and on X11 have in common; needs lib.sh.

prepare_gnome() {
    export XDG_CURRENT_DESKTOP=GNOME XDG_SESSION_DESKTOP=gnome DESKTOP_SESSION=gnome
    export GNOME_SHELL_SESSION_MODE=user XDG_SESSION_TYPE=$1
    gsettings set org.gnome.shell enabled-extensions "['ubuntu-appindicators@ubuntu.com']"
    gsettings set org.gnome.shell welcome-dialog-last-shown-version '99'
    gsettings set org.gnome.desktop.session idle-delay 0
    # Otherwise sleep alone would lock the screen.
    gsettings set org.gnome.desktop.screensaver lock-enabled false
    # The banner of a window of the walk would be in its pictures.
    gsettings set org.gnome.desktop.notifications show-banners false
    local key
    for key in picture-uri picture-uri-dark; do
        gsettings set org.gnome.desktop.background $key "file://$work/wall.png"
    done
    tell_services XDG_CURRENT_DESKTOP XDG_SESSION_TYPE XDG_SESSION_DESKTOP
}

# in_shell JAVASCRIPT: prints the value, as JSON
in_shell() {
    gdbus call --session -d org.gnome.Shell -o /org/gnome/Shell -m org.gnome.Shell.Eval "$1" |
        sed -n "s/^(true, '\(.*\)')$/\1/p"
}
shell_says() { [ "$(in_shell "$1")" = "$2" ]; }
shell_is_ready() { shell_says 'Main.layoutManager._startingUp' false; }
# Without them where nothing accelerates drawing, the shell tells every program so.
allow_animations() { in_shell 'imports.gi.St.Settings.get().uninhibit_animations()' >/dev/null; }
overview_is_open() { shell_says Main.overview.visible true; }
close_overview() { in_shell 'Main.overview.hide()' >/dev/null; }
focused() { in_shell 'global.display.focus_window ? global.display.focus_window.title : ""' | tr -d '"'; }

# The shell does not trust a new window that no click has led to.
activate_window() {
    in_shell "global.get_window_actors().map(a => a.meta_window).filter(
        w => w.title == '$1').forEach(w => w.activate(global.get_current_time()))" >/dev/null
}

lock() { in_shell 'Main.screenShield.lock(true)' >/dev/null; }
is_locked() { shell_says 'Main.screenShield.locked && Main.screenShield.active' true; }
unlock_own() { unlock c1; }

wish_little_motion() {
    gsettings set org.gnome.desktop.interface enable-animations "$([ "$1" = on ] && echo false || echo true)"
}

# At login the overview is open, and it is again after the showing.
is_as_before_login() { overview_is_open; }
