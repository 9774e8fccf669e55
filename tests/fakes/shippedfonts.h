// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/fonts.h"
#include "tools/sourcepath.h"

namespace morrowleaf {

// The faces of the resources, registered once.
inline const FontBook& shippedFonts() {
    static const FontBook filled = [] {
        FontBook shipped;
        shipped.registerBundledFonts(sourcePath("resources/Fonts"));
        return shipped;
    }();
    return filled;
}

} // namespace morrowleaf
