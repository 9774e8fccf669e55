// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#import <Foundation/Foundation.h>

typedef enum SMAppServiceStatus : NSInteger {
    SMAppServiceStatusNotRegistered = 0,
    SMAppServiceStatusEnabled = 1,
    SMAppServiceStatusRequiresApproval = 2,
    SMAppServiceStatusNotFound = 3,
} SMAppServiceStatus;

API_SINCE(13.0)
@interface SMAppService : NSObject
+ (SMAppService*)mainAppService;
- (SMAppServiceStatus)status;
- (BOOL)registerAndReturnError:(NSError**)error;
- (BOOL)unregisterAndReturnError:(NSError**)error;
@end
