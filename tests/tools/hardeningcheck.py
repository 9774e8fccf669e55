#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Checks that a program was built as distributions want it.

    hardeningcheck.py PROGRAM...    prints what is missing; status 1 if anything is

Position independent, all relocations read-only before the program begins, no stack from
which code runs, a guard on the stack, checked functions of the C library, and marks where
jumps may land (on x86).
"""
import pathlib
import re
import subprocess
import sys

LANDING_MARK = b"\xf3\x0f\x1e\xfa"


def read(*arguments):
    return subprocess.run(["readelf", "--wide", *arguments], capture_output=True, text=True,
                          check=True).stdout


def faults_of(program):
    header, segments = read("-h", program), read("-l", program)
    dynamic, symbols = read("-d", program), read("--dyn-syms", program)
    names = set(re.findall(r"\bUND\s+(\w+)", symbols))
    checks = {
        "is not position independent": "Type:" in header and "DYN (" in header,
        "has no read-only relocations": "GNU_RELRO" in segments,
        "binds symbols while it runs": re.search(r"BIND_NOW|FLAGS_1.*\bNOW\b", dynamic),
        "has a stack that can run code": re.search(r"GNU_STACK.*\sRW\s", segments),
        "has no guard on the stack": "__stack_chk_fail" in names,
        "calls no checked functions": any(re.fullmatch(r"__\w+_chk", name) for name in names),
    }
    if "X86-64" in header:
        # The note about it is lost where the C library's own start has none, as on Debian 12;
        # the start itself has a few marks in any case.
        marks = pathlib.Path(program).read_bytes().count(LANDING_MARK)
        checks["does not mark where jumps may land"] = marks > 10
    return [fault for fault, passed in checks.items() if not passed]


def main():
    status = 0
    for program in sys.argv[1:]:
        for fault in faults_of(program):
            print(f"{program}: {fault}")
            status = 1
    return status if len(sys.argv) > 1 else 2


if __name__ == "__main__":
    sys.exit(main())
