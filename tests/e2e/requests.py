#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Sends the running program requests to show the quotation, without waiting.

    requests.py NUMBER
"""
import sys

import dbus
from dbus.lowlevel import MethodCallMessage

bus = dbus.SessionBus()
owner = bus.get_name_owner("org.morrowleaf.Morrowleaf")
for _ in range(int(sys.argv[1])):
    message = MethodCallMessage(owner, "/org/morrowleaf/Morrowleaf", "org.freedesktop.Application",
                                "Activate")
    message.append({}, signature="a{sv}")
    message.set_no_reply(True)
    bus.send_message(message)
bus.flush()
bus.get_name_owner("org.morrowleaf.Morrowleaf")  # the bus has passed on all of them
