// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#import <Foundation/Foundation.h>

@class NSWindow;

@interface NSColor : NSObject
+ (NSColor*)clearColor;
+ (NSColor*)colorWithSRGBRed:(CGFloat)red
                       green:(CGFloat)green
                        blue:(CGFloat)blue
                       alpha:(CGFloat)alpha;
@end

@interface NSScreen : NSObject
+ (NSArray*)screens;
+ (NSScreen*)mainScreen;
- (NSRect)frame;
- (NSDictionary*)deviceDescription;
@end

typedef enum NSWindowOrderingMode : NSInteger {
    NSWindowBelow = -1,
} NSWindowOrderingMode;

typedef enum NSAutoresizingMaskOptions : NSUInteger {
    NSViewWidthSizable = 2,
    NSViewHeightSizable = 16,
} NSAutoresizingMaskOptions;

@interface NSResponder : NSObject
@end

@interface NSView : NSResponder
- (instancetype)initWithFrame:(NSRect)frame;
- (NSWindow*)window;
- (NSView*)superview;
- (NSArray*)subviews;
- (NSRect)frame;
- (NSRect)bounds;
- (void)setAlphaValue:(CGFloat)alphaValue;
- (void)setAutoresizingMask:(NSAutoresizingMaskOptions)autoresizingMask;
- (void)addSubview:(NSView*)view;
- (void)addSubview:(NSView*)view
        positioned:(NSWindowOrderingMode)place
        relativeTo:(NSView*)otherView;
- (void)removeFromSuperview;
@end

typedef enum NSBoxType : NSUInteger {
    NSBoxCustom = 4,
} NSBoxType;

typedef enum NSTitlePosition : NSUInteger {
    NSNoTitle = 0,
} NSTitlePosition;

@interface NSBox : NSView
- (void)setBoxType:(NSBoxType)boxType;
- (void)setTitlePosition:(NSTitlePosition)titlePosition;
- (void)setBorderWidth:(CGFloat)borderWidth;
- (void)setFillColor:(NSColor*)fillColor;
@end

typedef enum NSVisualEffectMaterial : NSInteger {
    NSVisualEffectMaterialUnderWindowBackground = 21,
} NSVisualEffectMaterial;

typedef enum NSVisualEffectBlendingMode : NSInteger {
    NSVisualEffectBlendingModeBehindWindow = 0,
} NSVisualEffectBlendingMode;

typedef enum NSVisualEffectState : NSInteger {
    NSVisualEffectStateActive = 1,
} NSVisualEffectState;

@interface NSVisualEffectView : NSView
- (void)setMaterial:(NSVisualEffectMaterial)material;
- (void)setBlendingMode:(NSVisualEffectBlendingMode)blendingMode;
- (void)setState:(NSVisualEffectState)state;
@end

#if __MAC_OS_X_VERSION_MAX_ALLOWED >= 260000
typedef enum NSGlassEffectViewStyle : NSInteger {
    NSGlassEffectViewStyleRegular = 0,
    NSGlassEffectViewStyleClear = 1,
} NSGlassEffectViewStyle;

API_SINCE(26.0)
@interface NSGlassEffectView : NSView
- (void)setStyle:(NSGlassEffectViewStyle)style;
- (void)setCornerRadius:(CGFloat)cornerRadius;
- (void)setTintColor:(NSColor*)tintColor;
@end
#endif

typedef enum NSWindowCollectionBehavior : NSUInteger {
    NSWindowCollectionBehaviorCanJoinAllSpaces = 1,
    NSWindowCollectionBehaviorIgnoresCycle = 64,
    NSWindowCollectionBehaviorFullScreenAuxiliary = 256,
} NSWindowCollectionBehavior;

typedef enum NSWindowAnimationBehavior : NSInteger {
    NSWindowAnimationBehaviorNone = 2,
} NSWindowAnimationBehavior;

@interface NSWindow : NSResponder
- (void)setLevel:(NSInteger)level;
- (void)setCollectionBehavior:(NSWindowCollectionBehavior)collectionBehavior;
- (void)setAnimationBehavior:(NSWindowAnimationBehavior)animationBehavior;
- (void)setOpaque:(BOOL)opaque;
- (void)setBackgroundColor:(NSColor*)backgroundColor;
- (void)setHasShadow:(BOOL)hasShadow;
- (void)setAlphaValue:(CGFloat)alphaValue;
- (void)setFrame:(NSRect)frameRect display:(BOOL)flag;
- (void)makeKeyAndOrderFront:(id)sender;
- (void)orderFrontRegardless;
- (void)orderOut:(id)sender;
@end

typedef enum NSApplicationActivationPolicy : NSInteger {
    NSApplicationActivationPolicyAccessory = 1,
} NSApplicationActivationPolicy;

@interface NSApplication : NSResponder
+ (NSApplication*)sharedApplication;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
- (void)activateIgnoringOtherApps:(BOOL)ignoreOtherApps API_UNTIL(10.0, 100000);
@end

typedef enum NSEventMask : unsigned long long {
    NSEventMaskLeftMouseDown = 2,
    NSEventMaskRightMouseDown = 8,
    NSEventMaskKeyDown = 1024,
} NSEventMask;

@interface NSEvent : NSObject
- (unsigned short)keyCode;
+ (id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask
                                   handler:(NSEvent* (^)(NSEvent* event))block;
+ (void)removeMonitor:(id)eventMonitor;
@end

extern NSString* const NSDeviceRGBColorSpace;

@interface NSImageRep : NSObject
@end

@interface NSBitmapImageRep : NSImageRep
- (instancetype)initWithBitmapDataPlanes:(unsigned char**)planes
                              pixelsWide:(NSInteger)width
                              pixelsHigh:(NSInteger)height
                           bitsPerSample:(NSInteger)bps
                         samplesPerPixel:(NSInteger)spp
                                hasAlpha:(BOOL)alpha
                                isPlanar:(BOOL)isPlanar
                          colorSpaceName:(NSString*)colorSpaceName
                             bytesPerRow:(NSInteger)rBytes
                            bitsPerPixel:(NSInteger)pBits;
@end

@interface NSGraphicsContext : NSObject
+ (NSGraphicsContext*)graphicsContextWithBitmapImageRep:(NSBitmapImageRep*)bitmapRep;
+ (void)setCurrentContext:(NSGraphicsContext*)currentContext;
+ (void)saveGraphicsState;
+ (void)restoreGraphicsState;
@end

@interface NSImage : NSObject
+ (instancetype)imageWithSystemSymbolName:(NSString*)name
                 accessibilityDescription:(NSString*)description;
- (NSSize)size;
- (void)drawInRect:(NSRect)rect;
@end

@interface NSWorkspace : NSObject
+ (NSWorkspace*)sharedWorkspace;
- (NSNotificationCenter*)notificationCenter;
@end

extern NSString* const NSWorkspaceDidWakeNotification;
extern NSString* const NSWorkspaceWillSleepNotification;
extern NSString* const NSWorkspaceSessionDidBecomeActiveNotification;
extern NSString* const NSWorkspaceSessionDidResignActiveNotification;
