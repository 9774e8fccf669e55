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

import dbus

NAME = "org.morrowleaf.Morrowleaf"
PATH = "/org/morrowleaf/Morrowleaf"


def daemon_of(bus):
    return dbus.Interface(bus.get_object("org.freedesktop.DBus", "/org/freedesktop/DBus"),
                          "org.freedesktop.DBus")


def ping(bus, pid):
    daemon = daemon_of(bus)
    for name in daemon.ListNames():
        try:
            if name.startswith(":") and daemon.GetConnectionUnixProcessID(name) == pid:
                bus.call_blocking(name, "/", "org.freedesktop.DBus.Peer", "Ping", "", ())
        except dbus.DBusException:
            pass  # the connection has left the bus meanwhile


def reach_main_thread(bus):
    try:
        bus.call_blocking(NAME, PATH, "org.freedesktop.Application", "NoSuchMethod", "", ())
    except dbus.DBusException as error:
        if error.get_dbus_name() != "org.freedesktop.DBus.Error.UnknownMethod":
            raise


def main():
    session = dbus.SessionBus()
    pid = daemon_of(session).GetConnectionUnixProcessID(NAME)
    if os.path.exists(os.environ["DBUS_SYSTEM_BUS_ADDRESS"].partition("path=")[2]):
        try:
            ping(dbus.SystemBus(), pid)
        except dbus.DBusException:
            pass  # a bus that has ended leaves its socket behind
    ping(session, pid)
    reach_main_thread(session)
    reach_main_thread(session)


main()
