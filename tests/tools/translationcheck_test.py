#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Checks that translationcheck.py finds faults, and no others."""
import pathlib
import tempfile
import unittest

import translationcheck

FILE = """<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="{language}" sourcelanguage="en">
<context>
    <name>Window</name>
    {messages}
</context>
</TS>
"""
TABLE = "| File | Language | Read |\n|---|---|---|\n| `de` | German | no |\n| `fr` | French | no |\n"


def message(source, translation):
    return f"<message><source>{source}</source><translation>{translation}</translation></message>"


def plural(source, *forms):
    forms = "".join(f"<numerusform>{form}</numerusform>" for form in forms)
    return (f'<message numerus="yes"><source>{source}</source>'
            f"<translation>{forms}</translation></message>")


class TranslationCheckTest(unittest.TestCase):
    def faults(self, german, french=None, table=TABLE, macos=("de", "fr")):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            (root / "translations").mkdir()
            (root / "docs").mkdir()
            (root / "docs/translating.md").write_text(table)
            (root / "packaging/macos").mkdir(parents=True)
            languages = "".join(f"<string>{language}</string>" for language in macos)
            (root / translationcheck.FOR_MACOS).write_text(
                f"<key>CFBundleLocalizations</key> <array>{languages}</array>")
            for language, messages in (("de", german), ("fr", french or german)):
                text = FILE.format(language=language, messages=messages)
                (root / f"translations/morrowleaf_{language}.ts").write_text(text)
            return translationcheck.check(root)

    def expect_fault(self, source, translation, fault):
        found = self.faults(message(source, translation))
        self.assertEqual(len(found), 2, found)
        self.assertIn(fault, found[0])

    def test_good_ones(self):
        self.assertEqual(self.faults(message("Open %1…", "%1 öffnen…")), [])
        self.assertEqual(self.faults(message("Done.", "完了。")), [])
        self.assertEqual(self.faults(message("&amp;Quit %2 %1", "%1 %2 &amp;beenden")), [])
        self.assertEqual(self.faults(plural("Every %n hours", "Jede Stunde", "Alle %n Stunden")), [])

    def test_a_language_that_macos_does_not_know_of(self):
        self.assertEqual(self.faults(message("Open", "Offen"), macos=("de", "en")),
                         ["packaging/macos/Info.plist.in: does not list fr"])

    def test_a_text_without_translation(self):
        self.expect_fault("Open", "", "is empty")
        self.expect_fault("Open", " ", "is empty")
        unfinished = ('<message><source>Open</source>'
                      '<translation type="unfinished">Auf</translation></message>')
        self.assertIn("is unfinished", self.faults(unfinished)[0])
        self.assertIn("is missing", self.faults(message("a", "b"), message("c", "d"))[0])
        self.assertIn("is not in the sources", self.faults(message("a", "b"), message("c", "d"))[1])

    def test_broken_placeholders(self):
        for broken in ("öffnen", "%2 öffnen", "%1 %1 öffnen", "% 1 öffnen"):
            self.expect_fault("Open %1", broken, "other placeholders")
        for forms in (("%n Stunde", "Stunden"), ("Stunde %1", "%n Stunden")):
            self.assertIn("other placeholders", self.faults(plural("%n hours", *forms))[0])
        self.assertIn("is empty", self.faults(plural("%n hours", "", "%n Stunden"))[0])

    def test_what_else_must_stay(self):
        self.expect_fault("&amp;Quit", "Beenden", "other mnemonics")
        self.expect_fault("Open…", "Öffnen", "does not end")
        self.expect_fault("Open.", "Öffnen", "does not end")
        self.expect_fault("Settings of Morrowleaf", "Einstellungen", "lost a name")
        self.expect_fault("&lt;b&gt;--help&lt;/b&gt; helps", "&lt;b&gt;--hilfe&lt;/b&gt; hilft",
                          "other markup")
        self.expect_fault("Open", " Öffnen", "spaces around")

    def test_the_table_of_languages(self):
        good = message("Open", "Öffnen")
        self.assertIn("fr", self.faults(good, table=TABLE.replace("`fr`", "`es`"))[0])
        self.assertEqual(len(self.faults(good, table=TABLE + "| `pl` | Polish | no |\n")), 1)


if __name__ == "__main__":
    unittest.main()
