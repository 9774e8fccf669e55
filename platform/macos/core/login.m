// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#import <Foundation/Foundation.h>
#import <ServiceManagement/ServiceManagement.h>

#include "platform/macos/core/maccore.h"

MacLoginStatus macLoginStatus(void) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    const SMAppServiceStatus status = [[SMAppService mainAppService] status];
    [pool drain];
    switch (status) {
    case SMAppServiceStatusNotRegistered:
        return MacLoginNotRegistered;
    case SMAppServiceStatusEnabled:
        return MacLoginEnabled;
    case SMAppServiceStatusRequiresApproval:
        return MacLoginRequiresApproval;
    case SMAppServiceStatusNotFound:
        break;
    }
    return MacLoginNotFound;
}

static void explain(NSError* error, char* words, size_t size) {
    const char* text = [[error localizedDescription] UTF8String];
    size_t length = 0;
    while (text != NULL && text[length] != 0 && length + 1 < size) {
        words[length] = text[length];
        ++length;
    }
    words[length] = 0;
}

bool macRegisterLogin(char* words, size_t size) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSError* error = nil;
    const bool done = [[SMAppService mainAppService] registerAndReturnError:&error];
    explain(done ? nil : error, words, size);
    [pool drain];
    return done;
}

bool macUnregisterLogin(char* words, size_t size) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSError* error = nil;
    const bool done = [[SMAppService mainAppService] unregisterAndReturnError:&error];
    explain(done ? nil : error, words, size);
    [pool drain];
    return done;
}
