#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""A panel's side of the status notifier protocol: a watcher with a host, and
ways to read and click the menu of the item that registered.
  notifierhost.py serve | props | menu | activate | click LABEL
"""
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

NAME = "org.kde.StatusNotifierWatcher"
PATH = "/StatusNotifierWatcher"
PROPERTIES = """<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
<property name="ProtocolVersion" type="i" access="read"/>
<property name="RegisteredStatusNotifierItems" type="as" access="read"/>"""


class Watcher(dbus.service.Object):
    items = []

    @dbus.service.method(NAME, in_signature="s", sender_keyword="sender")
    def RegisterStatusNotifierItem(self, service, sender=None):
        item = sender + service if service.startswith("/") else service
        self.items.append(item)
        self.StatusNotifierItemRegistered(item)
        print("item", item, flush=True)

    @dbus.service.method(NAME, in_signature="s")
    def RegisterStatusNotifierHost(self, service):
        pass

    @dbus.service.signal(NAME, signature="s")
    def StatusNotifierItemRegistered(self, item):
        pass

    @dbus.service.signal(NAME)
    def StatusNotifierHostRegistered(self):
        pass

    def values(self):
        return {
            "IsStatusNotifierHostRegistered": dbus.Boolean(True),
            "ProtocolVersion": dbus.Int32(0),
            "RegisteredStatusNotifierItems": dbus.Array(self.items, signature="s"),
        }

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
    def Get(self, _interface, name):
        return self.values()[name]

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="s", out_signature="a{sv}")
    def GetAll(self, _interface):
        return self.values()

    @dbus.service.method(
        dbus.INTROSPECTABLE_IFACE,
        out_signature="s",
        path_keyword="object_path",
        connection_keyword="connection",
    )
    def Introspect(self, object_path, connection):
        text = super().Introspect(object_path, connection)
        head = f'<interface name="{NAME}">'
        return text.replace(head, head + PROPERTIES)


def serve():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    name = dbus.service.BusName(NAME, bus)
    watcher = Watcher(bus, PATH)
    print("serving", flush=True)
    GLib.MainLoop().run()
    del name, watcher


def tone(pixels):
    """The brightness of what is drawn, from 0 to 255: bytes are alpha, red, green, blue."""
    drawn = [int(pixels[i + 1]) for i in range(0, len(pixels), 4) if int(pixels[i]) == 255]
    return sum(drawn) // len(drawn) if drawn else -1


def item():
    bus = dbus.SessionBus()
    watcher = bus.get_object(NAME, PATH)
    items = dbus.Interface(watcher, dbus.PROPERTIES_IFACE).Get(
        NAME, "RegisteredStatusNotifierItems"
    )
    last = str(items[-1]).replace("@", "")  # GNOME's extension puts it between the two
    service, _, path = last.partition("/")
    return bus, service, "/" + path if path else "/StatusNotifierItem"


def main():
    what = sys.argv[1]
    if what == "serve":
        return serve()
    bus, service, path = item()
    target = bus.get_object(service, path)
    properties = dbus.Interface(target, dbus.PROPERTIES_IFACE).GetAll(
        "org.kde.StatusNotifierItem"
    )
    if what == "activate":
        return dbus.Interface(target, "org.kde.StatusNotifierItem").Activate(10, 10)
    if what == "props":
        for key, value in properties.items():
            if "Pixmap" in key:
                value = [(int(p[0]), int(p[1]), tone(p[2])) for p in value]
            print(key, "=", value)
        return None
    menu = dbus.Interface(bus.get_object(service, properties["Menu"]), "com.canonical.dbusmenu")
    menu.AboutToShow(0)
    layout = menu.GetLayout(0, -1, dbus.Array([], signature="s"))[1]
    for entry in layout[2]:
        label = str(entry[1].get("label", "")).replace("_", "")
        if what == "menu":
            keys = ["+".join(map(str, k)) for k in entry[1].get("shortcut", [])]
            print(str(entry[1].get("type", label)) or label, *keys, sep="|")
        elif what == "click" and label == sys.argv[2]:
            menu.Event(entry[0], "clicked", dbus.String("", variant_level=1), dbus.UInt32(0))
            return None
    return 0 if what == "menu" else 1


sys.exit(main())
