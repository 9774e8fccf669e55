// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/fonts.h"
#include "tools/sourcepath.h"

namespace morrowleaf {

// The faces in resources/Fonts, registered once.
inline const FontBook& shippedFonts() {
    static const FontBook filled = [] {
        using namespace Qt::Literals::StringLiterals;
        FontBook shipped;
        shipped.registerBundledFonts(sourcePath(u"resources/Fonts"_s));
        return shipped;
    }();
    return filled;
}

// One of the faces of quotations, in points.
inline TextFont shippedFace(const QString& name, double size = 44) {
    return quoteFont(shippedFonts(), name, size);
}

} // namespace morrowleaf
