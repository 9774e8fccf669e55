#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Checks that the manual page names every environment variable that the program reads and
every option, and that the completions of the shells know the same options.

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


def options_in(place, text):
    """The options that a page or a completion knows, by the file's own way to name them."""
    if place.endswith(".1"):
        synopsis = re.search(r"\.SH SYNOPSIS(.*?)\.SH", text, re.S)[1]
        described = re.findall(r"^\.B (\\-\\-\S+)$", text, re.M)
        listed = re.findall(r"\\-\\-[a-z\\-]+", synopsis)
        return {name.replace("\\", "") for name in set(described) ^ set(listed) or described}
    if place.endswith(".fish"):
        return {f"--{name}" for name in re.findall(r" -l (\S+)", text)}
    return set(re.findall(r"--[a-z-]+", text.split("complete -W")[-1]))


def check_options(root):
    wanted = set(re.findall(r'"(--[a-z-]+)"', (root / "app/commandline.cpp").read_text()))
    if not wanted:
        yield "found no option at all"
    for place in ("morrowleaf.1", "completions/morrowleaf.bash", "completions/_morrowleaf",
                  "completions/morrowleaf.fish"):
        there = options_in(place, (root / "packaging" / place).read_text())
        if there != wanted:
            yield f"packaging/{place}: has {sorted(there)}, the program {sorted(wanted)}"


def main():
    root = pathlib.Path(sys.argv[1])
    rooms = {file.parent for file in root.glob("*/CMakeLists.txt")
             if file.parent.name not in NO_ROOMS}
    sources = [path for room in rooms for path in room.rglob("*.[ch]*")]
    read = set().union(*(variables_in(path.read_text()) for path in sources)) - INTERNAL
    page = (root / "packaging/morrowleaf.1").read_text()
    faults = [f"packaging/morrowleaf.1: does not name the environment variable {name}"
              for name in sorted(read) if not re.search(rf"^\.B.*\b{name}\b", page, re.M)]
    if not read:
        faults.append("found no environment variable at all")
    faults += check_options(root)
    print("\n".join(faults))
    return 1 if faults else 0


sys.exit(main())
