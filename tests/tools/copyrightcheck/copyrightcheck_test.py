#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Puts deliberate faults into a small repository and checks that each is found."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).parent))
import copyrightcheck  # noqa: E402

TABLE = """Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/

Files: *
Copyright: 2026 The Morrowleaf developers
License: Expat

Files: pictures/sea.jpg
Copyright: 2026 The Morrowleaf developers
License: Expat

Files: protocol.xml
Copyright: 2015 Ann Other
License: LGPL-2.1+

License: Expat
 Permission is granted.

License: LGPL-2.1+
 Permission is granted.
"""


def notice(holder, licence):
    return f"SPDX-FileCopyrightText: {holder}\n// SPDX-License-Identifier: {licence}\n"


OURS = notice("2026 The Morrowleaf developers", "MIT")
SOUND = {
    "packaging/copyright": TABLE,
    "a.cpp": f"// {OURS}install(copyright ${{NAME}})  // code with the word is no holder\n",
    "pictures/sea.jpg": "\u00ff picture",
    "protocol.xml": "<!--\n" + notice("2015 Ann Other", "LGPL-2.1-or-later") + "-->",
}


FAULTY = {
    "a.cpp": f"// {OURS}// Copyright 2001 Some One\n",
    "b.cpp": "// " + notice("2019 Some One", "MIT"),
    "c.cpp": "// " + notice("2026 The Morrowleaf developers", "GPL-3.0-or-later"),
    "data.json": "{}",
    "pictures/lake.jpg": "picture",
    "pictures/sea.jpg": None,
    "protocol.xml": "// " + OURS,
}


def faults(files):
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder)
        subprocess.run(["git", "init", "-q", root], check=True)
        for path, text in files.items():
            if text is not None:
                (root / path).parent.mkdir(parents=True, exist_ok=True)
                (root / path).write_text(text, encoding="utf-8")
        return copyrightcheck.faults(root)


class CopyrightCheckTest(unittest.TestCase):
    def test_a_sound_tree_has_no_fault(self):
        self.assertEqual(faults(SOUND), [])

    def test_each_fault_is_found(self):
        self.assertEqual(faults(SOUND | FAULTY), [
            # a pattern without a file
            "packaging/copyright: no file matches pictures/sea.jpg",
            # a second holder in a file of ours, and one that is named nowhere
            "a.cpp: packaging/copyright does not name the holder 2001 Some One",
            "b.cpp: packaging/copyright does not name the holder 2019 Some One",
            "b.cpp: does not state the holder 2026 The Morrowleaf developers",
            # another licence
            "c.cpp: states GPL-3, and packaging/copyright Expat",
            # a file without a statement, and a picture beside one that is listed
            "data.json: states no holder and is not listed in packaging/copyright",
            "pictures/lake.jpg: states no holder and is not listed in packaging/copyright",
            # a holder that its paragraph names and the file does not
            "protocol.xml: packaging/copyright does not name the holder"
            " 2026 The Morrowleaf developers",
            "protocol.xml: does not state the holder 2015 Ann Other",
            "protocol.xml: states Expat, and packaging/copyright LGPL-2.1+",
        ])


if __name__ == "__main__":
    unittest.main()
