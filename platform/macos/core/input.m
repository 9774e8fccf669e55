// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#import <AppKit/AppKit.h>

#include "platform/macos/core/maccore.h"

static const unsigned short escapeKey = 53;

void* macWatchInput(MacInput input, MacInputCallback callback, void* context) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    const NSEventMask mask =
        input == MacAnyInput
            ? NSEventMaskLeftMouseDown | NSEventMaskRightMouseDown | NSEventMaskKeyDown
            : NSEventMaskKeyDown;
    NSObject* monitor = (NSObject*)[NSEvent
        addLocalMonitorForEventsMatchingMask:mask
                                     handler:^NSEvent*(NSEvent* event) {
                                       // Only events of keys have a code.
                                       const bool fits =
                                           input == MacAnyInput || [event keyCode] == escapeKey;
                                       return fits && callback(context) ? nil : event;
                                     }];
    [monitor retain];
    [pool drain];
    return monitor;
}

void macEndInput(void* watch) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    [NSEvent removeMonitor:(NSObject*)watch];
    [(NSObject*)watch release];
    [pool drain];
}
