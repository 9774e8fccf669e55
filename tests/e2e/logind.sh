# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# shellcheck shell=bash disable=SC2034,SC2154
# A login manager for tests, on a private system bus; needs lib.sh.
mock=org.freedesktop.DBus.Mock
login=org.freedesktop.login1

start_logind() {
    start logind /usr/bin/python3 -m dbusmock --system --template logind
    logind_pid=$last
    until_true 60 add_session c1 "$(id -u)" || die "no login manager"
    until_true 60 add_session c2 4242
    export XDG_SESSION_ID=c1
}
call_login() { gdbus call --system --timeout 5 -d $login "$@"; }
add_session() { call_login -o /org/freedesktop/login1 -m $mock.AddSession "$1" seat0 "$2" user true; }
session_call() {
    local session=$1 method=$2
    shift 2
    call_login -o "/org/freedesktop/login1/session/$session" -m "$method" "$@" >/dev/null
}
set_hint() { session_call c1 $login.Session.SetLockedHint "$1"; }
set_active() { session_call c1 $mock.UpdateProperties $login.Session "{\"Active\": <$1>}"; }
unlock() { session_call "${1:-c1}" $mock.EmitSignal $login.Session Unlock '' '[]'; }
wake() {
    call_login -o /org/freedesktop/login1 -m $mock.EmitSignal $login.Manager PrepareForSleep b \
        '[<true>]' >/dev/null
    call_login -o /org/freedesktop/login1 -m $mock.EmitSignal $login.Manager PrepareForSleep b \
        '[<false>]' >/dev/null
}
start_saver() {
    start saver /usr/bin/python3 -m dbusmock --session org.freedesktop.ScreenSaver \
        /org/freedesktop/ScreenSaver org.freedesktop.ScreenSaver
    until_true 60 gdbus call --session -d org.freedesktop.ScreenSaver \
        -o /org/freedesktop/ScreenSaver -m org.freedesktop.DBus.Peer.Ping || die "no screen saver"
}
saver_active() {
    gdbus call --session -d org.freedesktop.ScreenSaver -o /org/freedesktop/ScreenSaver \
        -m $mock.EmitSignal org.freedesktop.ScreenSaver ActiveChanged b "[<$1>]" >/dev/null
}
