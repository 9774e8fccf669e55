// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#import <AppKit/AppKit.h>
#import <CoreGraphics/CoreGraphics.h>

#include "platform/macos/core/maccore.h"

// The system sends these to everybody and has no constants for them.
static NSString* const screenIsUnlocked = @"com.apple.screenIsUnlocked";
static NSString* const screenIsLocked = @"com.apple.screenIsLocked";

@interface MacSessionWatch : NSObject {
    MacSessionCallback callback;
    void* context;
}
- (instancetype)initWithCallback:(MacSessionCallback)aCallback context:(void*)aContext;
- (void)end;
@end

@implementation MacSessionWatch

- (void)observeWorkspace:(NSString*)name with:(SEL)handler {
    [[[NSWorkspace sharedWorkspace] notificationCenter] addObserver:self
                                                           selector:handler
                                                               name:name
                                                             object:nil];
}

- (void)observeEverywhere:(NSString*)name with:(SEL)handler {
    // By default a program that is not in front gets them only when it is.
    [[NSDistributedNotificationCenter defaultCenter]
               addObserver:self
                  selector:handler
                      name:name
                    object:nil
        suspensionBehavior:NSNotificationSuspensionBehaviorDeliverImmediately];
}

- (instancetype)initWithCallback:(MacSessionCallback)aCallback context:(void*)aContext {
    self = [super init];
    if (self != nil) {
        callback = aCallback;
        context = aContext;
        [self observeWorkspace:NSWorkspaceDidWakeNotification with:@selector(machineWoke:)];
        [self observeWorkspace:NSWorkspaceWillSleepNotification with:@selector(machineSleeps:)];
        [self observeWorkspace:NSWorkspaceSessionDidBecomeActiveNotification
                          with:@selector(sessionCame:)];
        [self observeWorkspace:NSWorkspaceSessionDidResignActiveNotification
                          with:@selector(sessionWent:)];
        [self observeEverywhere:screenIsUnlocked with:@selector(screenUnlocked:)];
        [self observeEverywhere:screenIsLocked with:@selector(screenLocked:)];
    }
    return self;
}

- (void)end {
    [[[NSWorkspace sharedWorkspace] notificationCenter] removeObserver:self];
    [[NSDistributedNotificationCenter defaultCenter] removeObserver:self];
}

- (void)machineWoke:(NSNotification*)notification {
    callback(context, MacDidWake);
}

- (void)machineSleeps:(NSNotification*)notification {
    callback(context, MacWillSleep);
}

- (void)sessionCame:(NSNotification*)notification {
    callback(context, MacSessionDidBecomeActive);
}

- (void)sessionWent:(NSNotification*)notification {
    callback(context, MacSessionDidResignActive);
}

- (void)screenUnlocked:(NSNotification*)notification {
    callback(context, MacScreenIsUnlocked);
}

- (void)screenLocked:(NSNotification*)notification {
    callback(context, MacScreenIsLocked);
}

@end

void* macWatchSession(MacSessionCallback callback, void* context) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    MacSessionWatch* watch = [[MacSessionWatch alloc] initWithCallback:callback context:context];
    [pool drain];
    return watch;
}

void macEndSession(void* watch) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    [(MacSessionWatch*)watch end];
    [(MacSessionWatch*)watch release];
    [pool drain];
}

bool macIsScreenLocked(void) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSDictionary* session = (NSDictionary*)CGSessionCopyCurrentDictionary();
    // Not there at all while the screen is not locked.
    NSNumber* locked = (NSNumber*)[session objectForKey:@"CGSSessionScreenIsLocked"];
    const bool answer = [locked boolValue];
    [session release];
    [pool drain];
    return answer;
}
