#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Compiles the Objective-C of the macOS backend for both processors of the Mac and links
it against stubs of the frameworks, which are made from what is known about the system: a
name that the frameworks do not have is an undefined symbol.

    macho.py     prints what it has made; status 1 if something fails
"""

import json
import subprocess
import sys
import tempfile
from pathlib import Path

import compiler

HERE = Path(__file__).resolve().parent
FRAMEWORKS = ("AppKit", "CoreGraphics", "Foundation", "ServiceManagement")
# What compilers call for the language itself, and its library.
RUNTIME = {
    "libobjc": ("/usr/lib/libobjc.A.dylib", ["NSObject"],
                ["objc_msgSend", "objc_msgSend_stret", "objc_msgSendSuper2", "_objc_empty_cache",
                 "objc_alloc", "objc_alloc_init", "objc_opt_class", "objc_opt_isKindOfClass",
                 "objc_release", "objc_retain", "objc_autorelease"]),
    "libSystem": ("/usr/lib/libSystem.B.dylib", [],
                  ["_NSConcreteStackBlock", "dyld_stub_binder"]),
    "CoreFoundation": ("/System/Library/Frameworks/CoreFoundation.framework/Versions/A/CoreFoundation",
                       [], ["__CFConstantStringClassReference"]),
}
# Comes from the compiler's own library.
VERSION_TEST = "___isPlatformVersionAtLeast"
# Only from macOS 26 on; a program that runs before must not need it.
WEAK = "_OBJC_CLASS_$_NSGlassEffectView"


def write_stub(folder, name, install_name, classes, symbols):
    targets = ", ".join(f"{p}-macos" for p in compiler.PROCESSORS)
    lines = ["--- !tapi-tbd", "tbd-version: 4", f"targets: [ {targets} ]",
             f"install-name: '{install_name}'", "exports:", f"  - targets: [ {targets} ]"]
    if symbols:
        names = (s if s == "dyld_stub_binder" else "_" + s for s in sorted(symbols))
        lines.append("    symbols: [ " + ", ".join(f"'{n}'" for n in names) + " ]")
    if classes:
        lines.append("    objc-classes: [ " + ", ".join(f"'{c}'" for c in sorted(classes)) + " ]")
    (folder / f"{name}.tbd").write_text("\n".join(lines + ["..."]) + "\n")


def write_stubs(folder):
    digest = json.loads((HERE / "macos26.json").read_text())
    for framework in FRAMEWORKS:
        write_stub(folder, framework,
                   f"/System/Library/Frameworks/{framework}.framework/Versions/A/{framework}",
                   [n for n, c in digest["classes"].items() if c["framework"] == framework and c["isClass"]],
                   [n for kind in ("constants", "functions") for n, v in digest[kind].items()
                    if v["framework"] == framework])
    for name, (install_name, classes, symbols) in RUNTIME.items():
        write_stub(folder, name, install_name, classes, symbols)
    return [str(folder / f"{name}.tbd") for name in (*FRAMEWORKS, *RUNTIME)]


def build(root, folder, processor, stubs):
    """A library of all sources; raises CalledProcessError."""
    objects = []
    for file in compiler.core_files(root):
        objects.append(str(folder / f"{file.stem}-{processor}.o"))
        subprocess.run(compiler.clang(root, processor) + ["-O2", "-Werror", "-c", str(file), "-o", objects[-1]],
                       check=True)
    library = folder / f"core-{processor}.dylib"
    subprocess.run([compiler.tool("ld64.lld-14", "ld64.lld"), "-dylib", "-arch", processor, "-platform_version", "macos",
                    compiler.OLDEST, compiler.NEWEST, "-undefined", "error", "-U", VERSION_TEST, *objects, *stubs,
                    "-o", str(library)], check=True)
    return library


def main():
    names = compiler.tool("llvm-nm-14", "llvm-nm")
    compiler.tool("ld64.lld-14", "ld64.lld")
    with tempfile.TemporaryDirectory() as temporary:
        folder = Path(temporary)
        stubs = write_stubs(folder)
        for processor in compiler.PROCESSORS:
            try:
                library = build(compiler.ROOT, folder, processor, stubs)
            except subprocess.CalledProcessError:
                return 1
            undefined = subprocess.run([names, "-m", "-u", str(library)], capture_output=True, text=True,
                                       check=True).stdout
            glass = [line for line in undefined.splitlines() if f" {WEAK} " in line]
            if not glass or " weak " not in glass[0]:
                print(f"{processor}: {WEAK} is not linked weakly: {glass}")
                return 1
            print(f"{processor}: {library.stat().st_size} bytes, {len(undefined.splitlines())} names of the system")
    return 0


if __name__ == "__main__":
    sys.exit(main())
