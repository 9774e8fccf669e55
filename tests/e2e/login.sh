#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Starting at login: the line that the program prints and the file in the
# desktop's folder. Runs as an ordinary user, to whom a folder can deny access.
here=$(dirname "$0")
if [ "$(id -u)" = 0 ]; then
    exec setpriv --reuid=nobody --regid=nogroup --clear-groups "$0" "$@"
fi
. "$here/lib.sh"
name=org.morrowleaf.Morrowleaf.desktop
file=$XDG_CONFIG_HOME/autostart/$name
export XDG_CONFIG_DIRS=$work/xdg
mkdir -p "$work/xdg/autostart"

# says LINE [COMMAND...]: the registration prints exactly LINE and ends with
# status 0
says() {
    local line=$1 said
    shift
    said=$("${@:-"$MORROWLEAF"}" --register-login) || return 1
    echo "$said"
    [ "$said" = "$line" ]
}
holds() { grep -qx "$1" "$file"; }

check "it is enabled" says "login item: enabled"
check "by a file that starts this program" holds "Exec=\"$MORROWLEAF\""
check "which the desktop can read" desktop-file-validate "$file"
check "again it is no different" says "login item: enabled"
printf '[Desktop Entry]\nType=Application\nName=Morrowleaf\nHidden=true\n' >"$file"
check "what was hidden is enabled" says "login item: enabled"
check "and no longer hidden" not holds "Hidden=true"
cp "$file" "$work/xdg/autostart/$name"
echo "X-GNOME-Autostart-enabled=false" >>"$work/xdg/autostart/$name"
rm "$file"
check "the system's entry is overruled" says "login item: enabled"
check "by one of the user's own" test -f "$file"

# A program whose file is removed while it runs, as upgrades do.
copy() {
    mkdir -p "$work/bin"
    cp "$MORROWLEAF" "$work/bin/morrowleaf"
    exec 9<"$work/bin/morrowleaf"
    rm "$work/bin/morrowleaf"
}
copy
check "a program that is gone waits for approval" \
    says "login item: registered, pending approval" /proc/self/fd/9
check "the file is written all the same" test -f "$file"
copy
cp "$MORROWLEAF" "$work/bin/morrowleaf"
check "one that was replaced does not" says "login item: enabled" /proc/self/fd/9
check "and the new file will be started" holds "Exec=\"$work/bin/morrowleaf\""
exec 9<&-

rm -r "$XDG_CONFIG_HOME/autostart"
mkdir "$XDG_CONFIG_HOME/autostart"
chmod 500 "$XDG_CONFIG_HOME/autostart"
check "a folder that refuses is told in the system's words" \
    says "login item failed: Permission denied"
chmod 500 "$XDG_CONFIG_HOME"
rmdir "$XDG_CONFIG_HOME/autostart" 2>/dev/null
chmod 700 "$XDG_CONFIG_HOME"
rmdir "$XDG_CONFIG_HOME/autostart"
chmod 500 "$XDG_CONFIG_HOME"
check "so is one that cannot be made" says "login item failed: Permission denied"
check "and nothing is left behind" [ -z "$(ls -A "$XDG_CONFIG_HOME")" ]
chmod 700 "$XDG_CONFIG_HOME"
check "without a display and a bus it works too" env -u DISPLAY -u DBUS_SESSION_BUS_ADDRESS \
    bash -c 'test "$("$1" --register-login)" = "login item: enabled"' - "$MORROWLEAF"
finish
