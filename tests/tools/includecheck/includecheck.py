#!/usr/bin/env python3
"""Checks the include directions between the folders of a source tree.

An include goes down the picture in ARCHITECTURE.md or stays in its folder.
Besides: platform/*.h may be included from everywhere, what stands in
platform/linux and platform/null only from there and by the one function that
chooses among them, no file includes itself by way of others, and only files
under platform/ ask for an operating system.

    includecheck.py ROOT        one line a fault; status 1 when there is one
"""

import re
import sys
from pathlib import Path

BELOW = {
    "base": set(),
    "settings": {"base"},
    "quotes": {"base", "settings"},
    "sources": {"base", "quotes"},
    "photos": {"settings"},
    "platform": set(),
    "look": {"base"},
    "backdrop": {"look"},
    "textanim": {"base", "settings", "look"},
    "screen": {"base", "settings", "quotes", "photos", "look", "backdrop", "textanim"},
    "settingsui": {"settings", "quotes", "sources", "photos", "look"},
    "app": {
        "base", "settings", "quotes", "sources", "photos", "look", "backdrop", "textanim",
        "screen", "settingsui",
    },
}
BACKENDS = {"platform/linux", "platform/null"}
CHOOSERS = {"platform/linux/chooser.cpp"}
# The tools stand above everything, like app.
ABOVE = {"tools", "bench", "tests"}
SOURCES = {".h", ".cpp"}

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')
CONDITION = re.compile(r"^\s*#\s*(?:if|ifdef|ifndef|elif)\b(.*)")
SYSTEM = re.compile(
    r"\bQ_OS_\w+|\b_*(?:linux|unix|APPLE|MACH|FreeBSD|OpenBSD|NetBSD|ANDROID)_*\b"
    r"|\b_?WIN(?:32|64)\b|\b__MINGW\w*|\b__CYGWIN__\b|\bTARGET_OS_\w+"
)


def room_of(path):
    """The folder of the picture in which a file stands, or None."""
    for room in ("platform/linux", "platform/null"):
        if path.startswith(room + "/"):
            return room
    return path.split("/")[0] if "/" in path else None


def may_include(path, target):
    room, other = room_of(path), room_of(target)
    if other in BACKENDS:
        return room == other or path in CHOOSERS
    if other is None or room == other or other == "platform":
        return True
    if room in BACKENDS:
        return False
    return other in BELOW.get(room, set())


def without_comments(text):
    """The text with comments blanked out, line numbers kept."""
    def blank(match):
        if match.group(0).startswith("/"):
            return "\n" * match.group(0).count("\n")
        return match.group(0)

    return re.sub(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', blank, text, flags=re.S)


def sources(root):
    for room in sorted({r.split("/")[0] for r in BELOW} | ABOVE):
        for file in sorted((root / room).rglob("*")):
            if file.suffix in SOURCES and file.is_file():
                yield file.relative_to(root).as_posix(), file


def find_circle(edges):
    """One circle of includes as a list of files, or None."""
    done, trail = set(), []

    def visit(path):
        if path in trail:
            return trail[trail.index(path):] + [path]
        if path in done:
            return None
        trail.append(path)
        for target in edges.get(path, ()):
            circle = visit(target)
            if circle:
                return circle
        trail.pop()
        done.add(path)
        return None

    for path in sorted(edges):
        circle = visit(path)
        if circle:
            return circle
    return None


def faults(root):
    edges, found = {}, []
    for path, file in sources(root):
        edges[path] = []
        for number, line in enumerate(without_comments(file.read_text()).splitlines(), 1):
            condition = CONDITION.match(line)
            if condition and SYSTEM.search(condition.group(1)) and not path.startswith("platform/"):
                found.append(f"{path}:{number}: asks for an operating system outside platform/")
            include = INCLUDE.match(line)
            if not include:
                continue
            target = include.group(1) or include.group(2)
            if not (root / target).is_file():
                if include.group(1) and (file.parent / target).is_file():
                    found.append(f'{path}:{number}: "{target}" is not written from the root')
                continue
            edges[path].append(target)
            if room_of(path) not in ABOVE and not may_include(path, target):
                found.append(f"{path}:{number}: may not include {target}")
    circle = find_circle(edges)
    if circle:
        found.append("a circle: " + " -> ".join(circle))
    if not edges:
        found.append(f"{root}: no sources")
    return found


def main():
    found = faults(Path(sys.argv[1]).resolve())
    for fault in found:
        print(fault)
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
