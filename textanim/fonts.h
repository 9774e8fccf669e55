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

// A face at a size in points (device-independent pixels), which may be fractional.
struct TextFont {
    QFont face;      // family and style; its own size is not used
    double size = 0; // points

    bool operator==(const TextFont&) const = default;
};

// The faces shipped with the program, found by PostScript name. Use it on the
// main thread only.
class FontBook {
public:
    // Registers every .ttf and .otf file of the folder, in any case of the
    // extension; unreadable files and a missing folder are skipped,
    // as is an empty path.
    void registerBundledFonts(const QString& folder);

    // std::nullopt when no registered face has that PostScript name. `size` is in
    // points.
    std::optional<TextFont> named(const QString& postScriptName, double size) const;

private:
    QHash<QString, QFont> faces_;
};

enum class FontWeight { Regular, Medium };

// The face used as the system font of a design: the bundled face if it is
// registered, otherwise the system's face for that design, otherwise the system's
// general font. `size` is in points.
TextFont nsFont(const FontBook& book, double size, FontDesign design,
                FontWeight weight = FontWeight::Regular);

// The quotation's font for a stored typeface name: the Fraunces face for "fraunces"
// (the serif design if it is missing), otherwise nsFont() of its design.
TextFont quoteFont(const FontBook& book, const QString& fontName, double size);

// The names that a font file gives for itself; empty where it gives none.
struct FontNames {
    QString postScript;
    QString family; // the typographic family where there is one
    QString style;

    bool operator==(const FontNames&) const = default;
};

// Reads an OpenType `name` table; std::nullopt when it holds no PostScript name.
// Malformed tables are safe.
[[nodiscard]] std::optional<FontNames> readNameTable(const QByteArray& table);

} // namespace morrowleaf
