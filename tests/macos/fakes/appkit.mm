// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#import "tests/macos/fakes/objects.h"

#include "tests/macos/fakes/macfakes.h"

#include <algorithm>
#include <map>

extern "C" const char* object_getClassName(id object);

namespace {

using macfakes::makeUncounted;
using macfakes::noteMistake;

std::vector<id> screens;
unsigned mainNumber = 0;

std::map<id, macfakes::Window> windows;
std::map<id, id> windowOfView;
std::map<id, id> superviews;
std::map<id, std::vector<id>> subviews;
std::map<id, macfakes::Layer> looks;

std::vector<std::string> calls;

} // namespace

@interface FakeColor : NSColor {
@public
    double red, green, blue, alpha;
}
@end

@implementation NSColor
+ (NSColor*)clearColor {
    return [self colorWithSRGBRed:0 green:0 blue:0 alpha:0];
}
+ (NSColor*)colorWithSRGBRed:(CGFloat)red
                       green:(CGFloat)green
                        blue:(CGFloat)blue
                       alpha:(CGFloat)alpha {
    FakeColor* colour = [[[FakeColor alloc] init] autorelease];
    colour->red = red;
    colour->green = green;
    colour->blue = blue;
    colour->alpha = alpha;
    return colour;
}
@end
@implementation FakeColor
@end

static void paint(id view, NSColor* colour) {
    const FakeColor* fake = (FakeColor*)colour;
    macfakes::Layer& look = looks[view];
    look.red = fake->red;
    look.green = fake->green;
    look.blue = fake->blue;
    look.alpha = fake->alpha;
}

@interface FakeScreen : NSScreen {
@public
    NSRect rect;
    FakeDictionary* description;
    unsigned number;
}
@end

@implementation NSScreen
+ (NSArray*)screens {
    return [FakeArray arrayOf:&::screens];
}
+ (NSScreen*)mainScreen {
    for (id screen : ::screens) {
        if (((FakeScreen*)screen)->number == mainNumber) {
            return (NSScreen*)screen;
        }
    }
    return nil;
}
- (NSRect)frame {
    return NSRect{};
}
- (NSDictionary*)deviceDescription {
    return nil;
}
@end
@implementation FakeScreen
- (NSRect)frame {
    return rect;
}
- (NSDictionary*)deviceDescription {
    return description;
}
@end

@implementation NSResponder
@end

@implementation NSView
- (instancetype)initWithFrame:(NSRect)frame {
    return self;
}
- (void)dealloc {
    if (superviews.count(self) != 0) {
        noteMistake("a view is freed while it is in another");
    }
    for (id view : subviews[self]) {
        superviews.erase(view);
        [(NSObject*)view release];
    }
    subviews.erase(self);
    looks.erase(self);
    [super dealloc];
}
- (NSWindow*)window {
    return (NSWindow*)windowOfView[self];
}
- (NSView*)superview {
    return (NSView*)superviews[self];
}
- (NSArray*)subviews {
    return [FakeArray arrayOf:&::subviews[self]];
}
- (NSRect)frame {
    return NSRect{{0, 0}, {100, 100}};
}
- (NSRect)bounds {
    return NSRect{{0, 0}, {100, 100}};
}
- (void)setAlphaValue:(CGFloat)value {
    looks[self].opacity = value;
}
- (void)setAutoresizingMask:(NSAutoresizingMaskOptions)mask {
    if (mask != (NSViewWidthSizable | NSViewHeightSizable)) {
        noteMistake("a view does not follow the size of its window");
    }
}
- (void)addSubview:(NSView*)view {
    ::subviews[self].push_back([view retain]);
    superviews[view] = self;
}
- (void)addSubview:(NSView*)view positioned:(NSWindowOrderingMode)place relativeTo:(NSView*)other {
    std::vector<id>& list = ::subviews[self];
    const auto at = std::find(list.begin(), list.end(), other);
    if (at == list.end()) {
        noteMistake("a view is placed beside one that is elsewhere");
        return;
    }
    list.insert(place == NSWindowBelow ? at : at + 1, [view retain]);
    superviews[view] = self;
}
- (void)removeFromSuperview {
    const auto parent = superviews.find(self);
    if (parent == superviews.end()) {
        return;
    }
    std::vector<id>& list = ::subviews[parent->second];
    list.erase(std::remove(list.begin(), list.end(), (id)self), list.end());
    superviews.erase(parent);
    [self release];
}
@end

@implementation NSBox
- (void)setBoxType:(NSBoxType)boxType {
}
- (void)setTitlePosition:(NSTitlePosition)titlePosition {
}
- (void)setBorderWidth:(CGFloat)borderWidth {
}
- (void)setFillColor:(NSColor*)fillColor {
    paint(self, fillColor);
}
@end

