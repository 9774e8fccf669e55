// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#import "platform/macos/core/displays.h"

#include "platform/macos/core/maccore.h"

static NSWindow* windowOf(void* view) {
    return [(NSView*)view window];
}

static void makeBare(NSWindow* window) {
    // Shown on whichever space is current, in no cycle of windows, and beside the windows
    // of other programs that fill the screen.
    [window setCollectionBehavior:NSWindowCollectionBehaviorCanJoinAllSpaces |
                                  NSWindowCollectionBehaviorIgnoresCycle |
                                  NSWindowCollectionBehaviorFullScreenAuxiliary];
    [window setOpaque:NO];
    [window setBackgroundColor:[NSColor clearColor]];
    [window setHasShadow:NO];
    // The program fades the window itself.
    [window setAnimationBehavior:NSWindowAnimationBehaviorNone];
}

bool macCoverDisplay(void* view, unsigned display, MacLevel level) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSScreen* screen = findScreen(display);
    if (screen != nil) {
        NSWindow* window = windowOf(view);
        makeBare(window);
        [window setLevel:level];
        [window setFrame:[screen frame] display:YES];
    }
    [pool drain];
    return screen != nil;
}

void macSetLevel(void* view, MacLevel level) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    [windowOf(view) setLevel:level];
    [pool drain];
}

void macSetAlpha(void* view, double alpha) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    [windowOf(view) setAlphaValue:alpha];
    [pool drain];
}

void macOrderFront(void* view) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSWindow* window = windowOf(view);
    [window makeKeyAndOrderFront:nil];
    // Also while another program is active.
    [window orderFrontRegardless];
    // Its successor in macOS 14 only asks, and a program that the user has not just used
    // is refused.
    [[NSApplication sharedApplication] activateIgnoringOtherApps:YES];
    [pool drain];
}

void macOrderOut(void* view) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    [windowOf(view) orderOut:nil];
    [pool drain];
}
