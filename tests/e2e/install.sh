#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# The installed files: valid, complete, and usable in any folder.
#   install.sh BUILD-FOLDER
here=$(dirname "$0")
. "$here/lib.sh"
id=org.morrowleaf.Morrowleaf

DESTDIR=$work/root cmake --install "$1" --prefix /usr >"$work/install.log" 2>&1
check "it installs" test -x "$work/root/usr/bin/morrowleaf"
share=$work/root/usr/share
check "the desktop file is valid" desktop-file-validate "$share/applications/$id.desktop"
check "the metainfo is valid" appstreamcli validate --no-net "$share/metainfo/$id.metainfo.xml"
for file in icons/hicolor/scalable/apps/$id.svg icons/hicolor/symbolic/apps/$id-symbolic.svg \
    dbus-1/services/$id.service man/man1/morrowleaf.1.gz morrowleaf/Fonts/Fraunces72pt-Light.ttf \
    morrowleaf/Backgrounds/sea.jpg morrowleaf/icons/quote-sym-22.svg; do
    check "$file is there" test -f "$share/$file"
done
for file in man/de/man1/morrowleaf.1.gz man/zh_CN/man1/morrowleaf.1.gz \
    bash-completion/completions/morrowleaf fish/vendor_completions.d/morrowleaf.fish; do
    check "$file is there" test -f "$share/$file"
done
check "and the completion for zsh" ls "$share"/zsh/*/_morrowleaf
check "the menu of programs knows German" \
    grep -qx 'Comment\[de\]=Begrüßt Sie mit einem Zitat' "$share/applications/$id.desktop"
check "the bus starts the installed program" \
    grep -qx 'Exec=/.*/bin/morrowleaf' "$share/dbus-1/services/$id.service"

mv "$work/root/usr" "$work/elsewhere"
cd /
self_test() { [ "$("$work/elsewhere/bin/morrowleaf" --selftest)" = \
    "selftest ok — 124 quotes, connector parsing ok" ]; }
check "it runs from any place, without a display" self_test
# first_line_in LANGUAGE: of the help
first_line_in() { LANGUAGE=$1 "$work/elsewhere/bin/morrowleaf" --help | sed -n 1p; }
check "its help is in English" [ "$(first_line_in 'fi')" = "Usage: morrowleaf [OPTION]" ]
check "in German" [ "$(first_line_in 'fi:de_AT:fr')" = "Aufruf: morrowleaf [OPTION]" ]
check "but not where English is wished first" \
    [ "$(first_line_in en_GB:de)" = "Usage: morrowleaf [OPTION]" ]
numbers_only() { "$work/elsewhere/bin/morrowleaf" --version | grep -qxE 'Morrowleaf [0-9.]+'; }
check "it says its version" numbers_only
offers() {
    bash -c '. "$1"; complete -p morrowleaf' - \
        "$share_now/bash-completion/completions/morrowleaf" | grep -q -- "--version"
}
share_now=$work/elsewhere/share
check "bash completes its options" offers
opened() { strace -f -e trace=openat -o "$work/trace.log" "$work/elsewhere/bin/morrowleaf" --selftest; }
if command -v strace >/dev/null; then
    opened >/dev/null
    check "with its own typefaces" grep -q "elsewhere/.*Fraunces72pt-Light.ttf" "$work/trace.log"
fi

# reads NAME REQUEST SIZE: the installed reader answers the request
reads() {
    truncate -s "$3" "$work/answer"
    printf '%s\n' "$2" | "$work/elsewhere/libexec/morrowleaf/$1" 5 5<>"$work/answer"
}
printf '{"q": "A line."}' >"$work/quote"
check "it has a reader of quotations" reads quotereader "$work/quote" 1000
check "which reads them" grep -qF "A line." "$work/answer"
check "it has a reader of photos" \
    reads photoreader "16 16 $work/elsewhere/share/morrowleaf/Backgrounds/sea.jpg" 1024

registered() { XDG_CONFIG_HOME=$1 "$work/elsewhere/bin/morrowleaf" --register-login; }
check "the login item is enabled" [ "$(registered "$work/config")" = "login item: enabled" ]
check "and starts this program" \
    grep -qx "Exec=\"$work/elsewhere/bin/morrowleaf\"" "$work/config/autostart/$id.desktop"
touch "$work/blocked"
check "a failure is told in the system's words" \
    [ "$(registered "$work/blocked")" = "login item failed: Not a directory" ]

# needs FIELD PACKAGE: the package names another one in this field
needs() { dpkg-deb -f "$work"/package/*.deb "$1" | grep -qw -- "$2"; }
if command -v lintian >/dev/null; then
    cpack --config "$1/CPackConfig.cmake" -B "$work/package" >"$work/cpack.log" 2>&1
    check "the Debian package is built" ls "$work"/package/*.deb
    check "it recommends a face for Chinese, Japanese and Korean" needs Recommends fonts-noto-cjk
    check "and one for emoji" needs Recommends fonts-noto-color-emoji
    check "and the certificates of the web" needs Recommends ca-certificates
    check "it depends on what only its readers use" needs Depends libcurl4
    check "without errors" lintian --allow-root --fail-on error "$work"/package/*.deb
fi
finish
