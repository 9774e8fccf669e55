// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/prefs.h"

#include <QByteArray>
#include <QFont>
#include <QHash>
#include <QString>

#include <optional>

namespace morrowleaf {

inline constexpr QLatin1StringView frauncesName{"Fraunces72pt-Light"};

// A face at a size in points (device-independent pixels), fraction kept.
struct TextFont {
    QFont face;      // family and style; its own size is not used
    double size = 0; // points

    bool operator==(const TextFont&) const = default;
};

// The faces shipped with the program, found by PostScript name. For the main
// thread.
class FontBook {
public:
    // Registers every .ttf and .otf file of the folder, in any case of the
    // extension; unreadable files and a missing folder are skipped.
    void registerBundledFonts(const QString& folder);

    // std::nullopt when no registered face has that PostScript name. `size` is in
    // points.
    std::optional<TextFont> named(const QString& postScriptName, double size) const;

private:
    QHash<QString, QFont> faces_;
};

enum class FontWeight { Regular, Medium };

// The face used as the system font of a design: the bundled one, else the
// system's own of that kind, else the plain system font. `size` is in points.
TextFont nsFont(const FontBook& book, double size, FontDesign design,
                FontWeight weight = FontWeight::Regular);

// The quotation's font for a stored typeface name: the Fraunces face for
// "fraunces" (the serif design where it is missing), else nsFont of its design.
TextFont quoteFont(const FontBook& book, const QString& fontName, double size);

// The names that a typeface gives itself; empty where it has none.
struct FontNames {
    QString postScript;
    QString family; // the typographic family where there is one
    QString style;

    bool operator==(const FontNames&) const = default;
};

// Reads an OpenType `name` table; std::nullopt when it holds no PostScript name.
// The bytes may be hostile.
std::optional<FontNames> readNameTable(const QByteArray& table);

} // namespace morrowleaf
