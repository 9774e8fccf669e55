#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Morrowleaf developers
# SPDX-License-Identifier: MIT

"""Makes mistakes in copies of the macOS backend, wherever possible in the declarations as
well, so that the compiler has nothing to object to, and demands that check.py finds each.

    mistakes.py     prints a line per mistake; status 1 if one is missed
"""

import shutil
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import check
import compiler

FOUNDATION, APPKIT = (f"{compiler.SDK}/{n}/{n}.h" for n in ("Foundation", "AppKit"))
SERVICE, GRAPHICS = (f"{compiler.SDK}/{n}/{n}.h" for n in ("ServiceManagement", "CoreGraphics"))
BACKDROP, DISPLAYS, INPUT, LOGIN, PROGRAM, SESSION, WINDOW = (
    f"{compiler.CORE}/{n}.m" for n in ("backdrop", "displays", "input", "login", "program", "session", "window"))

# What is wrong; in which file what becomes what; what the complaint contains. The first
# source that is named is checked, or else window.m.
MISTAKES = [
    # Selectors
    ("a method that is none", [
        (APPKIT, "orderFrontRegardless", "orderFrontAlways"), (WINDOW, "orderFrontRegardless", "orderFrontAlways")],
        "NSWindow has no -orderFrontAlways"),
    ("a wrong letter in a method", [
        (APPKIT, "setCollectionBehavior:", "setCollectionBehaviour:"), (WINDOW, "setCollectionBehavior:", "setCollectionBehaviour:")],
        "NSWindow has no -setCollectionBehaviour:"),
    ("a colon elsewhere", [
        (APPKIT, "setFrame:(NSRect)frameRect display:", "set:(NSRect)frameRect frameDisplay:"),
        (WINDOW, "setFrame:[screen frame] display:", "set:[screen frame] frameDisplay:")], "has its colons elsewhere"),
    ("a colon elsewhere in a long selector", [
        (APPKIT, "bitsPerSample:(NSInteger)bps", "bits:(NSInteger)bps"), (APPKIT, "samplesPerPixel:(NSInteger)spp", "perSampleSamplesPerPixel:(NSInteger)spp"),
        (PROGRAM, "bitsPerSample:", "bits:"), (PROGRAM, "samplesPerPixel:", "perSampleSamplesPerPixel:")], "NSBitmapImageRep"),
    ("an argument too few", [
        (FOUNDATION, "name:(NSString*)name object:(id)object;", "name:(NSString*)name;"),
        (SESSION, "name:name\n                                                             object:nil]", "name:name]")],
        "has no -addObserver:selector:name:"),
    ("a keyword too long", [
        (APPKIT, "relativeTo:(NSView*)", "relativeToView:(NSView*)"), (BACKDROP, "relativeTo:content", "relativeToView:content")],
        "has no -addSubview:positioned:relativeToView:"),
    ("an argument without a keyword", [
        (APPKIT, "makeKeyAndOrderFront:(id)sender", "makeKeyAndOrderFront"), (WINDOW, "makeKeyAndOrderFront:nil", "makeKeyAndOrderFront")],
        "makeKeyAndOrderFront] does not take 0 arguments"),
    ("arguments in another order", [
        (APPKIT, "WithSRGBRed:(CGFloat)red\n                       green:(CGFloat)green\n                        blue:(CGFloat)blue",
         "WithSRGBRed:(CGFloat)red\n                       blue:(CGFloat)blue\n                        green:(CGFloat)green"),
        (BACKDROP, "green:green blue:blue", "blue:blue green:green")], "NSColor has no +colorWithSRGBRed:blue:green:alpha:"),
    ("a method of another class", [
        (APPKIT, "@interface NSScreen : NSObject\n", "@interface NSScreen : NSObject\n- (void)setLevel:(NSInteger)level;\n"),
        (WINDOW, "[window setLevel:level];", "[screen setLevel:level];")], "NSScreen has no -setLevel:"),
    ("a method of a class below", [
        (APPKIT, "- (NSRect)bounds;", "- (NSRect)bounds;\n- (void)setMaterial:(long)material;"),
        (BACKDROP, "[backdrop setAutoresizingMask", "[backdrop setMaterial:21];\n    [backdrop setAutoresizingMask")],
        "NSView has no -setMaterial:"),
    ("a class's method to an instance", [
        (APPKIT, "+ (NSArray*)screens;", "- (NSArray*)screens;"), (DISPLAYS, "[NSScreen screens]", "[[NSScreen mainScreen] screens]")],
        "NSScreen has no -screens"),
    ("an instance's method to a class", [
        (APPKIT, "- (NSNotificationCenter*)notificationCenter", "+ (NSNotificationCenter*)notificationCenter"),
        (SESSION, "[[NSWorkspace sharedWorkspace] notificationCenter]", "[NSWorkspace notificationCenter]")],
        "NSWorkspace has no +notificationCenter"),
    ("a getter's name for a setter", [
        (APPKIT, "- (void)setHasShadow:", "- (void)hasShadow:"), (WINDOW, "setHasShadow:", "hasShadow:")],
        "hasShadow:] does not take 1 arguments"),
    ("a name of the past", [
        (APPKIT, "imageWithSystemSymbolName:", "imageNamed:"), (PROGRAM, "imageWithSystemSymbolName:", "imageNamed:")],
        "NSImage has no +imageNamed:accessibilityDescription:"),
    ("a name from another language", [
        (SERVICE, "registerAndReturnError:", "register:"), (LOGIN, "registerAndReturnError:", "register:")],
        "SMAppService has no -register:"),
    # Classes
    ("a class that is none", [
        (APPKIT, "NSGlassEffectView : NSView", "NSGlassView : NSView"), (BACKDROP, "NSGlassEffectView*", "NSGlassView*"),
        (BACKDROP, "[NSGlassEffectView ", "[NSGlassView ")], "there is no class NSGlassView"),
    ("a class with a wrong letter", [
        (SERVICE, "SMAppService*", "SMApplicationService*"), (SERVICE, "@interface SMAppService ", "@interface SMApplicationService "),
        (LOGIN, "[SMAppService ", "[SMApplicationService ")], "there is no class SMApplicationService"),
    ("a wrong ancestor", [
        (APPKIT, "@interface NSScreen : NSObject", "@interface NSResponder : NSObject\n@end\n\n@interface NSScreen : NSResponder"),
        (APPKIT, "} NSAutoresizingMaskOptions;\n\n@interface NSResponder : NSObject\n@end", "} NSAutoresizingMaskOptions;")],
        "NSScreen is no NSResponder"),
    ("an ancestor that gives too much", [
        (APPKIT, "@interface NSBox : NSView", "@interface NSColorBox : NSView\n@end\n@interface NSBox : NSColorBox")],
        "there is no class NSColorBox"),
    ("a protocol as a class", [
        (FOUNDATION, "@interface NSArray : NSObject", "@interface NSCopying : NSObject\n@end\n@interface NSArray : NSObject")],
        "NSCopying is no NSObject"),
    ("a class whose age nobody knows", [
        (APPKIT, "@interface NSWorkspace : NSObject", "@interface NSCursor : NSObject\n@end\n@interface NSWorkspace : NSObject")],
        "nobody has noted since when there is NSCursor"),
    ("a method whose age nobody knows", [
        (APPKIT, "- (NSRect)bounds;", "- (NSRect)bounds;\n- (void)layout;")],
        "nobody has noted since when there is -[NSView layout]"),
    # Values
    ("a wrong value", [(APPKIT, "UnderWindowBackground = 21", "UnderWindowBackground = 22")], "is 21, not 22"),
    ("a wrong bit", [(APPKIT, "FullScreenAuxiliary = 256", "FullScreenAuxiliary = 128")], "is 256, not 128"),
    ("a wrong sign", [(APPKIT, "NSWindowBelow = -1", "NSWindowBelow = 1")], "is -1, not 1"),
    ("the number of an event for its bit", [(APPKIT, "NSEventMaskKeyDown = 1024", "NSEventMaskKeyDown = 10")], "is 1024, not 10"),
    ("two values exchanged", [
        (SERVICE, "RequiresApproval = 2", "RequiresApproval = 3"), (SERVICE, "NotFound = 3", "NotFound = 2"),
        (LOGIN, "macos/core", "macos/core")], "SMAppServiceStatusRequiresApproval is 2, not 3"),
    ("an enumerator that is none", [
        (SERVICE, "SMAppServiceStatusNotFound", "SMAppServiceStatusMissing"), (LOGIN, "SMAppServiceStatusNotFound", "SMAppServiceStatusMissing")],
        "has no SMAppServiceStatusMissing"),
    ("an enumerator of another enumeration", [
        (APPKIT, "    NSVisualEffectStateActive = 1,", "    NSVisualEffectBlendingModeAround = 1,"),
        (BACKDROP, "NSVisualEffectStateActive", "NSVisualEffectBlendingModeAround")], "NSVisualEffectState has no"),
    ("an enumeration that is none", [
        (APPKIT, "enum NSBoxType", "enum NSBoxKind"), (APPKIT, "} NSBoxType", "} NSBoxKind"), (APPKIT, "(NSBoxType)", "(NSBoxKind)")],
        "there is no enumeration NSBoxKind"),
    ("an enumerator in none", [
        (APPKIT, "extern NSString* const NSDeviceRGBColorSpace;", "extern NSString* const NSDeviceRGBColorSpace;\nenum { NSNormalWindowLevel = 1 };")],
        "there is no enumeration NSNormalWindowLevel"),
    # Names
    ("a misspelt notification", [
        (APPKIT, "NSWorkspaceDidWakeNotification", "NSWorkspaceDidAwakeNotification"),
        (SESSION, "NSWorkspaceDidWakeNotification", "NSWorkspaceDidAwakeNotification")],
        "there is no constant NSWorkspaceDidAwakeNotification"),
    ("a misspelt notification of another program", [(SESSION, "com.apple.screenIsUnlocked", "com.apple.screenUnlocked")],
     "not among the texts that are known"),
    ("a misspelt key of a dictionary", [(DISPLAYS, "NSScreenNumber", "NSDisplayNumber")], "not among the texts that are known"),
    ("a misspelt symbol", [(PROGRAM, "quote.opening", "quote.open")], "not among the texts that are known"),
    ("a constant of another type", [
        (APPKIT, "extern NSString* const NSDeviceRGBColorSpace;", "extern NSColor* const NSDeviceRGBColorSpace;"),
        (PROGRAM, "colorSpaceName:NSDevice", "colorSpaceName:(NSString*)NSDevice")], "NSDeviceRGBColorSpace is a string"),
    ("a function that is none", [
        (GRAPHICS, "CGSessionCopyCurrentDictionary", "CGSessionGetDictionary"), (SESSION, "CGSessionCopyCurrentDictionary", "CGSessionGetDictionary")],
        "there is no function CGSessionGetDictionary"),
    ("a function with an argument too many", [
        (GRAPHICS, "CurrentDictionary(void)", "CurrentDictionary(int session)"), (SESSION, "CurrentDictionary()", "CurrentDictionary(0)")],
        "takes 0 arguments, not 1"),
    ("a function with another result", [
        (GRAPHICS, "CFDictionaryRef CGSession", "long CGSession"), (SESSION, "CGSession", "CGSession")], "gives interop.Object, not long"),
    # Types
    ("an argument of another type", [
        (APPKIT, "setOpaque:(BOOL)opaque", "setOpaque:(NSColor*)opaque"), (WINDOW, "setOpaque:NO", "setOpaque:nil")],
        "is boolean, not NSColor"),
    ("an argument of another class", [
        (APPKIT, "setTintColor:(NSColor*)", "setTintColor:(NSString*)"), (BACKDROP, "setTintColor:colour", "setTintColor:(NSString*)colour")],
        "not NSString *"),
    ("a rectangle by its address", [
        (APPKIT, "drawInRect:(NSRect)rect", "drawInRect:(NSRect*)rect"), (PROGRAM, "drawInRect:fitted([symbol size], size)", "drawInRect:NULL")],
        "is CGRect, not NSRect *"),
    ("a size for a rectangle", [
        (APPKIT, "- (NSRect)frame;\n- (NSRect)bounds;", "- (NSRect)frame;\n- (NSSize)bounds;"),
        (BACKDROP, "const NSRect inside = [backdrop bounds];", "const NSRect inside = {{0, 0}, [backdrop bounds]};")],
        "gives CGRect, not NSSize"),
    ("an error by its value", [
        (SERVICE, "- (BOOL)registerAndReturnError:(NSError**)", "- (BOOL)registerAndReturnError:(BOOL)"),
        (LOGIN, "registerAndReturnError:&error", "registerAndReturnError:NO")],
        "is interop.PointerConvertible, not BOOL"),
    ("a result of another type", [
        (FOUNDATION, "- (NSString*)localizedDescription", "- (NSError*)localizedDescription"),
        (LOGIN, "[[error localizedDescription] UTF8String]", "[(NSString*)[error localizedDescription] UTF8String]")],
        "gives string, not NSError"),
    ("a result of another class", [
        (APPKIT, "- (NSWindow*)window;", "- (NSScreen*)window;"), (WINDOW, "return [(NSView*)view window];", "return (NSWindow*)[(NSView*)view window];")],
        "gives NSWindow, not NSScreen"),
    ("a result where there is none", [(APPKIT, "- (void)orderFrontRegardless", "- (BOOL)orderFrontRegardless")], "gives void, not BOOL"),
    ("a handler with an argument too few", [
        (APPKIT, "handler:(NSEvent* (^)(NSEvent* event))", "handler:(NSEvent* (^)(void))"),
        (INPUT, "^NSEvent*(NSEvent* event) {", "^NSEvent*(void) {\n NSEvent* event = nil;")], "argument 2 of +[NSEvent"),
    ("a handler with another result", [
        (APPKIT, "handler:(NSEvent* (^)", "handler:(BOOL (^)"), (INPUT, "^NSEvent*(NSEvent*", "^BOOL(NSEvent*"), (INPUT, "? nil : event", "? NO : YES")],
        "argument 2 of +[NSEvent"),
    # Habits
    ("the centre of another object", [
        (SESSION, "[[[NSWorkspace sharedWorkspace] notificationCenter] addObserver:self", "[[NSNotificationCenter defaultCenter] addObserver:self")],
        "the program's own centre"),
    ("a notification at a centre that never sends it", [
        (SESSION, "name:name\n                    object:nil", "name:NSWorkspaceDidWakeNotification\n                    object:nil")],
        "is never sent by that centre"),
    ("a notification that is held back", [
        (FOUNDATION, "    NSNotificationSuspensionBehaviorDeliverImmediately = 4,", "    NSNotificationSuspensionBehaviorDeliverImmediately = 4,\n    NSNotificationSuspensionBehaviorCoalesce = 2,"),
        (SESSION, "NSNotificationSuspensionBehaviorDeliverImmediately]", "NSNotificationSuspensionBehaviorCoalesce]")], "too late"),
    ("a handler that nobody has", [(SESSION, "@selector(sessionCame:)", "@selector(sessionCameBack:)")], "sessionCameBack"),
    ("a message to anything", [(DISPLAYS, "numberOf(NSScreen* screen)", "numberOf(id screen)")], "is sent to an id"),
    ("newer than the oldest system and unguarded", [
        (BACKDROP, "    if (@available(macOS 26.0, *)) {\n        NSGlassEffectView* glass", "    {\n        NSGlassEffectView* glass")],
        "only available on macOS 26.0"),
    ("newer than the oldest headers and unguarded", [
        (BACKDROP, "MAX_ALLOWED >= 260000", "MAX_ALLOWED >= 130000")], "undeclared identifier 'NSGlassEffectView'"),
    ("newer than the oldest system and not declared so", [(APPKIT, "API_SINCE(26.0)\n", "")], "is newer than macOS 13.0 and is not declared so"),
    ("deprecated meanwhile", [(APPKIT, "- (void)orderFrontRegardless;", "- (void)orderFrontRegardless API_UNTIL(10.0, 15.0);")],
     "deprecated in macOS 15"),
]


