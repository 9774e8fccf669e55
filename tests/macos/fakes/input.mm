// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#import "tests/macos/fakes/objects.h"

#include "tests/macos/fakes/macfakes.h"

#include <Block.h>
#include <algorithm>

namespace {

using Handler = NSEvent* (^)(NSEvent*);

constexpr int keyDown = 10; // the type of the event

std::vector<id> monitors;
bool isRefused = false;

} // namespace

@interface FakeEvent : NSEvent {
@public
    int type;
    unsigned short code;
}
@end

@interface FakeMonitor : NSObject {
@public
    NSEventMask mask;
    Handler handler;
    bool isRunning;
}
@end

@implementation FakeMonitor
- (void)dealloc {
    if (isRunning) {
        macfakes::noteMistake("a monitor is freed while it runs");
    }
    Block_release(handler);
    [super dealloc];
}
@end

@implementation NSEvent
- (unsigned short)keyCode {
    return 0;
}
+ (id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask
                                   handler:(NSEvent* (^)(NSEvent* event))block {
    if (isRefused) {
        return nil;
    }
    FakeMonitor* monitor = [[[FakeMonitor alloc] init] autorelease];
    monitor->mask = mask;
    monitor->handler = Block_copy(block);
    monitors.push_back([monitor retain]);
    return monitor;
}
+ (void)removeMonitor:(id)monitor {
    const auto found = std::find(monitors.begin(), monitors.end(), monitor);
    if (found == monitors.end()) {
        macfakes::noteMistake("a monitor is removed that is not there");
        return;
    }
    monitors.erase(found);
    [(NSObject*)monitor release];
}
@end

@implementation FakeEvent
- (unsigned short)keyCode {
    if (type != keyDown) {
        macfakes::noteMistake("the key of an event that has none");
    }
    return code;
}
@end

namespace macfakes {

void resetInput() {
    monitors.clear();
    isRefused = false;
}

static bool deliver(int type, unsigned short code) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    FakeEvent* event = [[[FakeEvent alloc] init] autorelease];
    event->type = type;
    event->code = code;
    NSEvent* passed = event;
    const std::vector<id> all = monitors;
    for (id each : all) {
        FakeMonitor* monitor = (FakeMonitor*)each;
        if (passed != nil && ((monitor->mask >> type) & 1) != 0) {
            monitor->isRunning = true;
            passed = monitor->handler(passed);
            monitor->isRunning = false;
        }
    }
    [pool drain];
    return passed == nil;
}

bool pressKey(unsigned short code) {
    return deliver(keyDown, code);
}

bool pressButton(Button button) {
    return deliver(static_cast<int>(button), 0);
}

void refuseMonitors() {
    isRefused = true;
}

} // namespace macfakes
