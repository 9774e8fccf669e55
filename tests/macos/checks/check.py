#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Checks the Objective-C of the macOS backend, and the declarations in sdk/ with which it
is compiled, against what is known about the system (macos26.json, ages.tsv).

Every class, method, function, constant and enumerator must be the system's own, with its
colons, types and values; what is newer than the oldest system must say so and be guarded;
texts that mean something to the system must be among those of ages.tsv.

    check.py [ROOT]     prints one line per fault; status 1 if there is any
"""

import json
import re
import subprocess
import sys
from pathlib import Path

import compiler
from digest import join

HERE = Path(__file__).resolve().parent
PREFIX = re.compile(r"(?:NS|CG|CF|SM|CA|UT)[A-Z]")
# Methods of the language's runtime, which every class has.
RUNTIME = {"alloc", "init", "retain", "release", "autorelease", "dealloc", "drain", "class"}
NUMBERS = {"NSInteger", "NSUInteger", "CGFloat", "double", "float", "int", "unsigned int", "long",
           "unsigned long", "unsigned short", "short", "NSTimeInterval"}
RECTANGLES = {"NSRect": "CGRect", "NSSize": "CGSize", "NSPoint": "CGPoint"}


def version(text):
    return tuple(map(int, text.split(".")))


class System:
    def __init__(self):
        digest = json.loads((HERE / "macos26.json").read_text())
        self.classes, self.enums = digest["classes"], digest["enums"]
        self.constants, self.functions = digest["constants"], digest["functions"]
        self.selectors = set(digest["selectors"])
        self.ages = {}
        for line in (HERE / "ages.tsv").read_text().splitlines():
            if line and not line.startswith("#"):
                what, since, _source = line.split("\t")
                self.ages[what] = since

    def ancestors(self, name, seen=None):
        seen = set() if seen is None else seen
        if name not in seen:
            seen.add(name)
            for parent in self.classes.get(name, {"parents": []})["parents"]:
                self.ancestors(parent, seen)
        return seen

    def methods(self, name, kind, selector):
        wanted = kind + join(selector)
        return [member for each in self.ancestors(name) if each in self.classes
                for member in self.classes[each]["members"] if member[0] == wanted]

    def fits(self, ours, theirs):
        """Whether the C type can be what the typings call `theirs`."""
        ours = re.sub(r"\b(const|oneway|__strong|__autoreleasing|_Nullable|_Nonnull|struct|enum)\b", "", ours)
        ours = re.sub(r"\s+", " ", ours).strip()
        theirs = re.sub(r" \| null$", "", theirs)
        if "(^)" in ours or theirs.startswith("("):
            return self.fits_block(ours, theirs)
        is_pointer = ours.endswith("*")
        named = re.sub(r"[<\s*].*", "", ours)
        if theirs.startswith("interop.Enum<typeof "):
            return ours == theirs[len("interop.Enum<typeof "):-1]
        if theirs == "this" or theirs.startswith("InstanceType"):
            return ours == "instancetype"
        if theirs in ("void", "boolean"):
            return ours in {"void": {"void"}, "boolean": {"BOOL", "bool", "_Bool"}}[theirs]
        if theirs == "number":
            return ours in NUMBERS
        if theirs == "string":
            return ours.replace(" ", "") in ("NSString*", "SEL", "char*")
        if theirs in ("ObjectType", "KeyType"):
            return ours == "id"
        if theirs in ("interop.Pointer", "interop.PointerConvertible"):
            return is_pointer
        if theirs == "interop.Object":
            return ours in ("id", "Class") or ours.endswith("Ref") or is_pointer
        base = re.sub(r"<.*", "", theirs)
        if base.startswith("CG") and not is_pointer:
            return RECTANGLES.get(ours, ours) == base
        return is_pointer and ours.count("*") == 1 and named == base

    def fits_block(self, ours, theirs):
        mine = re.fullmatch(r"(.*?)\(\^\)\((.*)\)", ours)
        match = re.fullmatch(r"\((.*)\) => (.*)", theirs)
        if not mine or not match:
            return False
        parameters = [p.split(":", 1)[1].strip() for p in match.group(2 - 1).split(",") if ":" in p]
        types = [t for t in mine.group(2).split(",") if t.strip() not in ("", "void")]
        return (len(types) == len(parameters) and self.fits(mine.group(1), match.group(2))
                and all(map(self.fits, types, parameters)))


class Check:
    """One source with everything that it includes."""

    def __init__(self, system, name):
        self.system, self.name = system, name
        self.found, self.seen = [], set()
        self.own = {}            # class of the core to its ancestor and methods
        self.own_selectors = set()

    def fault(self, text):
        self.found.append(f"{self.name}: {text}")

    def newer(self, what, node, guarded=False):
        """Checks the age of what is declared here, and returns whether it says it."""
        says = guarded or any(i.get("kind") == "AvailabilityAttr" for i in node.get("inner", []))
        since = self.system.ages.get(what)
        if since is None:
            self.fault(f"nobody has noted since when there is {what}")
        elif version(since) > version(compiler.OLDEST) and not says:
            self.fault(f"{what} is newer than macOS {compiler.OLDEST} and is not declared so")
        return says

    # Declarations.
    def declare(self, node):
        kind, name = node.get("kind"), node.get("name", "")
        if kind == "ObjCInterfaceDecl" and name != "Protocol" and ("super" in node or "inner" in node):
            self.declare_class(node)
        elif kind == "EnumDecl":
            self.declare_enumerators(node)
        elif kind == "VarDecl" and node.get("storageClass") == "extern":
            self.seen.add(name)
            self.newer(name, node)
            theirs = self.system.constants.get(name)
            if theirs is None:
                self.fault(f"there is no constant {name}")
            elif not self.system.fits(node["type"]["qualType"], theirs["type"]):
                self.fault(f"{name} is a {theirs['type']}, not {node['type']['qualType']}")
        elif kind == "FunctionDecl" and PREFIX.match(name):
            self.declare_function(node)
        else:
            for each in node.get("inner", []):
                self.declare(each)

    def declare_class(self, node):
        name, parent = node["name"], node.get("super", {}).get("name")
        if not PREFIX.match(name):
            self.own.setdefault(name, {"parent": parent, "methods": set()})
            self.own[name]["parent"] = parent
        else:
            self.seen.add(name)
            guarded = self.newer(name, node)
            if not self.system.classes.get(name, {"isClass": False})["isClass"]:
                self.fault(f"there is no class {name}")
                return
            if parent and parent not in self.system.ancestors(name):
                self.fault(f"{name} is no {parent}")
        for each in node.get("inner", []):
            if each["kind"] != "ObjCMethodDecl":
                continue
            kind = "-" if each.get("instance") else "+"
            if name in self.own:
                self.own[name]["methods"].add(kind + each["name"])
                self.own_selectors.add(each["name"])
            else:
                self.newer(f"{kind}[{name} {each['name']}]", each, guarded)
                self.declare_method(name, kind, each)

    def declare_method(self, cls, kind, node):
        methods = self.find(cls, kind, node["name"])
        if not methods:
            return
        types = [i["type"]["qualType"] for i in node.get("inner", []) if i["kind"] == "ParmVarDecl"]
        what = f"{kind}[{cls} {node['name']}]"
        for at, ours in enumerate(types):
            if not any(self.system.fits(ours, m[1][at]) for m in methods):
                self.fault(f"argument {at + 1} of {what} is {methods[0][1][at]}, not {ours}")
        result = node["returnType"]["qualType"]
        if not any(self.system.fits(result, m[2]) for m in methods):
            self.fault(f"{what} gives {methods[0][2]}, not {result}")

    def find(self, cls, kind, selector):
        """The system's methods with this name; none after a fault, and none of the
        runtime's."""
        self.seen.add(f"{kind}[{cls} {selector}]")
        if selector in RUNTIME:
            return []
        if cls not in self.system.classes:
            self.fault(f"there is no class {cls}")
            return []
        methods = self.system.methods(cls, kind, selector)
        if not methods:
            self.fault(f"{cls} has no {kind}{selector}")
            return []
        count = selector.count(":")
        fitting = [m for m in methods if len(m[1] or []) == count]
        if not fitting:
            self.fault(f"{kind}[{cls} {selector}] does not take {count} arguments")
        elif count and selector not in self.system.selectors:
            self.fault(f"{kind}[{cls} {selector}] has its colons elsewhere")
            return []
        return fitting

    def declare_enumerators(self, node):
        enum = node.get("name", "")
        if enum and not PREFIX.match(enum):
            return
        for each in node.get("inner", []):
            if each["kind"] != "EnumConstantDecl" or not PREFIX.match(each["name"]):
                continue
            name, value = each["name"], written_value(each)
            self.seen.add(f"{name} = {value}")
            cases = self.system.enums.get(enum)
            if cases is None:
                self.fault(f"there is no enumeration {enum or name}")
                continue
            # The typings leave out what the names of an enumeration have in common.
            fitting = [c for c in cases if name.endswith(c) or name.startswith(enum + c)]
            if not fitting:
                self.fault(f"{enum} has no {name}")
            elif cases[max(fitting, key=len)] != value:
                self.fault(f"{name} is {cases[max(fitting, key=len)]}, not {value}")

    def declare_function(self, node):
        name = node["name"]
        self.seen.add(name)
        self.newer(name, node)
        theirs = self.system.functions.get(name)
        count = sum(i["kind"] == "ParmVarDecl" for i in node.get("inner", []))
        result = node["type"]["qualType"].partition("(")[0].strip()
        if theirs is None:
            self.fault(f"there is no function {name}")
        elif theirs["parameters"] != count:
            self.fault(f"{name} takes {theirs['parameters']} arguments, not {count}")
        elif not self.system.fits(result, theirs["result"]):
            self.fault(f"{name} gives {theirs['result']}, not {result}")

    # What the source does with it.
    def use(self, node):
        kind = node.get("kind")
        if kind == "ObjCImplementationDecl":
            entry = self.own.setdefault(node["name"], {"parent": None, "methods": set()})
            for each in node.get("inner", []):
                if each["kind"] == "ObjCMethodDecl":
                    entry["methods"].add(("-" if each.get("instance") else "+") + each["name"])
                    self.own_selectors.add(each["name"])
        elif kind == "ObjCMessageExpr":
            self.use_message(node)
        elif kind == "ObjCSelectorExpr" and node["selector"] not in self.own_selectors:
            self.fault(f"nobody here answers to @selector({node['selector']})")
        elif kind == "ObjCStringLiteral":
            text = next(i["value"] for i in node["inner"] if i["kind"] == "StringLiteral").strip('"')
            self.seen.add(f'@"{text}"')
            if f'@"{text}"' not in self.system.ages:
                self.fault(f'@"{text}" is not among the texts that are known')
        for each in node.get("inner", []):
            self.use(each)

    def use_message(self, node):
        selector, receiver = node["selector"], node.get("receiverKind")
        if receiver == "class":
            cls, kind = node["classType"]["qualType"].rstrip(" *"), "+"
        elif receiver == "instance":
            cls, kind = re.sub(r"[<\s*].*", "", node["inner"][0]["type"]["qualType"].replace("const ", "")), "-"
        else:
            return
        if cls == "id":
            self.fault(f"-{selector} is sent to an id, of which nothing can be checked")
            return
        while cls in self.own:
            if kind + selector in self.own[cls]["methods"]:
                return
            cls = self.own[cls]["parent"]
        self.find(cls, kind, selector)
        if selector.startswith("addObserver:selector:"):
            self.use_observation(node)

    def use_observation(self, node):
        center = re.sub(r"[<\s*].*", "", node["inner"][0]["type"]["qualType"])
        is_workspace = "notificationCenter" in selectors_in(node["inner"][0])
        for name in names_in(node["inner"][1:]):
            if name.startswith("NSWorkspace") and not is_workspace:
                self.fault(f"{name} is never sent by that centre")
        if center == "NSNotificationCenter" and not is_workspace:
            self.fault("the program's own centre has no notification that is needed here")
        if center == "NSDistributedNotificationCenter" and \
                "NSNotificationSuspensionBehaviorDeliverImmediately" not in names_in(node["inner"][1:]):
            self.fault("a program in the background would get this notification too late")


