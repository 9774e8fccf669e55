// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

// What the stand-ins share.
#import <AppKit/AppKit.h>

#include <string>
#include <vector>

namespace macfakes {

// An object that is not counted, for what the program neither makes nor frees.
id makeUncounted(Class cls);
bool isFreed(id object);
void noteMistake(const std::string& text);
// Begins anew; each part of the stand-ins has one.
void resetObjects();
void resetFoundation();
void resetScreens();
void resetWindows();
void resetInput();
void resetPictures();

} // namespace macfakes

// An array of what is in `items`, which must outlive it.
@interface FakeArray : NSArray {
@public
    std::vector<id>* items;
}
+ (FakeArray*)arrayOf:(std::vector<id>*)items;
@end

@interface FakeNumber : NSNumber {
@public
    unsigned value;
}
@end

// Has one entry at most.
@interface FakeDictionary : NSDictionary {
@public
    NSString* key;
    id value;
}
@end
