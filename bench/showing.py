#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Measures showings of the real program on private screens of Xvfb.

Prints the processor time of the program and of its X server in each motion of the
backdrop at rest, as a multiple of copying the frame thirty times a second in the same
seconds, and of the first four seconds in each style of the text. With --against, a
second program (of another build) is measured at the same time on a screen of its own.
At the end it compares the program with scene.html in Chromium, if that is installed.
"""

import argparse
import json
import os
import shutil
import subprocess
import tempfile
import threading
import time
from pathlib import Path

MOTIONS = ("drift", "aurora", "breathe", "zoom")
STYLES = ("fade", "handwrite", "typewriter", "rise", "blur")
ENTRANCE = 4  # seconds
REST_FROM = 6  # seconds after the start
PAGE = Path(__file__).with_name("scene.html").resolve()


def family(pid):
    """A process and all its descendants."""
    parents = {}
    for entry in Path("/proc").iterdir():
        if entry.name.isdigit():
            try:
                stat = (entry / "stat").read_text()
            except OSError:
                continue  # the process has ended
            parents[int(entry.name)] = int(stat.rpartition(")")[2].split()[1])
    found = [pid]
    for member in found:
        found += [child for child, parent in parents.items() if parent == member]
    return found


def processor_time(pid):
    """The processor time of all threads of a process, in seconds."""
    total = 0
    try:
        for task in Path(f"/proc/{pid}/task").iterdir():
            total += int((task / "schedstat").read_text().split()[0])
    except OSError:
        pass  # a thread or the process has ended
    return total / 1e9


def memory(pid):
    """The proportional set size of a process, in kB."""
    for line in Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines():
        if line.startswith("Pss:"):
            return int(line.split()[1])
    return 0


class Copying(threading.Thread):
    """Copies a frame thirty times a second; `spent` is the processor time of that."""

    def __init__(self, size, seconds):
        super().__init__()
        width, height = map(int, size.split("x"))
        self.source = memoryview(bytes(b"\1") * (width * height * 4))
        self.target = memoryview(bytearray(len(self.source)))
        self.ticks = seconds * 30
        self.spent = 0
        self.start()

    def run(self):
        self.target[:] = self.source  # the first copy also fetches the memory
        start = time.monotonic()
        before = time.thread_time()
        for tick in range(self.ticks):
            self.target[:] = self.source
            time.sleep(max(0, start + (tick + 1) / 30 - time.monotonic()))
        self.spent = time.thread_time() - before


class Showing:
    """A command on a screen, a bus and a home of its own."""

    def __init__(self, command, size, settings):
        self.home = Path(tempfile.mkdtemp(prefix="showing"))
        config = self.home / ".config/morrowleaf"
        config.mkdir(parents=True)
        settings = {"paletteIndex": 6, "dismissSeconds": 60, **settings}
        (config / "settings.json").write_text(json.dumps(settings))
        runtime = self.home / "run"
        runtime.mkdir(mode=0o700)
        kept = {k: v for k, v in os.environ.items() if k in ("PATH", "LANG")}
        environment = kept | {
            "HOME": str(self.home),
            "XDG_RUNTIME_DIR": str(runtime),
            "NO_AT_BRIDGE": "1",
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={runtime}/bus",
        }
        self.processes = []
        read, write = os.pipe()
        server = ["Xvfb", "-displayfd", str(write), "-screen", "0", f"{size}x24"]
        self.server = self.start([*server, "-nolisten", "tcp", "-noreset"], environment, (write,))
        os.close(write)
        with os.fdopen(read) as numbers:
            environment["DISPLAY"] = ":" + numbers.readline().strip()
        bus = f"--address={environment['DBUS_SESSION_BUS_ADDRESS']}"
        self.start(["dbus-daemon", "--session", "--nofork", "--nopidfile", bus], environment)
        time.sleep(0.3)
        self.program = self.start(command, environment)

    def start(self, command, environment, descriptors=()):
        process = subprocess.Popen(
            command,
            env=environment,
            pass_fds=descriptors,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )
        self.processes.append(process)
        return process

    def times(self):
        """Seconds of the program with its children and of its server."""
        if self.program.poll() is not None:
            raise SystemExit("The program has ended.")
        own = sum(processor_time(pid) for pid in family(self.program.pid))
        return own, processor_time(self.server.pid)

    def memory(self):
        return sum(memory(pid) for pid in family(self.program.pid))

    def end(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait()
        shutil.rmtree(self.home, ignore_errors=True)


def measure(commands, size, settings, start, seconds):
    """Of each command: its seconds and those of its server, from `start` on, and its memory.

    Also the seconds that copying the frame took meanwhile.
    """
    showings = [Showing(command, size, settings) for command in commands]
    try:
        time.sleep(start)
        before = [showing.times() for showing in showings]
        copying = Copying(size, seconds)
        time.sleep(seconds)
        after = [showing.times() for showing in showings]
        spent = [
            (b[0] - a[0], b[1] - a[1], showing.memory())
            for a, b, showing in zip(before, after, showings)
        ]
        copying.join()
        return spent, copying.spent
    finally:
        for showing in showings:
            showing.end()


def page_command():
    """Chromium with the page over the whole screen; None if it is not installed."""
    browser = shutil.which("chromium")
    if not browser:
        return None
    # Its sandbox refuses to run for root.
    free = ["--no-sandbox"] if os.geteuid() == 0 else []
    return [browser, *free, "--no-first-run", "--kiosk", f"--app=file://{PAGE}"]


def compare_with_page(program, size, seconds):
    page = page_command()
    if not page:
        print("The page is skipped: chromium is missing.")
        return
    (own, page), _ = measure([[program], page], size, {}, REST_FROM, seconds)
    for name, (time_, server, size_) in (("program", own), ("page", page)):
        print(f"{name}, {seconds} s at rest: {time_:.2f} s, X server {server:.2f} s, {size_} kB")
    time_ratio = sum(page[:2]) / sum(own[:2])
    print(f"page : program = {time_ratio:.1f} in time, {page[2] / own[2]:.1f} in memory")


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", 1)[0])
    parser.add_argument("program")
    parser.add_argument("--against", help="another program to measure at the same time")
    parser.add_argument("--size", default="1920x1080")
    parser.add_argument("--seconds", type=int, default=20, help="of rest (20)")
    parser.add_argument("--only", choices=("rest", "entrance", "page"))
    options = parser.parse_args()
    if not shutil.which("Xvfb") or not shutil.which("dbus-daemon"):
        print("showing.py: skipped, Xvfb or dbus-daemon is missing")
        return
    programs = [options.program, *([options.against] if options.against else [])]
    commands = [[program] for program in programs]

    def report(what, spent, copies=None):
        for program, (own, server, _) in zip(programs, spent):
            ratio = f", {(own + server) / copies:.2f} times copying" if copies else ""
            name = f" {program}" if len(programs) > 1 else ""
            print(f"{what}: program {own:.2f} s, X server {server:.2f} s{ratio}{name}", flush=True)

    for motion in MOTIONS if options.only in (None, "rest") else ():
        settings = {"screenAnimation": motion}
        spent, copies = measure(commands, options.size, settings, REST_FROM, options.seconds)
        report(f"{options.size} {motion}, {options.seconds} s at rest", spent, copies)
    for style in STYLES if options.only in (None, "entrance") else ():
        spent, _ = measure(commands, options.size, {"textAnimation": style}, 0, ENTRANCE)
        report(f"{options.size} {style}, start and first {ENTRANCE} s", spent)
    if options.only in (None, "page"):
        compare_with_page(options.program, options.size, options.seconds)


if __name__ == "__main__":
    main()
