#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Runs clang's analyzer over the Objective-C of the macOS backend. So that silence means
something, it must find an object that is never released and one that is used after its
release, in changed copies.

    analyze.py     prints what the analyzer says; status 1 if it says anything
"""

import subprocess
import sys
import tempfile
from pathlib import Path

import compiler
from mistakes import BACKDROP, SESSION, plant

CHECKERS = "core,deadcode,nullability,osx,osx.cocoa,osx.coreFoundation,security,unix"
CONTROLS = [
    ("an object that is never released", [(BACKDROP, "return [blur autorelease];", "return blur == nil ? blur : nil;")],
     "Potential leak of an object"),
    ("an object that is used after its release", [
        (SESSION, "    [(MacSessionWatch*)watch end];\n    [(MacSessionWatch*)watch release];",
         "    MacSessionWatch* own = [[MacSessionWatch alloc] init];\n    [own release];\n    [own end];")],
     "after it is released"),
]


def analyze(root, file):
    return subprocess.run(compiler.clang(root) + ["--analyze", "-Xclang", f"-analyzer-checker={CHECKERS}",
                                                  "-Xclang", "-analyzer-output=text", str(file)],
                          capture_output=True, text=True, cwd=root).stderr


def main():
    wrong = 0
    for file in compiler.core_files(compiler.ROOT):
        said = analyze(compiler.ROOT, file)
        print(said, end="")
        wrong += bool(said)
    for name, changes, expected in CONTROLS:
        with tempfile.TemporaryDirectory() as temporary:
            file = plant(Path(temporary), changes)
            if expected not in analyze(Path(temporary), file):
                print(f"The analyzer does not find {name}.")
                wrong += 1
    print(f"{len(compiler.core_files(compiler.ROOT))} files and {len(CONTROLS)} controls analyzed, {wrong} not as expected")
    return 1 if wrong else 0


if __name__ == "__main__":
    compiler.tool("clang-14", "clang")
    sys.exit(main())
