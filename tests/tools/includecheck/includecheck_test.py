#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Puts deliberate faults into a small tree and checks that each is found."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).parent))
import includecheck  # noqa: E402

ROOMS = """# Architecture

| Room | What it holds | Stands on |
|---|---|---|
| `app/` | Wires | `screen` `quotes` `base` |
| `screen/` | Shows a `Quote` | `quotes` `base` |
| `quotes/` | Quotations | `base` |
| `base/` | What has no subject | |
| `platform/` | Interfaces | |
| `platform/shared/` | For several backends | `platform` |
| `platform/null/` | Nothing | `platform` |
| `platform/linux/x11/` | Windows | `platform` `platform/shared` |
| `platform/linux/` | The rest | `platform` `platform/shared` `platform/linux/x11` |
"""


def library(name, links="", sources="a.cpp"):
    return (f"morrowleaf_library(morrowleaf_{name}\n  SOURCES {sources}\n"
            f"  LIBRARIES {links} Qt6::Core ICU::uc)\n")


SYSTEM = library("system", sources="files.h")
PLATFORM = library("platform", "morrowleaf_system")
SOUND = {
    "ARCHITECTURE.md": ROOMS,
    "CMakeLists.txt": "".join(
        f"add_subdirectory({room})\n" for room in ("base", "quotes", "platform", "screen", "app")
    ),
    "base/CMakeLists.txt": library("base") + "# target_link_libraries(x DBus)\n",
    "quotes/CMakeLists.txt": library("quotes", "morrowleaf_base morrowleaf_system"),
    "screen/CMakeLists.txt": library("screen", "morrowleaf_quotes morrowleaf_platform"),
    "app/CMakeLists.txt": library("app", "morrowleaf_screen morrowleaf_platform")
    + "add_executable(morrowleaf main.cpp)\n"
    "target_link_libraries(morrowleaf PRIVATE morrowleaf_app)\n",
    "platform/CMakeLists.txt": SYSTEM + PLATFORM,
    "platform/linux/CMakeLists.txt": "pkg_check_modules(XCB IMPORTED_TARGET xcb)\n"
    "target_link_libraries(morrowleaf_platform PUBLIC Qt6::DBus PkgConfig::XCB)\n",
    "base/moment.h": "#include <QDateTime>\n#include <chrono>\n",
    "base/moment_more.cpp": '#include "base/moment.h"\n',
    "quotes/quote.h": '#include "base/moment.h"\n#include "platform/files.h"\n',
    "quotes/quote.cpp": '#include "quotes/quote.h"\n#include <vector>\n#include <unicode/utext.h>\n'
    '#include "quote.moc"\n#include <nlohmann/json.hpp>\n#include <immintrin.h>\n'
    "#include <QPlatformSurfaceEvent>\n",
    "platform/platform.h": "#include <memory>\n",
    "platform/files.h": "#include <sys/types.h>\n",
    "platform/chooser.h": '#include "platform/platform.h"\n',
    "platform/shared/files.cpp": '#include "platform/files.h"\n#include <fcntl.h>\n',
    "platform/linux/x11/x11.h": '#include "platform/files.h"\n#if defined(Q_OS_LINUX)\n#endif\n',
    "platform/linux/chooser.cpp": '#include "platform/chooser.h"\n'
    '#include "platform/linux/x11/x11.h"\n#include "platform/null/null.h"\n',
    "platform/null/null.h": '#include "platform/platform.h"\n',
    "screen/view.h": '#include "quotes/quote.h"\n#include "platform/platform.h"\n',
    "app/main.cpp": '#include "screen/view.h"\n#include "platform/chooser.h"\n',
    "bench/a.cpp": "#include <benchmark/benchmark.h>\n",
    "bench/photo_bench.cpp": "#include <malloc.h>\n",
    "bench/CMakeLists.txt": "target_link_libraries(b PRIVATE morrowleaf_app benchmark::benchmark)\n",
    "tests/platform/x11_test.cpp": '#include "platform/linux/x11/x11.h"\n#include <unistd.h>\n',
    "build/generated.cc": "#include <unistd.h>\n",
}


def write(folder, tree):
    for path, text in tree.items():
        if text is not None:
            (folder / path).parent.mkdir(parents=True, exist_ok=True)
            (folder / path).write_text(text)


