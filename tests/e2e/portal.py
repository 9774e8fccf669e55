# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""The part of a desktop portal that the program uses.

portal.py serve [NUMBER]      prints "serving", then every request
portal.py scheme NUMBER       announces another color scheme
portal.py answer CODE [URI]   answers the last request to the file chooser
"""
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
SETTINGS = "org.freedesktop.portal.Settings"
CHOOSER = "org.freedesktop.portal.FileChooser"
REQUEST = "org.freedesktop.portal.Request"


class Portal(dbus.service.Object):
    scheme = 0
    request = None

    @dbus.service.method(SETTINGS, in_signature="as", out_signature="a{sa{sv}}")
    def ReadAll(self, groups):
        print("read", flush=True)
        return {"org.freedesktop.appearance": {"color-scheme": dbus.UInt32(self.scheme)}}

    @dbus.service.signal(SETTINGS, signature="ssv")
    def SettingChanged(self, group, key, value):
        pass

    @dbus.service.method(
        CHOOSER, in_signature="ssa{sv}", out_signature="o", sender_keyword="sender"
    )
    def OpenFile(self, parent, title, options, sender=None):
        kinds = [str(p) for _, rules in options["filters"] for kind, p in rules if kind == 1]
        print(
            f"open parent='{parent}' multiple={bool(options['multiple'])}"
            f" png={'image/png' in kinds} text={'text/plain' in kinds}",
            flush=True,
        )
        path = f"{PATH}/request/{sender[1:].replace('.', '_')}/{options['handle_token']}"
        self.request = Request(self.connection, path)
        return dbus.ObjectPath(path)

    @dbus.service.method("test.Portal", in_signature="u")
    def SetScheme(self, number):
        self.scheme = number
        self.SettingChanged(
            "org.freedesktop.appearance", "color-scheme", dbus.UInt32(number, variant_level=1)
        )

    @dbus.service.method("test.Portal", in_signature="uas")
    def Answer(self, code, uris):
        results = {"uris": dbus.Array(uris, signature="s")} if uris else {}
        self.request.Response(code, dbus.Dictionary(results, signature="sv"))


class Request(dbus.service.Object):
    @dbus.service.signal(REQUEST, signature="ua{sv}")
    def Response(self, code, results):
        pass

    @dbus.service.method(REQUEST)
    def Close(self):
        print("closed", flush=True)


def main():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    if sys.argv[1] == "serve":
        name = dbus.service.BusName(NAME, bus, do_not_queue=True)
        portal = Portal(bus, PATH)
        portal.scheme = int(sys.argv[2]) if len(sys.argv) > 2 else 0
        print("serving", name.get_name(), flush=True)
        GLib.MainLoop().run()
        return
    portal = dbus.Interface(bus.get_object(NAME, PATH), "test.Portal")
    if sys.argv[1] == "scheme":
        portal.SetScheme(dbus.UInt32(int(sys.argv[2])))
    elif sys.argv[1] == "answer":
        portal.Answer(dbus.UInt32(int(sys.argv[2])), dbus.Array(sys.argv[3:], signature="s"))


main()
