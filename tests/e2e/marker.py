#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Returns when the program has handled every D-Bus message sent to it before.

A bus delivers in order, so a connection of the program that answers a ping has
received all earlier signals and queued them for the main thread. Only the main
thread can answer that its object lacks a method; the second such answer shows
that it has run its event loop since and so has sent its requests to the display.
"""
import os
import sys
import time

import dbus

NAME = "org.morrowleaf.Morrowleaf"
PATH = "/org/morrowleaf/Morrowleaf"


def wait_for(condition, what):
    """The program connects to the buses while it shows its first window already."""
    end = time.monotonic() + 60
    while not condition():
        if time.monotonic() > end:
            sys.exit(f"in vain waited until {what}")
        time.sleep(0.02)


def daemon_of(bus):
    return dbus.Interface(bus.get_object("org.freedesktop.DBus", "/org/freedesktop/DBus"),
                          "org.freedesktop.DBus")


def ping(bus, pid):
    """Returns whether the program has a connection to the bus."""
    daemon = daemon_of(bus)
    found = False
    for name in daemon.ListNames():
        try:
            if name.startswith(":") and daemon.GetConnectionUnixProcessID(name) == pid:
                bus.call_blocking(name, "/", "org.freedesktop.DBus.Peer", "Ping", "", ())
                found = True
        except dbus.DBusException:
            pass  # the connection has left the bus meanwhile
    return found


def reach_main_thread(bus):
    try:
        bus.call_blocking(NAME, PATH, "org.freedesktop.Application", "NoSuchMethod", "", ())
    except dbus.DBusException as error:
        if error.get_dbus_name() != "org.freedesktop.DBus.Error.UnknownMethod":
            raise


def system_bus():
    if not os.path.exists(os.environ["DBUS_SYSTEM_BUS_ADDRESS"].partition("path=")[2]):
        return None
    try:
        return dbus.SystemBus()
    except dbus.DBusException:
        return None  # a bus that has ended leaves its socket behind


def main():
    session = dbus.SessionBus()
    wait_for(lambda: session.name_has_owner(NAME), "the program has its name")
    pid = daemon_of(session).GetConnectionUnixProcessID(NAME)
    system = system_bus()
    if system is not None:
        wait_for(lambda: ping(system, pid), "the program is on the system bus")
        reach_main_thread(session)  # which subscribes once it is connected
        ping(system, pid)
    ping(session, pid)
    reach_main_thread(session)
    reach_main_thread(session)


main()
