# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""A small screen reader: finds, presses and sets what a program exposes.

accessible.py list
accessible.py find ROLES NAME     ROLES separated by |, empty for any; NAME may be a prefix
accessible.py labelled ROLE NAME  the control of the label with that name
accessible.py press NAME
accessible.py set NAME VALUE
accessible.py places              role|name|states|x|y|width|height of everything on the screen
accessible.py names LEAST         every control has a name and a role, and there are so many
accessible.py tab NAME            Tab leads to that control, and nothing is told of it before that
accessible.py place ROLE NAME WHICH  this of the WHICHth such thing whose name begins with NAME
"""
import subprocess
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib


def everything(node):
    yield node
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is not None:
            yield from everything(child)


def program():
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        application = desktop.get_child_at_index(index)
        # A theme that uses another toolkit registers the program again, without windows.
        if (
            application is not None
            and application.get_name().lower() == "morrowleaf"
            and application.get_child_count() > 0
        ):
            return application
    sys.exit("the program is not there")


def is_showing(node):
    return node.get_state_set().contains(Atspi.StateType.SHOWING)


def in_closed_list(node):
    return node.get_role_name() == "list item" and not is_showing(node.get_parent())


def seen(node):
    return is_showing(node) or node.get_role_name() in (
        "static",
        "label",
    )


TOLD = ("CHECKED", "FOCUSED", "ENABLED")


def place(node):
    states = node.get_state_set()
    told = [state.lower() for state in TOLD if states.contains(getattr(Atspi.StateType, state))]
    box = node.get_extents(Atspi.CoordType.SCREEN)
    return f"{node.get_role_name()}|{node.get_name()}|{' '.join(told)}|" + "|".join(
        str(number) for number in (box.x, box.y, box.width, box.height)
    )


def find(roles, name):
    for node in everything(program()):
        if not (node.get_name() or "").startswith(name) or not seen(node):
            continue
        role = node.get_role_name()
        if not roles or any(role.endswith(wanted) for wanted in roles.split("|")):
            return node
    sys.exit(f"no {roles} {name}")


def nth_place(role, name, which):
    """Asks as little as possible, because each question goes over the bus and back."""
    found = 0
    for node in everything(program()):
        if (node.get_name() or "").startswith(name) and node.get_role_name() == role:
            if is_showing(node) and not in_closed_list(node):
                found += 1
                if found == which:
                    return place(node)
    sys.exit(f"no {role} {name}")


def check_names(least):
    controls = [node for node in everything(program())
                if is_showing(node) and not in_closed_list(node)
                and node.get_role_name() not in ("frame", "window", "application")
                and node.get_state_set().contains(Atspi.StateType.FOCUSABLE)]
    nameless = [place(node) for node in controls
                if not (node.get_name() or "").strip()
                and not any(relation.get_relation_type() == Atspi.RelationType.LABELLED_BY
                            for relation in node.get_relation_set())]
    roleless = [place(node) for node in controls
                if node.get_role_name() in ("", "invalid", "unknown", "filler", "extended")]
    if len(controls) < least or nameless or roleless:
        sys.exit("\n".join([f"{len(controls)} controls, nameless and without a role:",
                            *nameless, *roleless]))


def press_tab(name):
    focused, heard = "object:state-changed:focused", []
    loop = GLib.MainLoop()

    def hear(event):
        lost = event.type == focused and not event.detail1
        if event.source.get_name() == name and not lost:
            if not heard:
                GLib.timeout_add_seconds(2, loop.quit)  # what it tells of the field
            heard.append(event.type)

    listener = Atspi.EventListener.new(hear)
    for kind in (focused, "object:text-selection-changed", "object:text-caret-moved"):
        listener.register(kind)
    GLib.timeout_add(300, lambda: bool(subprocess.run(["xdotool", "key", "Tab"]).returncode))
    GLib.timeout_add_seconds(20, loop.quit)
    loop.run()
    # A screen reader skips all but the last of the same kind.
    if focused not in heard or any(kind != focused for kind in heard[:-heard[::-1].index(focused)]):
        sys.exit(f"heard of {name}: {heard}")


def is_labelled(node, name):
    return any(
        relation.get_relation_type() == Atspi.RelationType.LABELLED_BY
        and relation.get_target(0).get_name() == name
        for relation in node.get_relation_set()
    )


def main():
    command = sys.argv[1]
    if command == "list":
        for node in everything(program()):
            states = node.get_state_set()
            print(
                f"{node.get_role_name()} | {node.get_name()} | {node.get_description()} |"
                f" {'showing' if states.contains(Atspi.StateType.SHOWING) else 'hidden'}"
            )
    elif command == "places":
        for node in everything(program()):
            if node.get_name() and is_showing(node) and not in_closed_list(node):
                print(place(node))
    elif command == "place":
        print(nth_place(sys.argv[2], sys.argv[3], int(sys.argv[4])))
    elif command == "find":
        node = find(sys.argv[2], sys.argv[3])
        print(node.get_role_name(), node.get_name())
    elif command == "tab":
        press_tab(sys.argv[2])
    elif command == "names":
        check_names(int(sys.argv[2]))
    elif command == "labelled":
        if not any(
            node.get_role_name() == sys.argv[2] and is_labelled(node, sys.argv[3])
            for node in everything(program())
        ):
            sys.exit("nothing has that label")
    elif command == "press":
        node = find("", sys.argv[2])
        if not node.do_action(0):
            sys.exit("cannot be pressed")
    elif command == "set":
        node = find("slider", sys.argv[2])
        if not node.set_current_value(float(sys.argv[3])):
            sys.exit("cannot be set")


try:
    main()
except GLib.Error as error:
    sys.exit(str(error))
