# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Compares the whole settings file with its expected content.

stored.py FILE EXPECTED [KEY VALUE]...

EXPECTED is a file with the expected content. Each VALUE is the JSON that a key
should have by now; A..B means a number from A to B. If everything is as
expected, stores the new values in EXPECTED and ends with status 0.
"""
import json
import sys


def main():
    path, expected_path, *pairs = sys.argv[1:]
    with open(path, encoding="utf-8") as file:
        found = json.load(file)
    with open(expected_path, encoding="utf-8") as file:
        expected = json.load(file)
    for key, value in zip(pairs[::2], pairs[1::2]):
        lowest, dots, highest = value.partition("..")
        if dots and not value.startswith('"'):
            if not float(lowest) <= found.get(key, float("nan")) <= float(highest):
                return f"{key} is {found.get(key)}"
            expected[key] = found[key]
        else:
            expected[key] = json.loads(value)
    if found != expected:
        differing = {k for k in found | expected if found.get(k) != expected.get(k)}
        return "; ".join(f"{k} is {found.get(k)}, not {expected.get(k)}" for k in differing)
    with open(expected_path, "w", encoding="utf-8") as file:
        json.dump(expected, file)
    return 0


sys.exit(main())
