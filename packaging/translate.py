#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Translates the desktop entry, the metainfo and the manual page.

    translate.py extract FILE      writes their texts into FILE, in C++, for lupdate
    translate.py build FOLDER      writes the translated files into FOLDER, with the manual
                                   pages in FOLDER/man/LANGUAGE/man1/

The English files are those beside this script, the translations those in
../translations/. In a message of the manual page <b>...</b> is bold type.
"""
import gzip
import html
import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

HERE = pathlib.Path(__file__).resolve().parent
ID = "org.morrowleaf.Morrowleaf"
NOTES = {
    "DesktopEntry": "For menus of programs and software centres",
    "Metainfo": "For software centres",
    "ManualPage": "Of the manual page; <b>...</b> is bold type, and what is in it stays",
}
NOTE_OF_KEYWORDS = "Words that find the program, each followed by a semicolon"


class Translations:
    """What the translations say, by language."""

    def __init__(self, folder):
        self.messages = {}
        for file in sorted(folder.glob("morrowleaf_*.ts")):
            texts = self.messages[file.stem.removeprefix("morrowleaf_")] = {}
            for context in ElementTree.parse(file).getroot().iter("context"):
                for message in context.iter("message"):
                    translation = message.find("translation")
                    if translation.get("type") is None:
                        key = context.findtext("name"), message.findtext("source")
                        texts[key] = translation.text

    def languages(self):
        return list(self.messages)

    def get(self, language, context, text):
        """None if there is no translation, or one that says nothing else."""
        found = self.messages[language].get((context, text))
        return None if found == text else found


def desktop_entry(entry, translate):
    """`translate(text)` gives pairs of language and text."""
    for line in entry.splitlines():
        yield line
        key, _, text = line.partition("=")
        if key in ("GenericName", "Comment", "Keywords") or (key == "Name" and text != "Morrowleaf"):
            for language, translation in translate(text):
                yield f"{key}[{language}]={translation}"


def metainfo(document, translate):
    for line in document.splitlines():
        yield line
        element = re.fullmatch(r"(\s*)<(summary|p|li)>(.*)</\2>", line)
        if element:
            indent, name, text = element.groups()
            for language, translation in translate(html.unescape(text)):
                yield (f'{indent}<{name} xml:lang="{language}">'
                       f"{html.escape(translation, quote=False)}</{name}>")


def from_roff(text):
    text = re.sub(r"\\f[BI](.*?)\\fR", r"<b>\1</b>", text)
    return text.replace(r"\-", "-")


def to_roff(text):
    text = text.replace("\\", r"\e")
    text = re.sub(r"<b>(.*?)</b>", lambda bold: r"\fB" + bold[1].replace("-", r"\-") + r"\fR", text)
    return r"\&" + text if text[0] in ".'" else text


def manual_page(page, translate):
    """`translate(text)` gives one text."""
    paragraph = []

    def finished():
        if paragraph:
            yield to_roff(translate(from_roff(" ".join(paragraph))))
            paragraph.clear()

    for line in page.splitlines():
        heading = re.fullmatch(r'(\.SH |\.TH .*" )"?([^"]*)"?', line)
        name = re.fullmatch(r"(morrowleaf \\- )(.*)", line)
        if not line.startswith(".") and not name:
            paragraph.append(line)
            continue
        yield from finished()
        if heading:
            yield f'{heading[1]}"{translate(heading[2])}"'
            if heading[1].startswith(".TH"):
                # Most languages have other rules, and some no spaces to make lines equally
                # long.
                yield ".nh\n.ad l"
        elif name:
            yield name[1] + to_roff(translate(name[2]))
        else:
            yield line
    yield from finished()


FILES = {
    "DesktopEntry": (desktop_entry, f"{ID}.desktop"),
    "Metainfo": (metainfo, f"{ID}.metainfo.xml"),
    "ManualPage": (manual_page, "morrowleaf.1"),
}


def extract(to):
    lines = []
    for context, (reader, name) in FILES.items():
        found = []

        def note(text):
            found.append(text)
            return text if reader is manual_page else []

        for _ in reader((HERE / name).read_text(encoding="utf-8"), note):
            pass
        for text in dict.fromkeys(found):
            literal = text.replace("\\", "\\\\").replace('"', '\\"')
            lines += [f"//: {NOTE_OF_KEYWORDS if text.endswith(';') else NOTES[context]}",
                      f'QT_TRANSLATE_NOOP("{context}", "{literal}");']
    to.write_text("\n".join(lines) + "\n", encoding="utf-8")


def build(folder, translations):
    for context, (reader, name) in FILES.items():
        page = (HERE / name).read_text(encoding="utf-8")

        def in_all(text):
            for language in translations.languages():
                translation = translations.get(language, context, text)
                if translation:
                    yield language, translation

        if reader is not manual_page:
            (folder / name).write_text("\n".join(reader(page, in_all)) + "\n", encoding="utf-8")
            continue
        for language in translations.languages():
            place = folder / "man" / language / "man1"
            place.mkdir(parents=True, exist_ok=True)
            lines = reader(page, lambda text: translations.get(language, context, text) or text)
            text = "\n".join(lines) + "\n"
            (place / f"{name}.gz").write_bytes(gzip.compress(text.encode(), mtime=0))


def main():
    match sys.argv[1:]:
        case ["extract", file]:
            extract(pathlib.Path(file))
        case ["build", folder]:
            pathlib.Path(folder).mkdir(parents=True, exist_ok=True)
            build(pathlib.Path(folder), Translations(HERE.parent / "translations"))
        case _:
            sys.exit(__doc__)


if __name__ == "__main__":
    main()
