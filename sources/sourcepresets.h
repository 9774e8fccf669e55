// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <span>

namespace morrowleaf {

// A quotation service that the settings offer by name.
struct SourcePreset {
    QString label;
    QString address;
};

std::span<const SourcePreset> sourcePresets();

} // namespace morrowleaf
