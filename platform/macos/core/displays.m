// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#import "platform/macos/core/displays.h"

#include "platform/macos/core/maccore.h"

static NSScreen* screenAt(NSUInteger index) {
    return (NSScreen*)[[NSScreen screens] objectAtIndex:index];
}

static unsigned numberOf(NSScreen* screen) {
    NSNumber* number = (NSNumber*)[[screen deviceDescription] objectForKey:@"NSScreenNumber"];
    return [number unsignedIntValue];
}

// The toolkit rounds corners to whole points.
static bool isNear(double a, double b) {
    return a - b < 1 && b - a < 1;
}

NSScreen* findScreen(unsigned display) {
    for (NSUInteger i = 0; i < [[NSScreen screens] count]; ++i) {
        if (numberOf(screenAt(i)) == display) {
            return screenAt(i);
        }
    }
    return nil;
}

unsigned macDisplayAt(double x, double y) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    unsigned display = 0;
    for (NSUInteger i = 0; i < [[NSScreen screens] count]; ++i) {
        // The system counts upwards from the bottom left of the first screen.
        const NSRect frame = [screenAt(i) frame];
        const double top = [screenAt(0) frame].size.height - frame.origin.y - frame.size.height;
        if (isNear(frame.origin.x, x) && isNear(top, y)) {
            display = numberOf(screenAt(i));
        }
    }
    [pool drain];
    return display;
}

unsigned macMainDisplay(void) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSScreen* screen = [NSScreen mainScreen];
    const unsigned display = screen != nil ? numberOf(screen) : 0;
    [pool drain];
    return display;
}