def written_value(node):
    if "value" in node:
        return int(node["value"])
    return next((v for v in map(written_value, node.get("inner", [])) if v is not None), None)


def selectors_in(node):
    return {node.get("selector")} | {s for each in node.get("inner", []) for s in selectors_in(each)}


def names_in(nodes):
    names = []
    for node in nodes:
        if node.get("kind") == "DeclRefExpr":
            names.append(node["referencedDecl"]["name"])
        names += names_in(node.get("inner", []))
    return names


def check_file(system, root, file):
    """The faults of a source, without repetitions, and what has been looked at."""
    def compile_for(system, headers):
        said = subprocess.run(compiler.clang(root, system=system, headers=headers) + ["-fsyntax-only", str(file)],
                              capture_output=True, text=True).stderr
        return [line for line in said.splitlines() if re.search(r": (warning|error):", line)]

    found = compile_for(compiler.OLDEST, compiler.NEWEST) + compile_for(compiler.OLDEST, compiler.OLDEST)
    found += [line for line in compile_for(compiler.NEWEST, compiler.NEWEST) if "deprecated" in line]
    dump = subprocess.run(compiler.clang(root) + ["-w", "-fsyntax-only", "-Xclang", "-ast-dump=json", str(file)],
                          capture_output=True, text=True).stdout
    check = Check(system, file.name)
    if dump:
        tree = json.loads(dump)
        check.declare(tree)
        for node in tree["inner"]:
            check.use(node)
    return list(dict.fromkeys(found + check.found)), check.seen


def main():
    root = Path(sys.argv[1]).resolve() if len(sys.argv) > 1 else compiler.ROOT
    system, found, seen = System(), [], set()
    for file in compiler.core_files(root):
        faults, looked_at = check_file(system, root, file)
        found += faults
        seen |= looked_at
    declared = {what for what in system.ages}
    for what in sorted(declared - seen):
        found.append(f"ages.tsv: nothing here is {what}")
    print("\n".join(found + [""]) if found else "", end="")
    classes = sum(bool(PREFIX.match(s)) and s in system.classes for s in seen)
    messages = sum(s[0] in "+-" for s in seen)
    values, texts = sum(" = " in s for s in seen), sum(s.startswith("@") for s in seen)
    others = len(seen) - classes - messages - values - texts
    print(f"{classes} classes, {messages} methods, {values} enumerators, {others} constants and functions, "
          f"{texts} texts in {len(compiler.core_files(root))} files: {len(found)} faults")
    return 1 if found or not seen else 0


if __name__ == "__main__":
    sys.exit(main())
