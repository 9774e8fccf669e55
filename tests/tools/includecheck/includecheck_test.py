#!/usr/bin/env python3
"""Puts deliberate faults into a small tree and sees that each is found."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).parent))
import includecheck  # noqa: E402

SOUND = {
    "base/moment.h": "",
    "quotes/quote.h": "",
    "quotes/schedule.cpp": '#include "quotes/quote.h"\n#include <vector>\n',
    "platform/platform.h": "",
    "platform/linux/chooser.cpp": '#include "platform/linux/x11.h"\n#include "platform/null/null.h"\n',
    "platform/linux/x11.h": '#include "platform/platform.h"\n#if defined(Q_OS_LINUX)\n#endif\n',
    "platform/null/null.h": '#include "platform/platform.h"\n',
    "look/palettes.h": '#include "base/moment.h"\n',
    "textanim/line.h": '#include "look/palettes.h"\n#include "platform/platform.h"\n',
    "screen/view.h": '#include "textanim/line.h"\n#include "look/palettes.h"\n',
    "settingsui/panel.h": '#include "quotes/quote.h"\n#include "look/palettes.h"\n',
    "app/main.cpp": '#include "settingsui/panel.h"\n#include "platform/platform.h"\n',
    "tests/platform/x11_test.cpp": '#include "platform/linux/x11.h"\n',
}


class IncludeCheck(unittest.TestCase):
    def faults(self, changes):
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            for path, text in {**SOUND, **changes}.items():
                (root / path).parent.mkdir(parents=True, exist_ok=True)
                (root / path).write_text(text)
            return includecheck.faults(root)

    def assert_fault(self, path, text, fault):
        found = self.faults({path: text})
        self.assertEqual(len(found), 1, found)
        self.assertIn(fault, found[0])

    def test_a_sound_tree_has_no_fault(self):
        self.assertEqual(self.faults({}), [])

    def test_every_way_up_is_a_fault(self):
        rooms = ["app", "screen", "textanim", "look", "base"]
        for below, room in enumerate(rooms):
            for above in rooms[:below]:
                header = {f"{above}/extra.h": ""}
                found = self.faults({**header, f"{room}/a.cpp": f'#include "{above}/extra.h"\n'})
                self.assertEqual(found, [f"{room}/a.cpp:1: may not include {above}/extra.h"])

    def test_the_platform_includes_nothing_of_ours(self):
        for path in ("platform/a.h", "platform/linux/chooser.cpp", "platform/linux/a.cpp"):
            self.assert_fault(path, '#include "quotes/quote.h"\n', "may not include quotes/quote.h")

    def test_only_the_chooser_knows_the_backends(self):
        for path in ("app/a.cpp", "screen/a.cpp", "platform/a.cpp", "platform/null/a.cpp"):
            self.assert_fault(path, '#include "platform/linux/x11.h"\n', "may not include platform/linux")
        self.assert_fault("platform/linux/a.cpp", '#include "platform/null/null.h"\n',
                          "may not include platform/null")

    def test_angle_brackets_do_not_hide_an_include(self):
        self.assert_fault("quotes/a.cpp", "#  include <screen/view.h>\n", "may not include screen/view.h")

    def test_a_circle_is_found(self):
        found = self.faults({
            "quotes/a.h": '#include "quotes/b.h"\n',
            "quotes/b.h": '#include "quotes/c.h"\n',
            "quotes/c.h": '#include "quotes/a.h"\n',
        })
        self.assertEqual(found, ["a circle: quotes/a.h -> quotes/b.h -> quotes/c.h -> quotes/a.h"])

    def test_a_file_that_includes_itself_is_a_circle(self):
        self.assert_fault("quotes/a.h", '#include "quotes/a.h"\n', "a circle")

    def test_includes_are_written_from_the_root(self):
        self.assert_fault("quotes/a.cpp", '#include "quote.h"\n', "not written from the root")

    def test_no_operating_system_outside_the_platform(self):
        for condition in ("#ifdef Q_OS_LINUX", "#if defined(__linux__)", "#  elif defined(_WIN32)",
                          "#if __APPLE__ && 1", "#ifndef Q_OS_MACOS"):
            text = f"#if 1\n{condition}\n#endif\n"
            self.assert_fault("screen/a.cpp", text, "screen/a.cpp:2: asks for an operating system")

    def test_other_conditions_stand(self):
        self.assertEqual(self.faults({"screen/a.cpp": "#if defined(__AVX2__)\n#endif\n"
                                      "#if QT_VERSION >= 0x060400\n#endif\n"}), [])

    def test_comments_do_not_include(self):
        self.assertEqual(self.faults({"quotes/a.cpp": '// #include "app/main.cpp"\n'
                                      '/*\n#include "screen/view.h"\n#ifdef Q_OS_LINUX\n*/\n'}), [])

    def test_the_program_does_not_include_tests(self):
        found = self.faults({"tests/fakes/fake.h": "", "app/a.cpp": '#include "tests/fakes/fake.h"\n'})
        self.assertEqual(found, ["app/a.cpp:1: may not include tests/fakes/fake.h"])

    def test_an_empty_tree_is_no_success(self):
        with tempfile.TemporaryDirectory() as folder:
            self.assertEqual(len(includecheck.faults(Path(folder))), 1)


if __name__ == "__main__":
    unittest.main()
