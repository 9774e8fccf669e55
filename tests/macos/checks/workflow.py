#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Checks the workflows of the public host: their form with yamllint, their scripts with
shellcheck, and that the files and presets that they name are there.

    workflow.py     prints what is wrong; status 1 if anything is
"""

import json
import re
import subprocess
import sys

import compiler

RULES = "{extends: default, rules: {line-length: {max: 100}}}"


def check_steps(name, job):
    presets = {p["name"] for p in json.loads((compiler.ROOT / "CMakePresets.json").read_text())["configurePresets"]}
    for step in job["steps"]:
        title = f"{name}: {step.get('name', step.get('uses'))}"
        if "uses" in step and not re.fullmatch(r"[\w-]+/[\w-]+@v\d+", step["uses"]):
            yield f"{title}: is at no version"
        # The host replaces its own expressions before the shell sees them.
        script = re.sub(r"\$\{\{.*?\}\}", "x", step.get("run", "true"))
        said = subprocess.run(["shellcheck", "--shell=bash", "-"], input=script, capture_output=True, text=True)
        if said.returncode != 0:
            yield f"{title}: {said.stdout.strip()}"
        for preset in re.findall(r"--preset[ =](\w+)", script):
            if preset not in presets:
                yield f"{title}: there is no preset {preset}"
        for path in re.findall(r"(?<![\w/.])(?:packaging|tests|tools)/[\w./-]+", script):
            if not (compiler.ROOT / path).exists():
                yield f"{title}: there is no {path}"


def main():
    compiler.tool("yamllint")
    compiler.tool("shellcheck")
    try:
        import yaml
    except ImportError:
        print("skipped: there is no yaml for Python here")
        return compiler.SKIPPED
    found, files = [], sorted((compiler.ROOT / ".github/workflows").glob("*.yml"))
    for file in files:
        said = subprocess.run(["yamllint", "-f", "parsable", "-d", RULES, str(file)], capture_output=True, text=True)
        found += said.stdout.splitlines()
        for name, job in yaml.safe_load(file.read_text())["jobs"].items():
            found += check_steps(f"{file.name}: {name}", job)
    print("\n".join(found + [f"{len(files)} workflows: {len(found)} faults"]))
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main())
