#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Mounts a file system that answers nothing: whoever looks at a file in it hangs.

    hungdisk.py FOLDER

Prints "ready", or "cannot" if that is not possible here, and unmounts when it is ended.
"""
import ctypes
import os
import signal
import struct
import sys

DETACH = 2
INIT_REPLY = struct.pack("<IIIIHHIIHH", 7, 31, 65536, 0, 12, 9, 65536, 1, 32, 0).ljust(64, b"\0")

libc = ctypes.CDLL(None, use_errno=True)
folder = sys.argv[1].encode()


def leave(*_):
    os.close(device)
    libc.umount2(folder, DETACH)
    sys.exit(0)


try:
    device = os.open("/dev/fuse", os.O_RDWR)
except OSError:
    sys.exit(print("cannot"))
options = f"fd={device},rootmode=40000,user_id=0,group_id=0,allow_other".encode()
if libc.mount(b"hung", folder, b"fuse", 0, options) != 0:
    sys.exit(print("cannot"))
signal.signal(signal.SIGTERM, leave)
number = struct.unpack_from("<Q", os.read(device, 200000), 8)[0]
os.write(device, struct.pack("<IiQ", 16 + len(INIT_REPLY), 0, number) + INIT_REPLY)
print("ready", flush=True)
while True:
    signal.pause()
