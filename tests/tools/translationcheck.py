#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Checks the translations.

    translationcheck.py REPOSITORY [LUPDATE]

Every text is translated in every file, with its placeholders, mnemonics, names, markup and
ellipses; docs/translating.md lists every file and says whether a native speaker has read
it, and macOS is told of every language. With the path of the program lupdate, the files
also have exactly the texts of the sources, of the desktop entry, the metainfo and the manual
page.
"""
import collections
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

ROOMS = ("app", "look", "platform", "screen", "settingsui", "sources")
PLACEHOLDER = re.compile(r"%(?:L?\d+|L?n)")
# What is the same in every language.
KEPT = re.compile(r"Morrowleaf|morrowleaf(?:\(1\))?|ZenQuotes|DummyJSON|New York|SF Pro|JSON|KDE|Qt"
                  r"|X11|Wayland|https?\S*")
MARKUP = re.compile(r"<b>.*?</b>|</?\w+>")
# How texts end, in the scripts of all languages.
ENDS = (("…",), (";",), (".", "。"))

FOR_MACOS = "packaging/macos/Info.plist.in"


def messages_of(file):
    """The messages by context and source."""
    found = {}
    for context in ElementTree.parse(file).getroot().iter("context"):
        for message in context.iter("message"):
            found[context.findtext("name"), message.findtext("source")] = message
    return found


def counted(pattern, text):
    return collections.Counter(pattern.findall(text))


def compare(source, text, only_form):
    """What is wrong with a translation; other forms than the last need no number."""
    if not (text or "").strip():
        return "is empty"
    wanted, there = counted(PLACEHOLDER, source), counted(PLACEHOLDER, text)
    if not only_form and "%n" not in text:
        del wanted["%n"]
    if wanted != there:
        return "has other placeholders"
    if not set(KEPT.findall(source)) <= set(KEPT.findall(text)):
        return "has lost a name"
    for what, pattern in (("markup", MARKUP), ("lines", re.compile("\n")),
                          ("mnemonics", re.compile(r"&(?!&)"))):
        if counted(pattern, source) != counted(pattern, text):
            return f"has other {what}"
    for end in ENDS:
        if source.endswith(end) != text.endswith(end):
            return f"does not end like the English text, with {end[0]}"
    return "" if text == text.strip() else "has spaces around it"


def check_message(message):
    translation, source = message.find("translation"), message.findtext("source")
    if translation.get("type"):
        return [f"is {translation.get('type')}"]
    forms = [form.text for form in translation.iter("numerusform")]
    if (message.get("numerus") == "yes") != bool(forms):
        return ["has no plural forms"]
    texts = forms or [translation.text]
    faults = [compare(source, text, at == len(texts) - 1) for at, text in enumerate(texts)]
    return [fault for fault in faults if fault]


def sources_of(root, lupdate):
    """The keys of the messages that the sources have."""
    with tempfile.TemporaryDirectory() as folder:
        texts, file = pathlib.Path(folder, "texts.cpp"), pathlib.Path(folder, "all.ts")
        subprocess.run([sys.executable, root / "packaging/translate.py", "extract", texts], check=True)
        sources = [path for room in ROOMS for path in (root / room).rglob("*.[ch]*")
                   if path.suffix in (".h", ".cpp")]
        subprocess.run([lupdate, "-silent", "-I", root, *sources, texts, "-ts", file], check=True)
        return set(messages_of(file))


def languages_for_macos(root):
    text = (root / FOR_MACOS).read_text(encoding="utf-8")
    listed = re.search(r"<key>CFBundleLocalizations</key>\s*<array>(.*?)</array>", text, re.S)
    return set(re.findall(r"<string>(.*?)</string>", listed[1])) if listed else set()


def check(root, lupdate=None):
    faults = []
    on_macos = languages_for_macos(root)
    files = sorted((root / "translations").glob("*.ts"))
    listed = dict(re.findall(r"^\| `(\w+)` \|.*\| (\w+) \|$",
                             (root / "docs/translating.md").read_text(encoding="utf-8"), re.M))
    wanted = sources_of(root, lupdate) if lupdate else set(messages_of(files[0])) if files else set()
    if not wanted:
        faults.append("there are no texts")
    for file in files:
        name = file.stem.removeprefix("morrowleaf_")
        tree = ElementTree.parse(file).getroot()
        messages = messages_of(file)
        if tree.get("language") != name:
            faults.append(f"{file.name}: is for the language {tree.get('language')}")
        if listed.get(name) not in ("yes", "no"):
            faults.append(f"docs/translating.md: does not say whether {name} has been read")
        if {"zh_CN": "zh-Hans"}.get(name, name.replace("_", "-")) not in on_macos:
            faults.append(f"{FOR_MACOS}: does not list {name}")
        for context, source in sorted(wanted - set(messages)):
            faults.append(f"{file.name}: {context}: {source!r} is missing")
        for (context, source), message in messages.items():
            if (context, source) not in wanted:
                faults.append(f"{file.name}: {context}: {source!r} is not in the sources")
            faults += [f"{file.name}: {context}: {source!r} {fault}"
                       for fault in check_message(message)]
    faults += [f"docs/translating.md: there is no {name}" for name in listed
               if not (root / f"translations/morrowleaf_{name}.ts").is_file()]
    return faults


def main():
    faults = check(pathlib.Path(sys.argv[1]), *sys.argv[2:])
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
