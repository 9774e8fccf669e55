// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#import <CoreGraphics/CoreGraphics.h>
#import <ServiceManagement/ServiceManagement.h>

#import "tests/macos/fakes/objects.h"

#include "tests/macos/fakes/macfakes.h"

#include <algorithm>
#include <cstring>
#include <map>

extern "C" {
const char* object_getClassName(id object);
typedef id (*HandlerOfOne)(id, SEL, id);
HandlerOfOne objc_msg_lookup(id receiver, SEL selector);
}

NSString* const NSWorkspaceDidWakeNotification = @"NSWorkspaceDidWakeNotification";
NSString* const NSWorkspaceWillSleepNotification = @"NSWorkspaceWillSleepNotification";
NSString* const NSWorkspaceSessionDidBecomeActiveNotification =
    @"NSWorkspaceSessionDidBecomeActiveNotification";
NSString* const NSWorkspaceSessionDidResignActiveNotification =
    @"NSWorkspaceSessionDidResignActiveNotification";
NSString* const NSDeviceRGBColorSpace = @"NSDeviceRGBColorSpace";

namespace {

enum class Center { Own, Everybody, Workspace };

struct Observer {
    id object;
    SEL selector;
    std::string name;
    bool isImmediate;
};

std::map<Center, id> centers;
std::map<id, std::vector<Observer>> observers;
bool isLocked = false;
bool hasSession = true;
long loginStatus = 0;
std::string loginRefusal;

id centerFor(Center which, Class cls) {
    id& center = centers[which];
    if (center == nil) {
        center = macfakes::makeUncounted(cls);
    }
    return center;
}

void post(id center, const std::string& name, bool isInFront) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSNotification* notification = [[[NSNotification alloc] init] autorelease];
    const std::vector<Observer> all = observers[center];
    for (const Observer& each : all) {
        if (macfakes::isFreed(each.object)) {
            macfakes::noteMistake("an observer is freed while it observes");
        } else if (each.name == name && (isInFront || each.isImmediate)) {
            objc_msg_lookup(each.object, each.selector)(each.object, each.selector, notification);
        }
    }
    [pool drain];
}

} // namespace

// What the compiler makes of @"…".
@interface NSConstantString : NSString {
@public
    const char* bytes;
    unsigned int length;
}
@end

// What the system gives out.
@interface FakeString : NSString {
@public
    std::string* text;
}
@end

@implementation NSString
- (const char*)UTF8String {
    return "";
}
@end

@implementation NSConstantString
- (const char*)UTF8String {
    return bytes;
}
- (instancetype)retain {
    return self;
}
- (oneway void)release {
}
- (instancetype)autorelease {
    return self;
}
@end

@implementation FakeString
- (const char*)UTF8String {
    return text->c_str();
}
- (void)dealloc {
    delete text;
    [super dealloc];
}
@end

@implementation NSArray
- (NSUInteger)count {
    return 0;
}
- (id)objectAtIndex:(NSUInteger)index {
    return nil;
}
- (id)lastObject {
    const NSUInteger count = [self count];
    return count > 0 ? [self objectAtIndex:count - 1] : nil;
}
@end

@implementation FakeArray
+ (FakeArray*)arrayOf:(std::vector<id>*)all {
    FakeArray* array = [[[FakeArray alloc] init] autorelease];
    array->items = all;
    return array;
}
- (NSUInteger)count {
    return items->size();
}
- (id)objectAtIndex:(NSUInteger)index {
    if (index >= items->size()) {
        macfakes::noteMistake("an object after the end of an array");
        return nil;
    }
    return items->at(index);
}
@end

@implementation NSNumber
- (unsigned int)unsignedIntValue {
    return 0;
}
- (BOOL)boolValue {
    return NO;
}
@end

@implementation FakeNumber
- (unsigned int)unsignedIntValue {
    return value;
}
- (BOOL)boolValue {
    return value != 0;
}
@end

@implementation NSDictionary
- (id)objectForKey:(id)key {
    return nil;
}
@end

@implementation FakeDictionary
- (id)objectForKey:(id)wanted {
    const bool fits =
        key != nil && std::strcmp([(NSString*)wanted UTF8String], [key UTF8String]) == 0;
    return fits ? value : nil;
}
@end

