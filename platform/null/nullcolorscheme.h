// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/colorscheme.h"

namespace morrowleaf {

class NullColorScheme : public ColorScheme {
public:
    ColorPreference preference() const override { return ColorPreference::None; }
};

} // namespace morrowleaf
