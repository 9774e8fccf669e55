#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Checks the files of the repository against packaging/copyright.

licensecheck reports the holders and the licence that a file states. This checks that

- packaging/copyright is well formed and every pattern in it matches a file
- the holders that a file states are those of its paragraph, no more and no fewer
- a licence that licensecheck recognizes in a file is the paragraph's
- a file without a statement, such as a picture, is listed by a paragraph of
  its own: "Files: *" does not cover it

    copyrightcheck.py ROOT      prints one line per fault; status 1 if there is any

Needs the Debian packages licensecheck and python3-debian.
"""

import fnmatch
import re
import subprocess
import sys
from pathlib import Path

from debian.copyright import Copyright

TABLE = "packaging/copyright"
# These contain the notices of other files as data.
QUOTES_OTHERS = {
    TABLE,
    "LICENSE",
    "docs/recipes/build_fraunces.py",
    "tests/tools/copyrightcheck/copyrightcheck_test.py",
}
BINARY = {".bmp", ".gif", ".icns", ".ico", ".jpg", ".otf", ".pgm", ".png", ".ppm", ".tga", ".tiff",
          ".ttf", ".wbmp", ".webp"}
NO_LICENCE, NO_HOLDER = "UNKNOWN", "*No copyright*"
# Code with the word "copyright", which licensecheck mistakes for a holder.
CODE = re.compile(r"[a-z(]|\d{1,3}:|.*[${};=]")
# licensecheck also finds the first licence in the text of the second.
PART_OF = {"NTP~disclaimer": "HPND-sell-variant"}


def tracked_files(root):
    listed = subprocess.run(["git", "-C", root, "ls-files", "-z", "--cached", "--others",
                             "--exclude-standard"], check=True, capture_output=True)
    return sorted(path for path in listed.stdout.decode().split("\0")
                  if path and (root / path).is_file())


def read_statements(root, paths):
    """Path to the set of licences and the set of holders that the file states."""
    found = subprocess.run(
        ["licensecheck", "--machine", "--copyright", "--lines", "0", "--encoding", "utf8",
         "--check", ".*", "--shortname-scheme", "debian,spdx", "--", *paths],
        check=True, capture_output=True, cwd=root)
    statements = {}
    for line in found.stdout.decode(errors="replace").splitlines():
        path, licences, holders = line.split("\t")
        statements[path] = (
            set(re.split(r" and/or | and | or ", licences)) - {NO_LICENCE},
            {holder for holder in holders.split(" / ")
             if holder != NO_HOLDER and not CODE.match(holder)})
    return statements


def same_licence(stated, listed):
    # licensecheck drops the "or later" of an SPDX tag.
    return PART_OF.get(stated, stated).rstrip("+") == listed.rstrip("+")


def check_patterns(table, paths):
    for paragraph in table.all_files_paragraphs():
        for pattern in paragraph.files:
            if not any(fnmatch.fnmatchcase(path, pattern) for path in paths):
                yield f"{TABLE}: no file matches {pattern}"


def check_file(path, paragraph, licences, holders):
    if paragraph is None:
        yield f"{path}: is in no paragraph of {TABLE}"
        return
    listed = {line.strip() for line in paragraph.copyright.splitlines()}
    if not licences and not holders:
        if paragraph.files == ("*",):
            yield f"{path}: states no holder and is not listed in {TABLE}"
        return
    for holder in sorted(holders - listed):
        yield f"{path}: {TABLE} does not name the holder {holder}"
    for holder in sorted(listed - holders if holders else ()):
        yield f"{path}: does not state the holder {holder}"
    for licence in sorted(licences):
        if not same_licence(licence, paragraph.license.synopsis):
            yield f"{path}: states {licence}, and {TABLE} {paragraph.license.synopsis}"


def faults(root):
    with open(root / TABLE, encoding="utf-8") as file:
        table = Copyright(file, strict=True)
    paths = tracked_files(root)
    texts = [path for path in paths if Path(path).suffix not in BINARY
             and path not in QUOTES_OTHERS]
    statements = read_statements(root, texts)
    found = list(check_patterns(table, paths))
    for path in paths:
        if path in QUOTES_OTHERS:
            continue
        licences, holders = statements.get(path, (set(), set()))
        found += check_file(path, table.find_files_paragraph(path), licences, holders)
    return found


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    found = faults(Path(sys.argv[1]).resolve())
    for fault in found:
        print(fault)
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