@implementation NSVisualEffectView
- (void)setMaterial:(NSVisualEffectMaterial)material {
}
- (void)setBlendingMode:(NSVisualEffectBlendingMode)mode {
}
- (void)setState:(NSVisualEffectState)state {
}
@end

@implementation NSGlassEffectView
- (void)setStyle:(NSGlassEffectViewStyle)style {
    looks[self].style = style;
}
- (void)setCornerRadius:(CGFloat)radius {
}
- (void)setTintColor:(NSColor*)colour {
    paint(self, colour);
}
@end

@implementation NSWindow
- (void)setLevel:(NSInteger)level {
    windows[self].level = level;
}
- (void)setCollectionBehavior:(NSWindowCollectionBehavior)behaviour {
    windows[self].behaviour = behaviour;
}
- (void)setAnimationBehavior:(NSWindowAnimationBehavior)behaviour {
    windows[self].isAnimated = behaviour != NSWindowAnimationBehaviorNone;
}
- (void)setOpaque:(BOOL)opaque {
    windows[self].isOpaque = opaque;
}
- (void)setBackgroundColor:(NSColor*)colour {
    windows[self].isClear = ((FakeColor*)colour)->alpha == 0;
}
- (void)setHasShadow:(BOOL)shadow {
    windows[self].hasShadow = shadow;
}
- (void)setAlphaValue:(CGFloat)alpha {
    windows[self].alpha = alpha;
}
- (void)setFrame:(NSRect)frame display:(BOOL)flag {
    macfakes::Window& window = windows[self];
    window.x = frame.origin.x;
    window.y = frame.origin.y;
    window.width = frame.size.width;
    window.height = frame.size.height;
}
- (void)makeKeyAndOrderFront:(id)sender {
    for (auto& [each, window] : windows) {
        window.isKey = each == self;
    }
}
- (void)orderFrontRegardless {
    windows[self].isOrderedIn = true;
}
- (void)orderOut:(id)sender {
    windows[self].isOrderedIn = false;
    windows[self].isKey = false;
}
@end

@implementation NSApplication
+ (NSApplication*)sharedApplication {
    return (NSApplication*)makeUncounted(self);
}
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy {
    calls.push_back(policy == NSApplicationActivationPolicyAccessory ? "become accessory"
                                                                     : "become another kind");
    return YES;
}
- (void)activateIgnoringOtherApps:(BOOL)ignore {
    calls.push_back(ignore ? "activate, ignoring others" : "activate");
}
@end

namespace macfakes {

void resetScreens() {
    screens.clear();
    mainNumber = 0;
}

void resetWindows() {
    windows.clear();
    windowOfView.clear();
    superviews.clear();
    subviews.clear();
    looks.clear();
    calls.clear();
}

void* makeView() {
    id view = makeUncounted([NSView class]);
    id frame = makeUncounted([NSView class]);
    windowOfView[view] = makeUncounted([NSWindow class]);
    superviews[view] = frame;
    subviews[frame] = {view};
    return view;
}

Window& windowOf(void* view) {
    return windows[windowOfView[(id)view]];
}

static void collect(id view, double opacity, std::vector<Layer>& layers) {
    Layer look = looks[view];
    look.kind = object_getClassName(view);
    look.opacity *= opacity;
    if (look.kind != "NSView") {
        layers.push_back(look);
    }
    for (id inner : subviews[view]) {
        collect(inner, look.opacity, layers);
    }
}

std::vector<Layer> layersBehind(void* view) {
    std::vector<Layer> layers;
    for (id each : subviews[superviews[(id)view]]) {
        if (each == (id)view) {
            break;
        }
        collect(each, 1, layers);
    }
    return layers;
}

void addDisplay(unsigned number, double x, double y, double width, double height) {
    FakeScreen* screen = (FakeScreen*)makeUncounted([FakeScreen class]);
    FakeNumber* value = (FakeNumber*)makeUncounted([FakeNumber class]);
    value->value = number;
    screen->number = number;
    screen->rect = NSRect{{x, y}, {width, height}};
    screen->description = (FakeDictionary*)makeUncounted([FakeDictionary class]);
    screen->description->key = @"NSScreenNumber";
    screen->description->value = value;
    screens.push_back(screen);
    mainNumber = mainNumber == 0 ? number : mainNumber;
}

void removeDisplay(unsigned number) {
    screens.erase(
        std::remove_if(screens.begin(), screens.end(),
                       [number](id each) { return ((FakeScreen*)each)->number == number; }),
        screens.end());
    if (mainNumber == number) {
        mainNumber = screens.empty() ? 0 : ((FakeScreen*)screens.front())->number;
    }
}

void setMainDisplay(unsigned number) {
    mainNumber = number;
}

std::vector<std::string>& programCalls() {
    return calls;
}

} // namespace macfakes
