# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""How the Objective-C of the macOS backend is compiled without a Mac."""

import shutil
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
CORE = "platform/macos/core"
SDK = "tests/macos/sdk"
OLDEST, NEWEST = "13.0", "26.0"
PROCESSORS = ("arm64", "x86_64")
SKIPPED = 77

# These warn of habits that the system's own headers need, and of its missing headers.
UNWANTED = ("assign-enum", "declaration-after-statement", "direct-ivar-access", "incompatible-sysroot",
            "objc-interface-ivars", "unused-parameter")


def tool(*names):
    """The first of these programs that is installed; the check is skipped without one."""
    for name in names:
        if shutil.which(name):
            return name
    print(f"skipped: there is no {names[0]} here")
    sys.exit(SKIPPED)


def core_files(root):
    return sorted((root / CORE).glob("*.m"))


def clang(root, processor="arm64", system=OLDEST, headers=NEWEST):
    """The command up to the file; `root` holds a copy of the core and of the declarations,
    of which those that are newer than `headers` are left out."""
    program = tool("clang-14", "clang")
    built_in = subprocess.run([program, "-print-resource-dir"], capture_output=True, text=True,
                              check=True).stdout.strip()
    return [program, "-target", f"{processor}-apple-macos{system}", "-x", "objective-c", "-std=gnu17",
            "-fno-objc-arc", "-fblocks", "-nostdinc", "-isystem", f"{built_in}/include",
            "-isystem", str(root / SDK), "-I", str(root),
            f"-D__MAC_OS_X_VERSION_MAX_ALLOWED={int(float(headers) * 10000)}",
            "-Weverything", "-Wunguarded-availability", *(f"-Wno-{name}" for name in UNWANTED)]
