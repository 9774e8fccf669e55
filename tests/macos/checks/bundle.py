#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Makes Morrowleaf.app around programs that do nothing, and checks what is in it: the
property list, the icon, the resources and the programs' processor and systems. Then does
the same with faults in the property list, which must be found.

    bundle.py     prints what is wrong; status 1 if anything is
"""

import plistlib
import re
import struct
import subprocess
import sys
import tempfile
import zlib
from pathlib import Path
from xml.parsers.expat import ExpatError

import compiler

ROOT = compiler.ROOT
TEXTS = ("CFBundleDevelopmentRegion", "CFBundleDisplayName", "CFBundleExecutable", "CFBundleIconFile",
         "CFBundleIdentifier", "CFBundleInfoDictionaryVersion", "CFBundleName", "CFBundlePackageType",
         "CFBundleShortVersionString", "CFBundleVersion", "LSMinimumSystemVersion", "NSPrincipalClass")
SWITCHES = ("LSUIElement", "NSHighResolutionCapable")
VERSIONS = ("CFBundleShortVersionString", "CFBundleVersion", "LSMinimumSystemVersion")
PIXELS = {16, 32, 64, 128, 256, 512, 1024}


def check_properties(info):
    for key in TEXTS:
        if not isinstance(info.get(key), str) or not info[key]:
            yield f"{key} is no text"
        elif re.search(r"[$@{}]", info[key]):
            yield f"{key} has a placeholder: {info[key]}"
    for key in SWITCHES:
        if info.get(key) is not True:
            yield f"{key} is not true"
    for key in VERSIONS:
        if not re.fullmatch(r"\d+(\.\d+){1,2}", str(info.get(key))):
            yield f"{key} is no version: {info.get(key)}"
    if info.get("LSMinimumSystemVersion") != compiler.OLDEST:
        yield f"LSMinimumSystemVersion is not {compiler.OLDEST}"
    if not re.fullmatch(r"[A-Za-z0-9-]+(\.[A-Za-z0-9-]+){2,}", str(info.get("CFBundleIdentifier"))):
        yield "CFBundleIdentifier is no reversed domain"
    if info.get("CFBundlePackageType") != "APPL":
        yield "CFBundlePackageType is not APPL"


def measure(data):
    """The width of a square PNG picture; None if it is none or damaged."""
    if data[:8] != b"\x89PNG\r\n\x1a\n":
        return None
    width, height = struct.unpack_from(">2I", data, 16)
    at = 8
    while at < len(data):
        length, kind = struct.unpack_from(">I4s", data, at)
        if zlib.crc32(data[at + 4:at + 8 + length]) != struct.unpack_from(">I", data, at + 8 + length)[0]:
            return None
        at += 12 + length
    return width if width == height and kind == b"IEND" else None


def check_icon(file):
    data = file.read_bytes() if file.is_file() else b""
    if data[:4] != b"icns" or struct.unpack_from(">I", data, 4)[0] != len(data):
        yield "the icon is no container of pictures"
        return
    at, found = 8, set()
    while at < len(data):
        kind, size = struct.unpack_from(">4sI", data, at)
        pixels = measure(data[at + 8:at + size])
        if pixels is None:
            yield f"the picture {kind.decode()} of the icon is damaged"
        found.add(pixels)
        at += size
    if found != PIXELS:
        yield f"the icon has pictures of {sorted(found - {None})} pixels"


def check_program(file):
    data = file.read_bytes() if file.is_file() else bytes(32)
    magic, processor, _, kind, commands = struct.unpack_from("<5I", data)
    if (magic, processor, kind) != (0xFEEDFACF, 0x0100000C, 2):
        yield f"{file.name} is no executable file for arm64"
        return
    at, systems = 32, None
    for _ in range(commands):
        command, size = struct.unpack_from("<2I", data, at)
        if command == 0x32:  # the systems that it is made for
            systems = tuple(f"{v >> 16}.{v >> 8 & 255}" for v in struct.unpack_from("<2I", data, at + 12))
        at += size
    if systems != (compiler.OLDEST, compiler.NEWEST):
        yield f"{file.name} is made for the systems {systems}"


def check_bundle(app):
    found = []
    contents = app / "Contents"
    try:
        info = plistlib.loads((contents / "Info.plist").read_bytes())
    except (OSError, plistlib.InvalidFileException, ExpatError) as error:
        return [f"Info.plist cannot be read: {error}"]
    found += check_properties(info)
    found += check_icon(contents / "Resources" / str(info.get("CFBundleIconFile")))
    found += check_program(contents / "MacOS" / str(info.get("CFBundleExecutable")))
    for name in ("quotereader", "photoreader"):
        found += check_program(contents / "libexec/morrowleaf" / name)
    for folder in ("Fonts", "Backgrounds"):
        ours = {f.name for f in (ROOT / "resources" / folder).iterdir() if f.suffix != ".md"}
        there = {f.name for f in (contents / "Resources" / folder).glob("*")}
        if not ours or ours != there:
            found.append(f"Resources/{folder} differs: {sorted(ours ^ there)}")
    extra = {f.name for f in contents.iterdir()} - {"Info.plist", "MacOS", "Resources", "_CodeSignature", "PkgInfo", "libexec"}
    if extra:
        found.append(f"Contents has more: {sorted(extra)}")
    return found


def make_bundle(folder):
    icon = folder / "Morrowleaf.icns"
    subprocess.run([sys.executable, str(ROOT / "packaging/macos/make_icns.py"),
                    str(ROOT / "resources/icons/app-icon.svg"), str(icon)], check=True)
    linker = subprocess.run(["sh", "-c", "command -v ld64.lld-14 || command -v ld64.lld"],
                            capture_output=True, text=True).stdout.strip()
    flags = (f"-fuse-ld={linker} -nostdlib -mlinker-version=705 "
             f"-Wl,-platform_version,macos,{compiler.OLDEST},{compiler.NEWEST}")
    clang = compiler.tool("clang-14", "clang")
    settings = {"CMAKE_SYSTEM_NAME": "Darwin", "CMAKE_CXX_COMPILER": clang.replace("clang", "clang++"), "CMAKE_CXX_COMPILER_TARGET": "arm64-apple-macos13.0",
                "CMAKE_CXX_COMPILER_WORKS": "ON", "CMAKE_OSX_DEPLOYMENT_TARGET": compiler.OLDEST, "CMAKE_OSX_SYSROOT": "",
                "CMAKE_INSTALL_NAME_TOOL": "/bin/true", "CMAKE_EXE_LINKER_FLAGS": flags, "MORROWLEAF_ICON": icon}
    for command in (["cmake", "-G", "Ninja", "-S", str(ROOT / "tests/macos/bundle"), "-B", str(folder / "build"),
                     *(f"-D{k}={v}" for k, v in settings.items())],
                    ["cmake", "--build", str(folder / "build")]):
        done = subprocess.run(command, capture_output=True, text=True)
        if done.returncode != 0:
            sys.exit(f"{done.stdout[-2000:]}{done.stderr[-2000:]}")
    return folder / "build/Morrowleaf.app"


# In the property list, what becomes what, and what the complaint contains.
FAULTS = [("<string>0.1.0</string>", "<string>${PROJECT_VERSION}</string>", "placeholder"),
          ("<key>LSUIElement</key>\n  <true/>", "", "LSUIElement is not true"),
          ("<string>13.0</string>", "<string>10.15</string>", "LSMinimumSystemVersion is not 13.0"),
          ("org.morrowleaf.Morrowleaf", "Morrowleaf", "no reversed domain"),
          ("Morrowleaf.icns", "Other.icns", "no container of pictures"),
          ("</dict>", "", "cannot be read")]


def main():
    for name in (("ld64.lld-14", "ld64.lld"), ("rsvg-convert",), ("ninja",)):
        compiler.tool(*name)
    with tempfile.TemporaryDirectory() as temporary:
        app = make_bundle(Path(temporary))
        found = check_bundle(app)
        file = app / "Contents/Info.plist"
        sound = file.read_text()
        for old, new, expected in FAULTS:
            if old not in sound:
                found.append(f"Info.plist has no {old!r} to change")
                continue
            file.write_text(sound.replace(old, new))
            if not any(expected in line for line in check_bundle(app)):
                found.append(f"nothing is found when Info.plist has {new!r} for {old!r}")
        count = sum(f.is_file() for f in app.rglob("*"))
    print("\n".join(found + [f"{count} files in the bundle, {len(FAULTS)} planted faults: {len(found)} faults"]))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
