// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#import <AppKit/AppKit.h>

#include "platform/macos/core/maccore.h"

void macBecomeAccessory(void) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    [[NSApplication sharedApplication] setActivationPolicy:NSApplicationActivationPolicyAccessory];
    [pool drain];
}

// A symbol may be wider than it is high.
static NSRect fitted(NSSize symbol, double size) {
    const double longest = symbol.width > symbol.height ? symbol.width : symbol.height;
    const double scale = longest > 0 ? size / longest : 0;
    const NSSize drawn = {symbol.width * scale, symbol.height * scale};
    const NSRect rect = {{(size - drawn.width) / 2, (size - drawn.height) / 2}, drawn};
    return rect;
}

bool macDrawStatusSymbol(unsigned char* pixels, unsigned size) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSImage* symbol = [NSImage imageWithSystemSymbolName:@"quote.opening"
                                accessibilityDescription:@"Morrowleaf"];
    NSBitmapImageRep* bitmap =
        [[[NSBitmapImageRep alloc] initWithBitmapDataPlanes:&pixels
                                                 pixelsWide:size
                                                 pixelsHigh:size
                                              bitsPerSample:8
                                            samplesPerPixel:4
                                                   hasAlpha:YES
                                                   isPlanar:NO
                                             colorSpaceName:NSDeviceRGBColorSpace
                                                bytesPerRow:(NSInteger)size * 4
                                               bitsPerPixel:32] autorelease];
    if (symbol != nil) {
        [NSGraphicsContext saveGraphicsState];
        [NSGraphicsContext
            setCurrentContext:[NSGraphicsContext graphicsContextWithBitmapImageRep:bitmap]];
        [symbol drawInRect:fitted([symbol size], size)];
        [NSGraphicsContext restoreGraphicsState];
    }
    [pool drain];
    return symbol != nil;
}
