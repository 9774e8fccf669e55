#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Checks that the manual page names every environment variable that the program reads.

    manpagecheck.py REPOSITORY

A variable is read by a call that names it or a constant with its name.
"""
import pathlib
import re
import sys

CALL = re.compile(r"\b(?:q?getenv|secure_getenv|qEnvironmentVariable\w*)\(([^)]*)\)")
# What the system sets for this one process, and nobody sets by hand.
INTERNAL = {"DBUS_STARTER_BUS_TYPE"}
NO_ROOMS = {"tests", "tools", "bench"}  # these read variables of their own


def variables_in(source):
    arguments = " ".join(CALL.findall(source))
    constants = re.findall(r"(\w+) = \"([A-Z]\w*)\"", source)
    return set(re.findall(r"\"([A-Z]\w*)\"", arguments)) | {
        value for name, value in constants if re.search(rf"\b{name}\b", arguments)}


def main():
    root = pathlib.Path(sys.argv[1])
    rooms = {file.parent for file in root.glob("*/CMakeLists.txt")
             if file.parent.name not in NO_ROOMS}
    sources = [path for room in rooms for path in room.rglob("*.[ch]*")]
    read = set().union(*(variables_in(path.read_text()) for path in sources)) - INTERNAL
    page = (root / "packaging/morrowleaf.1").read_text()
    missing = [name for name in sorted(read) if not re.search(rf"^\.B.*\b{name}\b", page, re.M)]
    for name in missing:
        print(f"packaging/morrowleaf.1: does not name the environment variable {name}")
    if not read:
        print("found no environment variable at all")
    return 1 if missing or not read else 0


sys.exit(main())
