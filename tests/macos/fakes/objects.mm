// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#import "tests/macos/fakes/objects.h"

#include "tests/macos/fakes/macfakes.h"

#include <map>
#include <set>
#include <utility>

extern "C" {
id class_createInstance(Class cls, unsigned long extra);
id object_dispose(id object);
const char* object_getClassName(id object);
Class class_getSuperclass(Class cls);
}

// The runtime keeps its tables of selectors until the end.
extern "C" const char* __lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:libobjc";
}

namespace {

std::map<id, long> references;
std::set<id> freed; // kept until reset(), so that they can be told from others
std::set<id> uncounted;
std::vector<std::vector<id>> pools;
std::vector<std::string> mistakesMade;

std::string describe(id object) {
    return object_getClassName(object);
}

} // namespace

namespace macfakes {

id makeUncounted(Class cls) {
    id object = class_createInstance(cls, 0);
    uncounted.insert(object);
    return object;
}

bool isFreed(id object) {
    return freed.count(object) != 0;
}

void noteMistake(const std::string& text) {
    mistakesMade.push_back(text);
}

void resetObjects() {
    for (const auto& [object, count] : references) {
        object_dispose(object);
    }
    for (const std::set<id>& objects : {std::exchange(freed, {}), std::exchange(uncounted, {})}) {
        for (id object : objects) {
            object_dispose(object);
        }
    }
    references.clear();
    pools.clear();
    mistakesMade.clear();
}

void reset() {
    resetInput();
    resetPictures();
    resetWindows();
    resetScreens();
    resetFoundation();
    resetObjects();
}

long liveObjects() {
    return static_cast<long>(references.size());
}

std::vector<std::string>& mistakes() {
    return mistakesMade;
}

} // namespace macfakes

@implementation NSObject
+ (instancetype)alloc {
    id object = class_createInstance(self, 0);
    references[object] = 1;
    return object;
}
- (instancetype)init {
    return self;
}
- (instancetype)retain {
    if (freed.count(self) != 0) {
        macfakes::noteMistake(describe(self) + " is retained after it was freed");
    } else if (references.count(self) != 0) {
        ++references[self];
    }
    return self;
}
- (oneway void)release {
    if (uncounted.count(self) != 0) {
        return;
    }
    const auto found = references.find(self);
    if (found == references.end()) {
        macfakes::noteMistake(describe(self) + " is released too often");
    } else if (--found->second == 0) {
        [self dealloc];
    }
}
- (instancetype)autorelease {
    if (pools.empty()) {
        macfakes::noteMistake(describe(self) + " is released later without a pool");
    } else {
        pools.back().push_back(self);
    }
    return self;
}
- (void)dealloc {
    references.erase(self);
    freed.insert(self);
}
+ (Class)class {
    return self;
}
- (BOOL)isKindOfClass:(Class)wanted {
    for (Class cls = isa; cls != nullptr; cls = class_getSuperclass(cls)) {
        if (cls == wanted) {
            return YES;
        }
    }
    return NO;
}
@end

@implementation NSAutoreleasePool
- (instancetype)init {
    pools.emplace_back();
    return self;
}
- (void)drain {
    const auto objects = std::move(pools.back());
    pools.pop_back();
    for (id object : objects) {
        [(NSObject*)object release];
    }
    [self release];
}
@end