class IncludeCheck(unittest.TestCase):
    def faults(self, changes):
        with tempfile.TemporaryDirectory() as folder:
            write(Path(folder), {**SOUND, **changes})
            return includecheck.faults(Path(folder))

    def assert_fault(self, path, text, fault):
        with self.subTest(path=path, text=text):
            found = self.faults({path: text})
            self.assertTrue(any(fault in line for line in found), found)
            self.assertTrue(all(path in line or "circle" in line for line in found), found)

    def assert_sound(self, path, text):
        with self.subTest(path=path, text=text):
            self.assertEqual(self.faults({path: text}), [])

    def test_a_sound_tree_has_no_fault(self):
        self.assertEqual(self.faults({}), [])

    def test_the_program_prints_each_fault_and_fails(self):
        def run(*arguments):
            return subprocess.run([sys.executable, includecheck.__file__, *arguments],
                                  capture_output=True, text=True)

        with tempfile.TemporaryDirectory() as folder:
            write(Path(folder), SOUND)
            sound = run(folder)
            self.assertEqual((sound.returncode, sound.stdout), (0, ""))
            write(Path(folder), {"base/a.cpp": '#include "app/main.cpp"\n#include <malloc.h>\n'})
            unsound = run(folder)
            self.assertEqual(unsound.returncode, 1)
            self.assertEqual(len(unsound.stdout.splitlines()), 2, unsound.stdout)
        self.assertEqual(run().returncode, 1)

    # Rooms

    def test_every_way_up_is_a_fault(self):
        rooms = ["app", "screen", "quotes", "base"]
        for below, room in enumerate(rooms):
            for above in rooms[:below] + ["tests", "tools", "bench"]:
                header = {f"{above}/extra.h": ""}
                found = self.faults({**header, f"{room}/a.cpp": f'#include "{above}/extra.h"\n'})
                self.assertEqual(found, [f"{room}/a.cpp:1: may not include {above}/extra.h"])

    def test_rooms_beside_one_another_are_apart(self):
        found = self.faults({
            "ARCHITECTURE.md": ROOMS + "| `photos/` | Pictures | `base` |\n",
            "CMakeLists.txt": SOUND["CMakeLists.txt"] + "add_subdirectory(photos)\n",
            "photos/CMakeLists.txt": library("photos", "morrowleaf_quotes"),
            "photos/a.cpp": '#include "quotes/quote.h"\n',
        })
        self.assertEqual(found, ["photos/a.cpp:1: may not include quotes/quote.h",
                                 "photos/CMakeLists.txt: may not link morrowleaf_quotes"])

    def test_the_platform_includes_nothing_of_ours(self):
        for path in ("platform/a.h", "platform/linux/chooser.cpp", "platform/linux/x11/a.cpp"):
            self.assert_fault(path, '#include "quotes/quote.h"\n', "may not include quotes/quote.h")

    def test_the_ways_of_a_backend_are_apart(self):
        found = self.faults({"platform/linux/rest.h": "",
                             "platform/linux/x11/a.cpp": '#include "platform/linux/rest.h"\n',
                             "platform/shared/a.cpp": '#include "platform/linux/rest.h"\n'})
        self.assertEqual(found, [
            "platform/linux/x11/a.cpp:1: may not include platform/linux/rest.h",
            "platform/shared/a.cpp:1: may not include platform/linux/rest.h",
        ])

    def test_only_a_chooser_falls_back_on_another_backend(self):
        for path in ("app/a.cpp", "screen/a.cpp", "platform/a.cpp", "platform/null/a.cpp"):
            self.assert_fault(path, '#include "platform/linux/x11/x11.h"\n',
                              "may not include platform/linux")
        for path in ("platform/linux/a.cpp", "platform/shared/chooser.cpp",
                     "platform/linux/x11/chooser.cpp"):
            self.assert_fault(path, '#include "platform/null/null.h"\n',
                              "may not include platform/null")

    def test_every_source_lies_in_a_room(self):
        for path in ("attic/a.cpp", "a.cpp", "screen/attic/a.h", "platform/attic/a.h"):
            self.assert_fault(path, "", "lies in no room")

    def test_sources_end_in_h_or_cpp(self):
        for ending in ("c", "cc", "cxx", "hpp", "inc", "mm"):
            self.assert_fault(f"screen/a.{ending}", "", "sources end in .h or .cpp")
        self.assert_fault("tests/a.mm", "", "sources end in .h or .cpp")
        for path in ("platform/linux/a.mm", "tests/macos/fakes/a.mm"):
            self.assert_sound(path, "#import <AppKit/AppKit.h>\n")
        found = self.faults({"screen/a.txt": "", "screen/a.cpp": '#include "screen/a.txt"\n'})
        self.assertEqual(found, ["screen/a.cpp:1: screen/a.txt is no header"])

    def test_the_table_names_rooms_that_are_there(self):
        found = self.faults({"ARCHITECTURE.md": ROOMS + "| `attic/` | Dust | `cellar` |\n"})
        self.assertIn("ARCHITECTURE.md: there is no folder attic/", found)
        self.assertIn("ARCHITECTURE.md: attic stands on cellar, which is no room", found)

    def test_a_row_that_cannot_be_read_is_a_fault(self):
        self.assert_fault("ARCHITECTURE.md", ROOMS + "| `the attic/` | Dust | `base` |\n",
                          "not a row of the table")

    def test_the_table_keeps_the_platform_apart(self):
        for table in (ROOMS.replace("| `base` |", "| `base` `platform/linux` |"),
                      ROOMS.replace("| Nothing | `platform` |", "| Nothing | `base` |")):
            self.assert_fault("ARCHITECTURE.md", table, "may not stand on")

    def test_an_empty_tree_is_no_success(self):
        with tempfile.TemporaryDirectory() as folder:
            self.assertEqual(len(includecheck.faults(Path(folder))), 1)
            write(Path(folder), {"ARCHITECTURE.md": "| `base/` | | |\n", "base/a.txt": ""})
            self.assertTrue(any("no sources" in line for line in includecheck.faults(Path(folder))))

    # Circles

    def test_a_circle_of_files_is_found(self):
        found = self.faults({
            "quotes/a.h": '#include "quotes/b.h"\n',
            "quotes/b.h": '#include "quotes/c.h"\n',
            "quotes/c.h": '#include "quotes/a.h"\n',
        })
        self.assertEqual(found, ["a circle of files: "
                                 "quotes/a.h -> quotes/b.h -> quotes/c.h -> quotes/a.h"])

    def test_a_file_that_includes_itself_is_a_circle(self):
        self.assert_fault("quotes/a.h", '#include "quotes/a.h"\n', "a circle of files")

    def test_a_circle_of_units_is_found(self):
        for source in ("quotes/a.cpp", "quotes/a_more.cpp", "quotes/a_even_more.cpp"):
            found = self.faults({
                "quotes/a.h": "",
                source: '#include "quotes/a.h"\n#include "quotes/b.h"\n',
                "quotes/b.h": '#include "quotes/a.h"\n',
            })
            self.assertEqual(found, ["a circle of units: quotes/a -> quotes/b -> quotes/a"])

    def test_a_source_of_a_backend_belongs_to_its_interface(self):
        found = self.faults({
            "platform/linux/files.cpp": '#include "platform/linux/rest.h"\n',
            "platform/linux/rest.h": '#include "platform/files.h"\n',
        })
        self.assertEqual(found, ["a circle of units: "
                                 "platform/files -> platform/linux/rest -> platform/files"])

    def test_a_circle_in_the_table_is_found(self):
        table = ROOMS.replace("| `base/` | What has no subject | |",
                              "| `base/` | What has no subject | `quotes` |")
        self.assertIn("a circle of rooms: base -> quotes -> base",
                      self.faults({"ARCHITECTURE.md": table}))

    # Ways to write an include

    def test_an_include_is_seen_however_it_is_written(self):
        for text in ("#include <screen/view.h>", '#include"screen/view.h"', "#  include <screen/view.h>",
                     '  #include "screen/view.h"', '%:include "screen/view.h"',
                     '#import "screen/view.h"', '#if 0\n#include "screen/view.h"\n#endif',
                     '#inc\\\nlude "screen/view.h"', '\ufeff#include "screen/view.h"'):
            self.assert_fault("quotes/a.cpp", text + "\n", "may not include screen/view.h")
        self.assert_fault("quotes/a.cpp", "#include HEADER\n", "not the name of a file")

    def test_includes_are_written_from_the_root(self):
        for target in ("quote.h", "quotes/../screen/view.h", "quotes//quote.h", "./quotes/quote.h"):
            self.assert_fault("quotes/a.cpp", f'#include "{target}"\n', "not written from the root")

    def test_what_is_no_code_does_not_count(self):
        for text in ('// #include "app/main.cpp"', '/*\n#include "screen/view.h"\n#ifdef Q_OS_LINUX\n*/',
                     "// ::open(x) and \"/proc\"", "// spliced \\\n#include <unistd.h>",
                     'auto a = R"(\n#include <unistd.h>\n)";', "auto a = 1'000'000; // malloc_trim(0)"):
            self.assert_sound("quotes/a.cpp", text + "\n")

    def test_what_is_no_code_hides_nothing(self):
        for text in ("const char mark = '\"'; // \"", 'auto a = R"("*/*.png")";', 'auto a = "/*";',
                     "/* \n */", 'auto a = R"x(")x"; auto b = "//";'):
            line = text.count("\n") + 2
            self.assert_fault("quotes/a.cpp", text + "\nmalloc_trim(0); // */\n",
                              f"quotes/a.cpp:{line}: malloc_trim")

    def test_odd_bytes_stop_nothing(self):
        with tempfile.TemporaryDirectory() as folder:
            write(Path(folder), SOUND)
            (Path(folder) / "quotes/a.cpp").write_bytes(b"// \xff\n#include <malloc.h>\n")
            self.assertEqual(len(includecheck.faults(Path(folder))), 1)

    # The system

    def test_no_header_of_the_system_outside_the_platform(self):
        for header in ("malloc.h", "unistd.h", "sys/stat.h", "linux/tcp.h", "xcb/xcb.h", "errno.h",
                       "stdlib.h", "time.h", "pthread.h", "wayland-client.h", "dbus/dbus.h",
                       "netdb.h", "features.h", "qpa/qplatformwindow.h", "private/qobject_p.h",
                       "QDBusConnection", "QtDBus", "QtDBus/QDBusMessage", "QX11Info",
                       "QWaylandClient", "QWindowSystemInterface", "QPlatformNativeInterface",
                       "QNativeInterface"):
            self.assert_fault("screen/a.h", f"#include <{header}>\n",
                              f"includes {header} of the system")
            self.assert_sound("platform/linux/a.cpp", f"#include <{header}>\n")
        for path in ("base/a.cpp", "app/a.cpp", "tools/a.cpp", "bench/a.cpp"):
            self.assert_fault(path, "#include <malloc.h>\n", "includes malloc.h of the system")
            self.assert_fault(path, '#include "malloc.h"\n', "includes malloc.h of the system")
        self.assert_fault("quotes/a.cpp", "#if __has_include(<unistd.h>)\n#endif\n",
                          "asks for unistd.h of the system")

    def test_no_header_of_linux_outside_its_backend(self):
        for header in ("linux/tcp.h", "malloc.h", "sys/epoll.h", "xcb/xcb.h", "X11/Xlib.h",
                       "wayland-client.h", "dbus/dbus.h", "QDBusConnection", "QtDBus/QDBusMessage"):
            for path in ("platform/a.h", "platform/shared/a.cpp", "platform/null/a.cpp"):
                self.assert_fault(path, f"#include <{header}>\n", f"includes {header} of Linux")
            self.assert_sound("platform/linux/x11/a.cpp", f"#include <{header}>\n")
        for header in ("unistd.h", "sys/stat.h", "malloc/malloc.h"):
            self.assert_sound("platform/shared/a.cpp", f"#include <{header}>\n")

    def test_no_name_of_the_system_outside_the_platform(self):
        for code in ('QFile file("/proc/self/exe");', 'QDir dir("/sys/class");', "CLOCK_BOOTTIME;",
                     "clock_gettime(id, &t);", "flock(fd, 1);", "malloc_trim(0);", "mallopt(1, 2);",
                     "mallinfo2();", "::open(name, 0);", "::read(fd, a, 1);", "= ::memfd_create(n);",
                     "struct wl_display* display;", "zwlr_layer_shell_v1* shell;",
                     "xcb_flush(nullptr);", "dbus_bus_get(a, b);", "class QDBusMessage;",
                     "QNativeInterface::x;"):
            self.assert_fault("quotes/a.h", code + "\n", "is the system's own")
            self.assert_sound("platform/linux/a.cpp", code + "\n")
        for path in ("tools/a.cpp", "bench/a.cpp"):
            self.assert_fault(path, "malloc_trim(0);\n", "is the system's own")

    def test_names_of_others_stand(self):
        for code in ("file.open(mode);", "QFile::rename(a, b);", "reply->read(3);", "x = S<int>::read(y);",
                     "std::max(a, b);", "void File::open() {}", '"https://example.org/proc/"'):
            self.assert_sound("quotes/a.cpp", code + "\n")

    def test_no_question_for_the_system_outside_the_platform(self):
        for condition in ("#ifdef Q_OS_LINUX", "#if defined(__linux__)", "#  elif defined(_WIN32)",
                          "#if __APPLE__ && 1", "#ifndef Q_OS_MACOS", "#ifdef __GLIBC__",
                          "#ifdef __unix__", "#ifdef __gnu_linux__", "#ifdef __FreeBSD__",
                          "#ifdef __ANDROID__", "#ifdef __MINGW32__", "#ifdef __CYGWIN__",
                          "#if TARGET_OS_MAC", "#define _GNU_SOURCE", "#elifdef __linux__",
                          "#define IS defined(Q_OS_LINUX)"):
            self.assert_fault("screen/a.cpp", f"#if 1\n{condition}\n#endif\n",
                              "screen/a.cpp:2: asks which system it is")
        self.assert_fault("screen/a.cpp", "#if A && \\\n defined(__linux__)\n#endif\n",
                          "asks which system it is")

    def test_other_conditions_stand(self):
        self.assert_sound("screen/a.cpp", "#if defined(__AVX2__)\n#endif\n"
                          "#if QT_VERSION >= 0x060400\n#endif\n")

    # CMake

    def test_a_room_links_what_it_includes(self):
        self.assert_fault("quotes/CMakeLists.txt", library("quotes", "morrowleaf_system"),
                          "does not link morrowleaf_base")
        self.assert_fault("quotes/CMakeLists.txt", library("quotes", "morrowleaf_base"),
                          "does not link morrowleaf_system")
        self.assert_fault("screen/CMakeLists.txt",
                          library("screen", "morrowleaf_quotes morrowleaf_system"),
                          "does not link morrowleaf_platform")

    def test_a_room_links_nothing_above_it(self):
        self.assert_fault("quotes/CMakeLists.txt", SOUND["quotes/CMakeLists.txt"]
                          + "target_link_libraries(morrowleaf_quotes PUBLIC morrowleaf_app)\n",
                          "may not link morrowleaf_app")
        found = self.faults({"platform/linux/CMakeLists.txt":
                             "target_link_libraries(morrowleaf_platform PUBLIC morrowleaf_app)\n"})
        self.assertEqual(found, ["platform/CMakeLists.txt: may not link morrowleaf_app"])

    def test_only_the_platform_links_libraries_of_the_system(self):
        for name in ("Qt6::DBus", "Qt6::GuiPrivate", "PkgConfig::XCB", "xcb", "-lxcb", "${LIBRARIES}"):
            self.assert_fault("base/CMakeLists.txt", library("base", name), f"links {name} of the system")
        self.assert_fault("tools/CMakeLists.txt", "target_link_libraries(x PRIVATE Qt6::DBus)\n",
                          "links Qt6::DBus of the system")

    def test_a_room_is_a_library_of_its_name(self):
        for text in (library("drawer"), library("base") + library("drawer"), None):
            self.assert_fault("base/CMakeLists.txt", text, "its library is not morrowleaf_base")
        self.assert_fault("base/CMakeLists.txt", library("base", sources="../app/a.cpp"),
                          "reaches out of its folder")

    def test_every_room_is_built(self):
        added = SOUND["CMakeLists.txt"].replace("add_subdirectory(quotes)", "# add_subdirectory(quotes)")
        self.assert_fault("CMakeLists.txt", added, "does not add quotes")


if __name__ == "__main__":
    unittest.main()
