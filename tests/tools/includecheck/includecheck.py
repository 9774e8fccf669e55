#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Checks the sources against the table of rooms in ARCHITECTURE.md.

A room is a folder with a row in that table. This checks that

- every source is in a room, in tests/, in bench/ or in tools/
- an include stays in its room or goes to one that the room stands on; the
  interfaces platform/*.h may be included from everywhere
- neither the table nor the files nor the units (a header with its sources) form
  cycles
- includes are written from the root
- only platform/ uses headers, names and libraries of an operating system, and only
  platform/linux/ uses headers of Linux
- the CMake files have the same rooms, and link what is included

    includecheck.py ROOT        prints one line per fault; status 1 if there is any
"""

import posixpath
import re
import sys
from pathlib import Path

# These are above every room and may include anything.
ABOVE = ("tools", "bench", "tests")
# Tests act as the outside world, and these benchmarks measure processes.
MAY_ASK_THE_SYSTEM = ("platform/", "tests/", "bench/photo_bench.cpp", "bench/source_bench.cpp",
                      "tools/steppedclock.cpp")
# A backend may fall back on the null backend, in this one file.
CHOOSER, FALLBACK = re.compile(r"platform/(?!shared/|null/)\w+/chooser\.cpp$"), "platform/null"
NOT_SEARCHED = {"build", "out"}

SOURCES = {".h", ".cpp"}
SOURCES_OF_THE_PLATFORM = SOURCES | {".m", ".mm"}
MAY_BE_OBJECTIVE_C = ("platform/", "tests/macos/")
OTHER_SOURCES = set(".c .cc .cxx .cppm .h++ .hh .hpp .hxx .H .inc .inl .ipp .tpp".split())

STANDARD = set(
    "algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv "
    "chrono cinttypes climits clocale cmath codecvt compare complex concepts condition_variable "
    "coroutine csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar "
    "cwctype deque exception execution filesystem format forward_list fstream functional future "
    "initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map "
    "memory memory_resource mutex new numbers numeric optional ostream queue random ranges ratio "
    "regex scoped_allocator semaphore set shared_mutex source_location span sstream stack "
    "stdexcept stop_token streambuf string string_view syncstream system_error thread tuple "
    "type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector "
    "version".split()
)
# The classes of Qt without a folder before them, so that none names a module.
LIBRARY_HEADER = re.compile(
    r"Q[A-Za-z0-9]+$|\w+\.moc$|unicode/\w+\.h$|nlohmann/json\.hpp$|immintrin\.h$|curl/curl\.h$|zlib\.h$"
    r"|benchmark/|gtest/|gmock/"
)
SYSTEM_HEADER = re.compile(
    r"QDBus|QtDBus|QX11|QWayland|QWindowSystem|QPlatform(?!SurfaceEvent)|QNative(?!GestureEvent)"
)
LINUX = "platform/linux/"
LINUX_HEADER = re.compile(
    r"(?:linux|xcb|X11|dbus)/|wayland-|malloc\.h$|Q(?:t?DBus|X11|Wayland)"
    r"|sys/(?:epoll|eventfd|inotify|prctl|signalfd|sysinfo|timerfd)\.h$"
)
SYSTEM_NAME = re.compile(
    r'"/(?:proc|sys|dev|etc|run)\b'
    r"|\bCLOCK_[A-Z]\w*|\bclock_gettime\b|\bflock\b"
    r"|\bmalloc_\w+|\bmallopt\b|\bmallinfo2?\b"
    r"|\bxcb_\w+|\bwl_\w+|\bzwlr_\w+|\bdbus_\w+|\bQDBus\w*|\bQNativeInterface\b"
    r"|\bQPlatformNativeInterface\b|\bQX11\w*"
    r"|(?<![\w>])::\s*[a-z_]\w*\s*\("  # a function of the system, called as one
)
SYSTEM_CONDITION = re.compile(
    r"\bQ_OS_\w+|\b_*(?:gnu_)?(?:linux|unix|APPLE|MACH|FreeBSD|OpenBSD|NetBSD|ANDROID|GLIBC)_*\b"
    r"|\b_?WIN(?:32|64)\b|\b__MINGW\w*|\b__CYGWIN__\b|\bTARGET_OS_\w+"
    r"|\b_(?:GNU|DEFAULT|POSIX_C|XOPEN)_SOURCE\b"
)

ROW = re.compile(r"\| `([\w/-]+)/` \|.*\|([^|]*)\|\s*$")
INCLUDE = re.compile(r'\s*(?:#|%:)\s*(?:include|include_next|import)\b\s*(?:"([^"]+)"|<([^>]+)>|(\S+))')
DIRECTIVE = re.compile(r"\s*(?:#|%:)\s*\w+(.*)")
NOT_CODE = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"([^\s()\\]{0,16})\(.*?\)\1"'
    r'''|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])\'''', re.S
)

LIBRARY = re.compile(r"morrowleaf_library\s*\(\s*morrowleaf_(\w+)(.*?)\)", re.S)
LINK = re.compile(r"\bLIBRARIES\b([^)]*)|target_link_libraries\s*\(\s*\S+([^)]*)\)")
OWN_LIBRARY = re.compile(r"morrowleaf_(\w+)$")
PORTABLE_LIBRARY = re.compile(
    r"(?:PRIVATE|PUBLIC|INTERFACE|Qt6::(?:Core|Gui|Widgets|Network|Svg)|ICU::uc"
    r"|nlohmann_json::nlohmann_json|CURL::libcurl|ZLIB::ZLIB|benchmark::benchmark|bench_\w+)$"
)


def read(file):
    return file.read_text(encoding="utf-8-sig", errors="replace") if file.is_file() else ""


def without_comments(text):
    """The text without comments and raw strings, with spliced lines joined; every line
    keeps its number."""
    def blank(match):
        found = match.group(0)
        return found if found[0] in "\"'" else "\n" * found.count("\n")

    def join(match):
        return match.group(0).replace("\\\n", "") + "\n" * match.group(0).count("\\\n")

    return NOT_CODE.sub(blank, re.sub(r"(?:[^\n]*\\\n)+[^\n]*", join, text))


def find_circle(edges):
    """One cycle as a list of nodes, or None."""
    done, trail = set(), []

    def visit(node):
        if node in trail:
            return trail[trail.index(node):] + [node]
        if node in done:
            return None
        trail.append(node)
        for target in sorted(edges.get(node, ())):
            circle = visit(target)
            if circle:
                return circle
        trail.pop()
        done.add(node)
        return None

    for node in sorted(edges):
        circle = visit(node)
        if circle:
            return circle
    return None


class Check:
    def __init__(self, root):
        self.root = root
        self.rooms = {}  # room to the rooms that it may include
        self.found = []
        self.edges = {}  # file to the project's files that it includes
        self.needs = {}  # room to the libraries of the headers that it includes
        system = dict(LIBRARY.findall(read(root / "platform/CMakeLists.txt"))).get("system", "")
        self.system_interfaces = set(re.findall(r"\w+\.h\b", system))

    def read_rooms(self):
        for line in read(self.root / "ARCHITECTURE.md").splitlines():
            row = ROW.match(line)
            if row:
                self.rooms[row.group(1)] = set(re.findall(r"`([\w/-]+)`", row.group(2)))
            elif line.startswith("| `"):
                self.found.append(f"ARCHITECTURE.md: not a row of the table of rooms: {line}")
        for room, below in self.rooms.items():
            if not (self.root / room).is_dir():
                self.found.append(f"ARCHITECTURE.md: there is no folder {room}/")
            for other in sorted(below):
                if other not in self.rooms:
                    self.found.append(f"ARCHITECTURE.md: {room} stands on {other}, which is no room")
                elif room.startswith("platform") != other.startswith("platform"):
                    self.found.append(f"ARCHITECTURE.md: {room} may not stand on {other}")

    def room_of(self, path):
        folder = path.rpartition("/")[0]
        return folder.split("/")[0] if folder.split("/")[0] in ABOVE else folder

    def unit_of(self, path):
        """The header of a source has the same name, possibly without what follows an
        underscore; a backend's source may belong to an interface."""
        stem, _, ending = path.rpartition(".")
        interface = "platform/" + stem.rpartition("/")[2]
        if stem.startswith("platform/") and ending != "h" and (self.root / f"{interface}.h").is_file():
            return interface
        header = stem
        while not (self.root / f"{header}.h").is_file():
            header, underscore, _ = header.rpartition("_")
            if not underscore:
                return stem
        return header

    def library_of(self, path):
        """The library that defines what a header of the project declares."""
        if path.startswith("platform/"):
            return "system" if path.rpartition("/")[2] in self.system_interfaces else "platform"
        return path.split("/")[0]

    def may_include(self, path, target):
        room, other = self.room_of(path), self.room_of(target)
        if room in ABOVE or room == other or other == "platform":
            return True
        if other == FALLBACK and CHOOSER.match(path):
            return True
        return other in self.rooms.get(room, ())

    def sources(self):
        """Every file of the project that a compiler may read."""
        for top in sorted(self.root.iterdir()):
            if top.name.startswith(".") or top.name in NOT_SEARCHED:
                continue
            for file in sorted(top.rglob("*")) if top.is_dir() else [top]:
                path = file.relative_to(self.root).as_posix()
                ours = SOURCES_OF_THE_PLATFORM if path.startswith(MAY_BE_OBJECTIVE_C) else SOURCES
                if file.suffix in ours and file.is_file():
                    yield path, file
                elif file.suffix in OTHER_SOURCES | SOURCES_OF_THE_PLATFORM and file.is_file():
                    self.found.append(f"{path}: sources end in .h or .cpp")

    def is_foreign(self, header):
        return SYSTEM_HEADER.match(header) or not (
            header in STANDARD or LIBRARY_HEADER.match(header)
        )

    def check_include(self, place, path, file, match):
        ours, other, unreadable = match.groups()
        target = ours or other
        if unreadable:
            self.found.append(f"{place}: {unreadable} is not the name of a file")
        elif posixpath.normpath(target) != target:
            self.found.append(f'{place}: "{target}" is not written from the root')
        elif len(target) < 200 and (self.root / target).is_file():
            self.edges[path].add(target)
            if Path(target).suffix not in SOURCES:
                self.found.append(f"{place}: {target} is no header")
            elif self.may_include(path, target):
                self.needs.setdefault(self.room_of(path), set()).add(self.library_of(target))
            else:
                self.found.append(f"{place}: may not include {target}")
        elif ours and len(target) < 200 and (file.parent / target).is_file():
            self.found.append(f'{place}: "{target}" is not written from the root')
        elif not path.startswith(MAY_ASK_THE_SYSTEM) and self.is_foreign(target):
            self.found.append(f"{place}: includes {target} of the system outside platform/")
        elif path.startswith("platform/") and not path.startswith(LINUX) and LINUX_HEADER.match(target):
            self.found.append(f"{place}: includes {target} of Linux outside {LINUX}")

    def check_line(self, place, line):
        directive = DIRECTIVE.match(line)
        if directive and SYSTEM_CONDITION.search(directive.group(1)):
            self.found.append(f"{place}: asks which system it is outside platform/")
        for header in re.findall(r"__has_include\s*\(\s*[<\"]([^>\"]+)", line):
            if self.is_foreign(header):
                self.found.append(f"{place}: asks for {header} of the system outside platform/")
        name = SYSTEM_NAME.search(line)
        if name:
            self.found.append(f"{place}: {name.group(0)} is the system's own")

    def check_sources(self):
        for path, file in self.sources():
            self.edges[path] = set()
            if self.room_of(path) not in self.rooms and self.room_of(path) not in ABOVE:
                self.found.append(f"{path}: lies in no room")
            for number, line in enumerate(without_comments(read(file)).splitlines(), 1):
                place = f"{path}:{number}"
                include = INCLUDE.match(line)
                if include:
                    self.check_include(place, path, file, include)
                elif not path.startswith(MAY_ASK_THE_SYSTEM):
                    self.check_line(place, line)
        if not self.edges:
            self.found.append(f"{self.root}: no sources")

    def check_circles(self):
        units = {}
        for path, targets in self.edges.items():
            unit = self.unit_of(path)
            others = {self.unit_of(target) for target in targets}
            units.setdefault(unit, set()).update(others - {unit})
        for kind, edges in (("rooms", self.rooms), ("files", self.edges), ("units", units)):
            circle = find_circle(edges)
            if circle:
                self.found.append(f"a circle of {kind}: " + " -> ".join(circle))
                return

    def check_links(self, folder):
        """The project's libraries that a room, the tools or the benchmarks link, by name."""
        own = set()
        for file in sorted((self.root / folder).rglob("CMakeLists.txt")):
            place = file.relative_to(self.root).as_posix()
            text = re.sub(r"#[^\n]*", "", read(file))
            if ".." in text:
                self.found.append(f"{place}: reaches out of its folder")
            for word in " ".join("".join(link) for link in LINK.findall(text)).split():
                library = OWN_LIBRARY.match(word)
                if library:
                    own.add(library.group(1))
                elif folder != "platform" and not PORTABLE_LIBRARY.match(word):
                    self.found.append(f"{place}: links {word} of the system")
        return own

    def check_cmake(self):
        """Checks that every room at the top is a library that links what it includes."""
        tops = [room for room in self.rooms if "/" not in room]
        added = re.sub(r"#[^\n]*", "", read(self.root / "CMakeLists.txt"))
        for room in tops:
            place = f"{room}/CMakeLists.txt"
            wanted = {"platform", "system"} if room == "platform" else {room}
            if {name for name, _ in LIBRARY.findall(read(self.root / place))} != wanted:
                self.found.append(f"{place}: its library is not morrowleaf_{room}")
            links = self.check_links(room)
            allowed = self.rooms[room] | {room, "system", "platform"}
            if room == "platform":
                allowed |= {"protocols", "maccore", "options"}
            for other in sorted(links - allowed):
                self.found.append(f"{place}: may not link morrowleaf_{other}")
            # morrowleaf_platform links morrowleaf_system.
            has = links | {room} | ({"system"} if "platform" in links else set())
            for other in sorted(self.needs.get(room, set()) - has):
                if room != "platform":
                    self.found.append(f"{place}: does not link morrowleaf_{other}")
            if not re.search(rf"add_subdirectory\s*\(\s*{room}\b", added):
                self.found.append(f"CMakeLists.txt: does not add {room}")
        for folder in ("tools", "bench"):
            self.check_links(folder)

    def run(self):
        self.read_rooms()
        if not self.rooms:
            return [f"{self.root}: ARCHITECTURE.md has no table of rooms"]
        self.check_sources()
        self.check_circles()
        self.check_cmake()
        return self.found


def faults(root):
    sys.setrecursionlimit(20000)  # a chain of includes may be long
    return Check(root).run()


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    found = faults(Path(sys.argv[1]).resolve())
    for fault in found:
        print(fault)
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
