// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#import "tests/macos/fakes/objects.h"

#include "tests/macos/fakes/macfakes.h"

namespace {

using macfakes::noteMistake;

bool hasSymbols = true;
long savedStates = 0;
id drawnInto = nil;

} // namespace

@implementation NSImageRep
@end

@interface FakeBitmap : NSBitmapImageRep {
@public
    unsigned char* bytes;
    NSInteger width, height, bytesPerRow;
}
@end

@implementation NSBitmapImageRep
+ (instancetype)alloc {
    return self == [NSBitmapImageRep class] ? [FakeBitmap alloc] : [super alloc];
}
- (instancetype)initWithBitmapDataPlanes:(unsigned char**)planes
                              pixelsWide:(NSInteger)width
                              pixelsHigh:(NSInteger)height
                           bitsPerSample:(NSInteger)bps
                         samplesPerPixel:(NSInteger)spp
                                hasAlpha:(BOOL)alpha
                                isPlanar:(BOOL)isPlanar
                          colorSpaceName:(NSString*)colorSpaceName
                             bytesPerRow:(NSInteger)rBytes
                            bitsPerPixel:(NSInteger)pBits {
    if (bps != 8 || spp != 4 || !alpha || isPlanar || pBits != 32 || rBytes < width * 4) {
        noteMistake("a bitmap of a kind that cannot be drawn into");
    }
    FakeBitmap* bitmap = (FakeBitmap*)self;
    bitmap->bytes = planes[0];
    bitmap->width = width;
    bitmap->height = height;
    bitmap->bytesPerRow = rBytes;
    return self;
}
@end
@implementation FakeBitmap
@end

@interface FakeContext : NSGraphicsContext {
@public
    FakeBitmap* bitmap;
}
@end

@implementation NSGraphicsContext
+ (NSGraphicsContext*)graphicsContextWithBitmapImageRep:(NSBitmapImageRep*)bitmap {
    FakeContext* context = [[[FakeContext alloc] init] autorelease];
    context->bitmap = (FakeBitmap*)bitmap;
    return context;
}
+ (void)setCurrentContext:(NSGraphicsContext*)context {
    drawnInto = context;
}
+ (void)saveGraphicsState {
    ++savedStates;
}
+ (void)restoreGraphicsState {
    if (--savedStates < 0) {
        noteMistake("a state of graphics is restored that nobody has saved");
    }
    drawnInto = nil;
}
@end
@implementation FakeContext
@end

@implementation NSImage
+ (instancetype)imageWithSystemSymbolName:(NSString*)name
                 accessibilityDescription:(NSString*)description {
    return hasSymbols ? [[[self alloc] init] autorelease] : nil;
}
- (NSSize)size {
    return {16, 12};
}
- (void)drawInRect:(NSRect)rect {
    if (drawnInto == nil) {
        noteMistake("a picture is drawn into nothing");
        return;
    }
    const FakeBitmap* bitmap = ((FakeContext*)drawnInto)->bitmap;
    const auto left = static_cast<NSInteger>(rect.origin.x);
    const auto bottom = static_cast<NSInteger>(rect.origin.y);
    const auto right = static_cast<NSInteger>(rect.origin.x + rect.size.width);
    const auto top = static_cast<NSInteger>(rect.origin.y + rect.size.height);
    for (NSInteger y = bottom; y < top; ++y) {
        for (NSInteger x = left; x < right; ++x) {
            // From the top, as bitmaps are, and black.
            const NSInteger row = bitmap->height - 1 - y;
            bitmap->bytes[row * bitmap->bytesPerRow + x * 4 + 3] = 255;
        }
    }
}
@end

namespace macfakes {

void resetPictures() {
    hasSymbols = true;
    savedStates = 0;
    drawnInto = nil;
}

void setHasSymbols(bool has) {
    hasSymbols = has;
}

} // namespace macfakes
