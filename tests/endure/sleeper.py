#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Has the fake login manager announce that the machine falls asleep and wakes.

    sleeper.py COUNT
"""
import sys

import dbus

bus = dbus.SystemBus()
manager = dbus.Interface(bus.get_object("org.freedesktop.login1", "/org/freedesktop/login1"),
                         "org.freedesktop.DBus.Mock")
for _ in range(int(sys.argv[1])):
    for begins in (True, False):
        manager.EmitSignal("org.freedesktop.login1.Manager", "PrepareForSleep", "b", [begins])
