# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""The overview of GNOME's shell, as a property that every client can set.

shell.py            prints "serving", then "open" or "closed" at every change
"""
import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

NAME = "org.gnome.Shell"
PATH = "/org/gnome/Shell"
PROPERTY = "OverviewActive"
PROPERTIES = "org.freedesktop.DBus.Properties"


class Shell(dbus.service.Object):
    is_open = True

    @dbus.service.method(PROPERTIES, in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        return dbus.Boolean(self.is_open, variant_level=1)

    @dbus.service.method(PROPERTIES, in_signature="ssv")
    def Set(self, interface, name, value):
        self.is_open = bool(value)
        print("open" if self.is_open else "closed", flush=True)
        self.PropertiesChanged(NAME, {PROPERTY: dbus.Boolean(value, variant_level=1)}, [])

    @dbus.service.signal(PROPERTIES, signature="sa{sv}as")
    def PropertiesChanged(self, interface, changed, invalidated):
        pass


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
bus = dbus.SessionBus()
owned = dbus.service.BusName(NAME, bus, do_not_queue=True)
shell = Shell(bus, PATH)
print("serving", owned.get_name(), flush=True)
GLib.MainLoop().run()
