// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace morrowleaf {

// What a typeface calls itself; empty where it does not say.
struct FontNames {
    QString postScript;
    QString family; // the typographic family where there is one
    QString style;

    bool operator==(const FontNames&) const = default;
};

// Reads an OpenType `name` table. Nothing when it is no such table or names no
// PostScript name; never reads outside the bytes.
std::optional<FontNames> readNameTable(const QByteArray& table);

} // namespace morrowleaf
