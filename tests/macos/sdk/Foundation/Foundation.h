// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

// What the macOS backend uses of the system, declared anew, so that it can be compiled
// without the system's own headers, which take the place of these on a Mac. Every line is
// checked against the system's metadata (tests/macos/checks/).

// The system that these are of; a Mac may have the headers of an older one.
#ifndef __MAC_OS_X_VERSION_MAX_ALLOWED
#define __MAC_OS_X_VERSION_MAX_ALLOWED 260000
#endif

#if defined(__arm64__)
typedef _Bool BOOL;
#else
typedef signed char BOOL;
#endif
#define YES ((BOOL)1)
#define NO ((BOOL)0)
#define nil ((id)0)
#ifndef NULL
#define NULL ((void*)0)
#endif
typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef double CGFloat;
typedef struct CGPoint {
    CGFloat x, y;
} CGPoint;
typedef struct CGSize {
    CGFloat width, height;
} CGSize;
typedef struct CGRect {
    CGPoint origin;
    CGSize size;
} CGRect;
typedef CGRect NSRect;
typedef CGSize NSSize;

#define API_SINCE(version) __attribute__((availability(macosx, introduced = version)))
#define API_UNTIL(since, version)                                                                  \
    __attribute__((availability(macosx, introduced = since, deprecated = version)))

@class NSString, NSNotification, NSArray, NSDictionary;

__attribute__((objc_root_class))
@interface NSObject {
@public
    Class isa;
}
+ (instancetype)alloc;
- (instancetype)init;
- (instancetype)retain;
- (oneway void)release;
- (instancetype)autorelease;
- (void)dealloc;
+ (Class)class;
- (BOOL)isKindOfClass:(Class)aClass;
@end

@interface NSAutoreleasePool : NSObject
- (void)drain;
@end

@interface NSString : NSObject
- (const char*)UTF8String;
@end

@interface NSArray : NSObject
- (NSUInteger)count;
- (id)objectAtIndex:(NSUInteger)index;
- (id)lastObject;
@end

@interface NSDictionary : NSObject
- (id)objectForKey:(id)key;
@end

@interface NSNumber : NSObject
- (unsigned int)unsignedIntValue;
- (BOOL)boolValue;
@end

@interface NSError : NSObject
- (NSString*)localizedDescription;
@end

@interface NSNotification : NSObject
@end

@interface NSNotificationCenter : NSObject
+ (NSNotificationCenter*)defaultCenter;
- (void)addObserver:(id)observer selector:(SEL)selector name:(NSString*)name object:(id)object;
- (void)removeObserver:(id)observer;
@end

typedef enum NSNotificationSuspensionBehavior : NSUInteger {
    NSNotificationSuspensionBehaviorDeliverImmediately = 4,
} NSNotificationSuspensionBehavior;

@interface NSDistributedNotificationCenter : NSNotificationCenter
+ (NSDistributedNotificationCenter*)defaultCenter;
- (void)addObserver:(id)observer
              selector:(SEL)selector
                  name:(NSString*)name
                object:(NSString*)object
    suspensionBehavior:(NSNotificationSuspensionBehavior)suspensionBehavior;
@end