def plant(folder, changes):
    """Copies the core and the declarations with the changes; the source to check."""
    for part in (compiler.CORE, compiler.SDK):
        shutil.copytree(compiler.ROOT / part, folder / part)
    for file, old, new in changes:
        path = folder / file
        text = path.read_text()
        if old not in text:
            raise SystemExit(f"{file} has no {old!r}")
        path.write_text(text.replace(old, new))
    return folder / next((file for file, _, _ in changes if file.endswith(".m")), WINDOW)


def attempt(system, mistake):
    name, changes, expected = mistake
    with tempfile.TemporaryDirectory() as temporary:
        folder = Path(temporary)
        source = plant(folder, changes)
        silent = subprocess.run(compiler.clang(folder) + ["-Werror", "-fsyntax-only", str(source)],
                                capture_output=True).returncode == 0
        found, _ = check.check_file(system, folder, source)
    caught = any(expected in line for line in found)
    text = f"{'caught' if caught else 'MISSED'}, compiler {'silent ' if silent else 'objects'}: {name}"
    if not caught:
        text += "".join(f"\n    {line}" for line in found[:5])
    return caught, silent, text


def main():
    system = check.System()
    with ThreadPoolExecutor(2) as workers:
        results = list(workers.map(lambda mistake: attempt(system, mistake), MISTAKES))
    for _, _, text in results:
        print(text)
    caught, silent = sum(r[0] for r in results), sum(r[1] for r in results)
    print(f"{caught} of {len(results)} mistakes caught, {silent} of them with the compiler silent")
    return 0 if caught == len(results) else 1


if __name__ == "__main__":
    compiler.tool("clang-14", "clang")
    sys.exit(main())
