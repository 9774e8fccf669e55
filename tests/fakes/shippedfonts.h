#pragma once

#include "textanim/fonts.h"

namespace morrowleaf {

// The faces of the resources, registered once.
inline const FontBook& shippedFonts() {
    static const FontBook filled = [] {
        FontBook shipped;
        shipped.registerBundledFonts(QStringLiteral(MORROWLEAF_RESOURCE_DIR "/Fonts"));
        return shipped;
    }();
    return filled;
}

} // namespace morrowleaf
