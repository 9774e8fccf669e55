#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Tests hardeningcheck.py on small programs, each built without one of the protections."""
import pathlib
import platform
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).with_name("hardeningcheck.py")
PROGRAM = """
#include <stdio.h>
#include <string.h>
#define F(name) int name(int x) { return x + __LINE__; }
F(a) F(b) F(c) F(d) F(e) F(f) F(g) F(h) F(i) F(j) F(k)
int main(int argc, char** argv) {
    char text[16];
    strcpy(text, argv[argc - 1]);
    return puts(text);
}
"""
IS_X86 = platform.machine() == "x86_64"
ALL = ["-O2", "-fPIE", "-pie", "-fstack-protector-strong", "-U_FORTIFY_SOURCE",
       "-D_FORTIFY_SOURCE=2", "-Wl,-z,relro,-z,now,-z,noexecstack",
       *(["-fcf-protection"] if IS_X86 else [])]


def checked(*flags):
    with tempfile.TemporaryDirectory() as folder:
        program = pathlib.Path(folder) / "program"
        subprocess.run(["cc", *ALL, *flags, "-x", "c", "-", "-o", program], input=PROGRAM,
                       text=True, check=True)
        result = subprocess.run([sys.executable, CHECK, program], capture_output=True, text=True,
                                check=False)
        return result.returncode, result.stdout


class HardeningCheck(unittest.TestCase):
    def expect(self, fault, *flags):
        status, said = checked(*flags)
        self.assertEqual(status, 1)
        self.assertIn(fault, said)

    def test_accepts_a_program_with_all_protections(self):
        self.assertEqual(checked(), (0, ""))

    def test_finds_what_is_missing(self):
        self.expect("is not position independent", "-no-pie", "-fno-pie")
        self.expect("has no read-only relocations", "-Wl,-z,norelro")
        self.expect("binds symbols while it runs", "-Wl,-z,lazy")
        self.expect("has a stack that can run code", "-Wl,-z,execstack")
        self.expect("has no guard on the stack", "-fno-stack-protector")
        self.expect("calls no checked functions", "-U_FORTIFY_SOURCE")

    @unittest.skipUnless(IS_X86, "only on x86")
    def test_finds_missing_marks(self):
        self.expect("does not mark where jumps may land", "-fcf-protection=none")


if __name__ == "__main__":
    unittest.main()
