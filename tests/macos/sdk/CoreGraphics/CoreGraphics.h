// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#ifdef __cplusplus
extern "C" {
#endif

typedef const struct __CFDictionary* CFDictionaryRef;

// The caller releases the result, which is null without a graphical session.
CFDictionaryRef CGSessionCopyCurrentDictionary(void);

#ifdef __cplusplus
}
#endif
