#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Prints the table of desktops and behaviours from the ticks of their walks: ✓ has passed,
✗ has failed, and what has not been walked is empty.
  table.py FOLDER NAME...
"""
import pathlib
import sys

TITLES = {
    "gnome-wayland": "GNOME, Wayland",
    "gnome-x11": "GNOME, X11",
    "plasma-wayland": "Plasma, Wayland",
    "plasma-x11": "Plasma, X11",
    "xfce": "XFCE",
    "cinnamon": "Cinnamon",
    "mate": "MATE",
    "lxqt": "LXQt",
}
COLUMNS = {
    "login": "Login",
    "wake": "Wake",
    "unlock": "Unlock",
    "lock": "Lock above",
    "second": "Second launch",
    "tray": "Tray",
    "settings": "Settings",
    "editor": "Editor",
    "dialog": "Photo dialog",
    "transparency": "Transparency",
    "monitors": "Two monitors",
    "scale": "Scales",
    "wishes": "Wishes",
}


def cells(path, notes):
    """The mark of every behaviour of one desktop."""
    marks = {}
    for line in path.read_text(encoding="utf-8").splitlines():
        cell, state, what = line.split("|", 2)
        if state == "cannot":
            if what not in notes:
                notes.append(what)
            marks[cell] = f"– [{notes.index(what) + 1}]"
        elif state == "failed":
            marks[cell] = "✗"
        else:
            marks.setdefault(cell, "✓")
    return marks


def main():
    folder = pathlib.Path(sys.argv[1])
    notes = []
    print("| Desktop | " + " | ".join(COLUMNS.values()) + " |")
    print("|" + "---|" * (len(COLUMNS) + 1))
    for name in sys.argv[2:]:
        marks = cells(folder / name / "ticks", notes)
        print("| " + " | ".join([TITLES[name]] + [marks.get(c, "") for c in COLUMNS]) + " |")
    for number, note in enumerate(notes, 1):
        print(f"[{number}] {note}")


main()
