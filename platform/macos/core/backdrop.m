// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#import <AppKit/AppKit.h>

#include "platform/macos/core/maccore.h"

// A backdrop is a view with the material and, over a blur, a box of the tint's colour; the
// glass is tinted by itself.

// Glass is in the headers of macOS 26. Built with older ones, the program has the blur alone.
#if __MAC_OS_X_VERSION_MAX_ALLOWED >= 260000
static NSView* makeGlass(NSRect frame, bool isClear) {
    if (@available(macOS 26.0, *)) {
        NSGlassEffectView* glass = [[NSGlassEffectView alloc] initWithFrame:frame];
        [glass setStyle:isClear ? NSGlassEffectViewStyleClear : NSGlassEffectViewStyleRegular];
        [glass setCornerRadius:0];
        return [glass autorelease];
    }
    return nil;
}

static void tintGlass(NSView* glass, NSColor* colour) {
    if (@available(macOS 26.0, *)) {
        [(NSGlassEffectView*)glass setTintColor:colour];
    }
}
#else
static NSView* makeGlass(NSRect frame, bool isClear) {
    return nil;
}

static void tintGlass(NSView* glass, NSColor* colour) {}
#endif

static NSView* makeBlur(NSRect frame) {
    NSVisualEffectView* blur = [[NSVisualEffectView alloc] initWithFrame:frame];
    [blur setMaterial:NSVisualEffectMaterialUnderWindowBackground];
    [blur setBlendingMode:NSVisualEffectBlendingModeBehindWindow];
    [blur setState:NSVisualEffectStateActive];
    return [blur autorelease];
}

static NSView* makeTint(NSRect frame) {
    NSBox* tint = [[NSBox alloc] initWithFrame:frame];
    [tint setBoxType:NSBoxCustom];
    [tint setBorderWidth:0];
    [tint setTitlePosition:NSNoTitle];
    [tint setFillColor:[NSColor clearColor]];
    return [tint autorelease];
}

static void fillWith(NSView* outer, NSView* inner) {
    [inner setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
    [outer addSubview:inner];
}

void* macAddBackdrop(void* view, MacBackdropKind kind) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSView* content = (NSView*)view;
    const NSRect frame = [content frame];
    NSView* backdrop = [[NSView alloc] initWithFrame:frame];
    const NSRect inside = [backdrop bounds];
    NSView* glass =
        kind != MacBackdropBlur ? makeGlass(inside, kind == MacBackdropClearGlass) : nil;
    if (glass != nil) {
        fillWith(backdrop, glass);
    } else {
        fillWith(backdrop, makeBlur(inside));
        fillWith(backdrop, makeTint(inside));
    }
    [backdrop setAutoresizingMask:NSViewWidthSizable | NSViewHeightSizable];
    [[content superview] addSubview:backdrop positioned:NSWindowBelow relativeTo:content];
    [pool drain];
    return backdrop;
}

void macTintBackdrop(void* backdrop, double red, double green, double blue, double alpha) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSColor* colour = [NSColor colorWithSRGBRed:red green:green blue:blue alpha:alpha];
    NSView* last = (NSView*)[[(NSView*)backdrop subviews] lastObject];
    if ([last isKindOfClass:[NSBox class]]) {
        [(NSBox*)last setFillColor:colour];
    } else {
        tintGlass(last, colour);
    }
    [pool drain];
}

void macSetBackdropOpacity(void* backdrop, double opacity) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    [(NSView*)backdrop setAlphaValue:opacity];
    [pool drain];
}

void macRemoveBackdrop(void* backdrop) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    [(NSView*)backdrop removeFromSuperview];
    [(NSView*)backdrop release];
    [pool drain];
}