@interface FakeError : NSError
@end

@implementation NSError
- (NSString*)localizedDescription {
    return nil;
}
@end

@implementation FakeError
- (NSString*)localizedDescription {
    FakeString* words = [[[FakeString alloc] init] autorelease];
    words->text = new std::string(loginRefusal);
    return words;
}
@end

@implementation NSNotification
@end

@implementation NSNotificationCenter
+ (NSNotificationCenter*)defaultCenter {
    return (NSNotificationCenter*)centerFor(Center::Own, self);
}
- (void)addObserver:(id)observer selector:(SEL)selector name:(NSString*)name object:(id)object {
    observers[self].push_back({observer, selector, [name UTF8String], true});
}
- (void)removeObserver:(id)observer {
    std::vector<Observer>& all = observers[self];
    const auto end = std::remove_if(all.begin(), all.end(),
                                    [&](const Observer& each) { return each.object == observer; });
    if (end == all.end()) {
        macfakes::noteMistake("an observer is removed that observes nothing");
    }
    all.erase(end, all.end());
}
@end

@implementation NSDistributedNotificationCenter
+ (NSDistributedNotificationCenter*)defaultCenter {
    return (NSDistributedNotificationCenter*)centerFor(Center::Everybody, self);
}
- (void)addObserver:(id)observer
              selector:(SEL)selector
                  name:(NSString*)name
                object:(NSString*)object
    suspensionBehavior:(NSNotificationSuspensionBehavior)behaviour {
    observers[self].push_back({observer, selector, [name UTF8String],
                               behaviour == NSNotificationSuspensionBehaviorDeliverImmediately});
}
@end

@implementation NSWorkspace
+ (NSWorkspace*)sharedWorkspace {
    return (NSWorkspace*)macfakes::makeUncounted(self);
}
- (NSNotificationCenter*)notificationCenter {
    return (NSNotificationCenter*)centerFor(Center::Workspace, [NSNotificationCenter class]);
}
@end

CFDictionaryRef CGSessionCopyCurrentDictionary() {
    if (!hasSession) {
        return nullptr;
    }
    FakeDictionary* session = [[FakeDictionary alloc] init];
    if (isLocked) {
        FakeNumber* yes = (FakeNumber*)macfakes::makeUncounted([FakeNumber class]);
        yes->value = 1;
        session->key = @"CGSSessionScreenIsLocked";
        session->value = yes;
    }
    return (CFDictionaryRef)(void*)session;
}

@implementation SMAppService
+ (SMAppService*)mainAppService {
    return [[[self alloc] init] autorelease];
}
- (SMAppServiceStatus)status {
    return (SMAppServiceStatus)loginStatus;
}
- (BOOL)answer:(NSError**)error with:(long)status {
    if (loginRefusal.empty()) {
        loginStatus = status;
        return YES;
    }
    if (error != nullptr) {
        *error = [[[FakeError alloc] init] autorelease];
    }
    return NO;
}
- (BOOL)registerAndReturnError:(NSError**)error {
    // Somebody who has switched the item off is asked again.
    return [self answer:error
                   with:loginStatus == SMAppServiceStatusRequiresApproval
                            ? SMAppServiceStatusRequiresApproval
                            : SMAppServiceStatusEnabled];
}
- (BOOL)unregisterAndReturnError:(NSError**)error {
    return [self answer:error with:SMAppServiceStatusNotRegistered];
}
@end

namespace macfakes {

void resetFoundation() {
    observers.clear();
    centers.clear();
    isLocked = false;
    hasSession = true;
    loginStatus = 0;
    loginRefusal.clear();
}

void postFromWorkspace(const std::string& name) {
    post(centerFor(Center::Workspace, [NSNotificationCenter class]), name, true);
}

void postToEverybody(const std::string& name, bool isInFront) {
    post(centerFor(Center::Everybody, [NSDistributedNotificationCenter class]), name, isInFront);
}

void setScreenLocked(bool locked) {
    isLocked = locked;
}

void setHasSession(bool has) {
    hasSession = has;
}

void setLoginStatus(long status) {
    loginStatus = status;
}

void refuseLogin(const std::string& words) {
    loginRefusal = words;
}

} // namespace macfakes
