#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

# Walks through desktops, one after the other, and prints the table of ticks. The
# pictures of each are in FOLDER/NAME.
#   run.sh BUILD-FOLDER FOLDER NAME...
set -u
desks=$(cd "$(dirname "$0")" && pwd)
build=$(realpath "$1")
out=$2
shift 2
mkdir -p "$out"
out=$(realpath "$out")
PREFIX=$out/installed
rm -rf "$PREFIX"
cmake --install "$build" --prefix "$PREFIX" >"$out/install.log" || exit 1
chmod -R a+rX "$PREFIX"
export PREFIX E2E_WINDOW=$build/tests/e2e_window SNAPSHOT=$build/tools/snapshot

# A desktop does not run as root.
as_user=()
if [ "$(id -u)" = 0 ]; then
    as_user=(setpriv --reuid=nobody --regid=nogroup --clear-groups env USER=nobody)
fi
status=0
for name in "$@"; do
    export OUT=$out/$name
    rm -rf "$OUT"
    mkdir -p "$OUT"
    touch "$OUT/ticks"
    [ "$(id -u)" != 0 ] || chown -R nobody:nogroup "$OUT"
    printf '== %s\n' "$name"
    # A session of processes of its own, so that the walk ends what it has left.
    setsid -w "${as_user[@]}" "$desks/$name.sh" || status=1
done
"$desks/table.py" "$out" "$@" | tee "$out/table.md"
exit $status
