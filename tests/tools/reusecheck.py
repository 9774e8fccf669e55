#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Runs `reuse lint` on the files of the repository.

    reusecheck.py ROOT      ends with the status of reuse

The holders and licences of files without a notice are in packaging/copyright, with the names
that Debian gives to licences; reuse wants them elsewhere and with the names of SPDX, so it
gets a copy of the repository. Needs the Debian package reuse.
"""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

# X11-freedesktop has the words of MIT and the name of its holder.
SPDX = {"Expat": "MIT", "X11-freedesktop": "MIT", "LGPL-2.1+": "LGPL-2.1-or-later"}


def write_licences(text, root):
    """Writes .reuse/dep5 and LICENSES/."""
    for name, spdx in SPDX.items():
        text = re.sub(rf"^License: {re.escape(name)}$", f"License: {spdx}", text, flags=re.M)
    paragraphs = {}
    for paragraph in text.split("\n\n"):
        found = re.match(r"License: (\S+)\n(.*)", paragraph, re.S)
        # reuse takes one text of a licence.
        paragraphs.setdefault(found[1] if found else paragraph, (paragraph, found))
    (root / ".reuse").mkdir()
    (root / ".reuse/dep5").write_text("\n\n".join(one for one, _ in paragraphs.values()))
    (root / "LICENSES").mkdir()
    for name, (_, found) in paragraphs.items():
        if found:
            (root / "LICENSES" / f"{name}.txt").write_text(found[2])


def main():
    source = pathlib.Path(sys.argv[1])
    listed = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "-z"],
                            cwd=source, capture_output=True, text=True, check=True).stdout
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder)
        for name in filter(None, listed.split("\0")):
            if (source / name).is_file():
                (root / name).parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source / name, root / name)
        write_licences((source / "packaging/copyright").read_text(encoding="utf-8"), root)
        return subprocess.run(["reuse", "--root", root, "lint"], check=False).returncode


if __name__ == "__main__":
    sys.exit(main())
