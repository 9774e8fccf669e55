#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Makes macos26.json, what the checks of the macOS backend know about the system.

The npm package below holds the interfaces of macOS 26: typings, and a program in
whose data all selectors stand with their colons. This fetches it, compares its
hash, and writes what belongs to the names in sdk/.

    digest.py             writes macos26.json anew
    digest.py --verify    says whether it would change; status 77 if the package
                          cannot be fetched
"""

import hashlib
import json
import re
import shutil
import struct
import subprocess
import sys
import tarfile
import tempfile
from base64 import b64encode
from pathlib import Path

HERE = Path(__file__).resolve().parent
OUTPUT = HERE / "macos26.json"
PACKAGE = "@nativescript/macos-node-api@0.4.0"
SHA512 = "UQmVtBdeNiEV/gssJPeXYHInb2RibEb59UVMC+VVjdMSpTpInpXzs6QoHmaAGx/gO6P8U6BRwDjYYZ7OQvi1bw=="
FRAMEWORKS = ("Runtime", "CoreFoundation", "CoreGraphics", "Foundation", "AppKit", "ServiceManagement")
SKIPPED = 77

TYPE = re.compile(r"^declare (class|interface) (\w+)([^{]*)\{\n(.*?)^\}", re.M | re.S)
ENUM = re.compile(r"^declare const (\w+): \{\n(.*?)^\};", re.M | re.S)
CONSTANT = re.compile(r"^declare const (\w+): ([^{\n]+);", re.M)
FUNCTION = re.compile(r"^declare function (\w+)\((.*)\): ([^\n]*);", re.M)
MEMBER = re.compile(r"(?:get |set |abstract )?(static )?(?:readonly )?([A-Za-z_$][\w$]*)\??(<.*?>(?=\())?([(:])(.*);$")


def fetch(folder):
    """The unpacked package, or None without npm or a registry."""
    if shutil.which("npm") is None:
        return None
    packed = subprocess.run(["npm", "pack", "--silent", "--pack-destination", folder, PACKAGE],
                            capture_output=True, text=True, cwd=folder)
    archives = list(Path(folder).glob("*.tgz"))
    if packed.returncode != 0 or not archives:
        return None
    found = b64encode(hashlib.sha512(archives[0].read_bytes()).digest()).decode()
    if found != SHA512:
        sys.exit(f"{PACKAGE} has the hash {found}, not the one that this script names")
    with tarfile.open(archives[0]) as archive:
        archive.extractall(folder)
    return Path(folder) / "package"


def split_parameters(text):
    """What stands before the parenthesis that closes `text`, at its commas, and the rest."""
    depth, parts, current = 0, [], ""
    for at, char in enumerate(text):
        if char == ")" and depth == 0:
            parts += [current] if current.strip() else []
            return [part.strip() for part in parts], text[at + 1:]
        if char == "," and depth == 0:
            parts.append(current)
            current = ""
            continue
        depth += (char in "(<[{") - (char in ")]}" or (char == ">" and text[at - 1] != "="))
        current += char
    raise ValueError(text)


def members(body):
    """Each as [kind and name, parameter types or None for a property, type]."""
    found = []
    for line in body.splitlines():
        match = MEMBER.match(line.strip())
        if not match or match.group(2) == "constructor":
            continue
        static, name, _, sign, rest = match.groups()
        kind = ("+" if static else "-") + name
        if sign == ":":
            found.append([kind, None, rest.strip()])
            continue
        parameters, result = split_parameters(rest)
        types = [p.split(":", 1)[1].strip() for p in parameters if ":" in p and not p.startswith("this:")]
        found.append([kind, types, result.lstrip(": ").strip()])
    return found


def selectors(binary):
    """The strings of the section __objc_metadata of a Mach-O file."""
    data = binary.read_bytes()
    commands, at = struct.unpack_from("<I", data, 16)[0], 32
    for _ in range(commands):
        command, size = struct.unpack_from("<2I", data, at)
        if command == 0x19:  # a segment of 64 bits
            for index in range(struct.unpack_from("<I", data, at + 64)[0]):
                name, _, _, length, offset = struct.unpack_from("<16s16sQQI", data, at + 72 + 80 * index)
                if name.rstrip(b"\0") == b"__objc_metadata":
                    return {s.decode() for s in
                            re.findall(rb"(?<=\0)[A-Za-z_]\w*(?::\w*)*(?=\0)", data[offset:offset + length])}
        at += size
    sys.exit(f"{binary} has no metadata")


def join(selector):
    """The name that the typings give to a selector."""
    first, *rest = [part for part in selector.split(":") if part]
    return first + "".join(part[0].upper() + part[1:] for part in rest)


def read_all(package):
    every = {"classes": {}, "enums": {}, "constants": {}, "functions": {}}
    for framework in FRAMEWORKS:
        text = (package / "types" / f"{framework}.d.ts").read_text()
        for kind, name, heritage, body in TYPE.findall(text):
            entry = every["classes"].setdefault(
                name, {"framework": framework, "isClass": False, "parents": [], "members": []})
            if kind == "class":
                entry["isClass"], entry["framework"] = True, framework
            words = re.findall(r"\w+", re.sub(r"<[^>]*>", "", heritage))
            entry["parents"] += [w for w in words if w not in ("extends", "implements", "NativeObject")]
            entry["members"] += members(body)
        for name, body in ENUM.findall(text):
            every["enums"][name] = {k: int(v) for k, v in re.findall(r"^\s+(\w+): (-?\d+),", body, re.M)}
        for name, kind in CONSTANT.findall(text):
            every["constants"][name] = {"framework": framework, "type": kind}
        for name, parameters, result in FUNCTION.findall(text):
            count = len(split_parameters(parameters + ")")[0])
            every["functions"][name] = {"framework": framework, "parameters": count, "result": result}
    return every


def cut(every, strings):
    """What belongs to the names in sdk/: with their ancestors, but without what is only
    for accessibility."""
    words = set()
    for header in (HERE.parent / "sdk").rglob("*.h"):
        words |= set(re.findall(r"\w+", header.read_text()))
    kept, waiting = {}, sorted(words & set(every["classes"]))
    while waiting:
        name = waiting.pop()
        if name not in kept and name in every["classes"] and not name.startswith("NSAccessibility"):
            kept[name] = every["classes"][name]
            waiting += kept[name]["parents"]
    names = {member[0][1:] for entry in kept.values() for member in entry["members"]}
    return {"classes": kept,
            "enums": {n: v for n, v in every["enums"].items() if n in words},
            "constants": {n: v for n, v in every["constants"].items() if n in words},
            "functions": {n: v for n, v in every["functions"].items() if n in words},
            "selectors": sorted(s for s in strings if ":" in s and join(s) in names)}


def write(digest):
    """JSON with one member or selector in a line, so that a new version can be compared."""
    compact = {"separators": (",", ":"), "sort_keys": True}
    lines = ['{"package":' + json.dumps(PACKAGE) + ',"sha512":' + json.dumps(SHA512) + ',"classes":{']
    for index, (name, entry) in enumerate(sorted(digest["classes"].items())):
        head = {k: v for k, v in entry.items() if k != "members"}
        lines.append((", " if index else "") + json.dumps(name) + ":{" + json.dumps(head, **compact)[1:-1] + ',"members":[')
        lines.append(",\n".join(sorted({json.dumps(m, **compact) for m in entry["members"]})))
        lines.append("]}")
    lines.append("}")
    for key in ("enums", "constants", "functions"):
        lines.append(f',"{key}":{{')
        lines.append(",\n".join(f"{json.dumps(n)}:{json.dumps(v, **compact)}" for n, v in sorted(digest[key].items())))
        lines.append("}")
    lines += [',"selectors":[', ",\n".join(map(json.dumps, digest["selectors"])), "]}"]
    return "\n".join(lines) + "\n"


def main():
    with tempfile.TemporaryDirectory() as folder:
        package = fetch(folder)
        if package is None:
            print(f"skipped: npm cannot fetch {PACKAGE}")
            return SKIPPED
        binaries = [f for f in package.rglob("Versions/*/NativeScript") if "dSYM" not in str(f)]
        text = write(cut(read_all(package), selectors(binaries[0])))
    json.loads(text)
    if "--verify" in sys.argv:
        same = OUTPUT.is_file() and OUTPUT.read_text() == text
        print(f"{OUTPUT.name} is {'' if same else 'not '}what {PACKAGE} gives")
        return 0 if same else 1
    OUTPUT.write_text(text)
    return 0


if __name__ == "__main__":
    sys.exit(main())
