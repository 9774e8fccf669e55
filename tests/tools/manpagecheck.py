#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Checks that the manual page names every environment variable that the program reads.

    manpagecheck.py REPOSITORY

A variable is read by name in a call, or its name is a constant that such a call takes.
"""
import pathlib
import re
import sys

READ = re.compile(r"\b(?:qgetenv|qEnvironmentVariable\w*)\((?:[^()\"]*)\"(\w+)\"")
BY_CONSTANT = re.compile(r"\b(?:qgetenv|qEnvironmentVariable\w*)\((\w+)[,)]")
CHOICE = re.compile(r"\b(?:qgetenv|qEnvironmentVariable\w*)\([^()\"]*\"(\w+)\" : \"(\w+)\"")
# What the system sets for this one process, and nobody sets by hand.
INTERNAL = {"DBUS_STARTER_BUS_TYPE"}


def variables_in(source):
    found = set(READ.findall(source))
    for pair in CHOICE.findall(source):
        found.update(pair)
    for constant in BY_CONSTANT.findall(source):
        found.update(re.findall(rf"\b{constant} = \"(\w+)\"", source))
    return found


def main():
    root = pathlib.Path(sys.argv[1])
    # The rooms; tests and tools read variables of their own.
    sources = [path for pattern in ("*.cpp", "*.h") for path in root.rglob(pattern)
               if path.relative_to(root).parts[0] not in ("tests", "tools", "bench", "build")]
    read = set().union(*(variables_in(path.read_text()) for path in sources)) - INTERNAL
    page = (root / "packaging/morrowleaf.1").read_text()
    missing = [name for name in sorted(read) if not re.search(rf"^\.B.*\b{name}\b", page, re.M)]
    for name in missing:
        print(f"packaging/morrowleaf.1: does not name the environment variable {name}")
    if not read:
        print("found no environment variable at all")
    return 1 if missing or not read else 0


sys.exit(main())
