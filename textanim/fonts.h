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
    QFont face;      // family and style; its own size is of no meaning
    double size = 0; // points

    bool operator==(const TextFont&) const = default;
};

// The faces that the program brought along, found by PostScript name.
class FontBook {
public:
    // Registers every .ttf and .otf file of the folder, in any case of the
    // extension; unreadable files and a missing folder are passed over.
    void registerBundledFonts(const QString& folder);

    // Nothing when no registered face has that PostScript name.
    std::optional<TextFont> named(const QString& postScriptName, double size) const;

private:
    QHash<QString, QFont> faces_;
};

enum class FontWeight { Regular, Medium };

// The face that stands for the system font of a design: the bundled one, else
// the system's own of that kind, else the plain system font.
TextFont nsFont(const FontBook& book, double size, FontDesign design,
                FontWeight weight = FontWeight::Regular);

// The quotation's font for a stored typeface name: the Fraunces face for
// "fraunces" (the serif design where it is missing), else nsFont of its design.
TextFont quoteFont(const FontBook& book, const QString& fontName, double size);

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
