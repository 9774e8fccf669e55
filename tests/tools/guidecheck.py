#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Checks the documents.

    guidecheck.py ROOT      prints one line per fault; status 1 if there is any

Every link leads to a file or a heading that is there; every page of docs/ can be reached from
README.md, and every picture of docs/pictures/ is shown; every `./dev COMMAND` is one that
`./dev help` lists; options of the program in the documents are among those of its help.
"""
import pathlib
import re
import sys

LINK = re.compile(r"!?\[[^\]]*\]\(([^)\s]+)\)")


def anchors_of(text):
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-")
            for heading in re.findall(r"^#+ (.*)$", text, re.M)}


def check_links(root, page, pages):
    """Yields faults, and the targets by their path as `reached`."""
    for link in LINK.findall(pages[page]):
        if re.match(r"https?:", link):
            continue
        path, _, anchor = link.partition("#")
        target = (page.parent / path).resolve() if path else page
        if not target.exists():
            yield f"{page.relative_to(root)}: there is no {link}", None
        elif anchor and anchor not in anchors_of(pages.get(target, "")):
            yield f"{page.relative_to(root)}: {path or page.name} has no heading {anchor}", None
        else:
            yield None, target


def check(root):
    root = root.resolve()
    pages = {path: path.read_text(encoding="utf-8")
             for path in [*root.glob("*.md"), *root.glob("docs/*.md")]}
    links = {page: set() for page in pages}
    faults = []
    for page in pages:
        for fault, target in check_links(root, page, pages):
            if fault:
                faults.append(fault)
            else:
                links[page].add(target)
    reached, ahead = set(), {root / "README.md"}
    while ahead:
        reached |= ahead
        ahead = set().union(*(links.get(page, set()) for page in ahead)) - reached
    wanted = [*root.glob("docs/*.md"), *root.glob("docs/pictures/*")]
    faults += [f"README.md: no way leads to {path.relative_to(root)}"
               for path in sorted(wanted) if path not in reached]

    commands = set(re.findall(r"^\./dev (\w+)", (root / "dev").read_text(encoding="utf-8"), re.M))
    commands.add("help")
    options = set(re.findall(r'u?"(--[\w-]+)', (root / "app/commandline.cpp").read_text()))
    options |= set(re.findall(r'"(--[\w-]+)"', (root / "app/application.cpp").read_text()))
    for page, text in pages.items():
        name = page.relative_to(root)
        faults += [f"{name}: there is no ./dev {command}"
                   for command in sorted(set(re.findall(r"\./dev ([a-z]\w*)", text)) - commands)]
        faults += [f"{name}: the program has no option {option}" for option in sorted(
            set(re.findall(r"\bmorrowleaf (--[\w-]+)", text)) - options)]
    if len(commands) < 2 or not options:
        faults.append("found no commands or no options at all")
    return faults


def main():
    faults = check(pathlib.Path(sys.argv[1]))
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
