// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#import <AppKit/AppKit.h>

// The display with this number, as macDisplayAt() gives it; nil if there is none.
NSScreen* findScreen(unsigned display);
