// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/fonts.h"

#include "textanim/fontnames.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QRawFont>

namespace morrowleaf {

namespace {

constexpr QLatin1StringView serifName{"EBGaramond-Regular"};
constexpr QLatin1StringView sansName{"InterDisplay-Regular"};
constexpr QLatin1StringView roundedName{"Nunito-Regular"};
constexpr QLatin1StringView monoName{"IBMPlexMono-Regular"};
constexpr QLatin1StringView monoMediumName{"IBMPlexMono-Medium"};

QLatin1StringView bundledName(FontDesign design) {
    switch (design) {
    case FontDesign::Serif:
        return serifName;
    case FontDesign::Rounded:
        return roundedName;
    case FontDesign::Monospaced:
        return monoName;
    case FontDesign::Default:
        break;
    }
    return sansName;
}

QFont unhinted(QFont face) {
    face.setHintingPreference(QFont::PreferNoHinting);
    return face;
}

// The system's own face of a kind; without a kind the plain system font.
QFont systemFace(FontDesign design, FontWeight weight) {
    QFont face = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    switch (design) {
    case FontDesign::Serif:
        face.setStyleHint(QFont::Serif);
        face.setFamilies({QStringLiteral("serif"), face.family()});
        break;
    case FontDesign::Monospaced:
        face.setStyleHint(QFont::Monospace);
        face.setFamilies({QStringLiteral("monospace"), face.family()});
        break;
    case FontDesign::Default:
    case FontDesign::Rounded:
        break;
    }
    face.setWeight(weight == FontWeight::Medium ? QFont::Medium : QFont::Normal);
    return unhinted(face);
}

// Held in memory, so that a running program keeps its faces when the files
// are replaced by a newer version.
QByteArray wholeFile(const QString& path) {
    constexpr qint64 largest = 32 << 20;
    QFile file(path);
    if (file.size() > largest || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return file.readAll();
}

// Lets another face draw the characters that this one lacks, ahead of the
// faces that the system would choose.
void appendFallback(TextFont& font, const std::optional<TextFont>& fallback) {
    if (fallback && fallback->face.family() != font.face.family()) {
        font.face.setFamilies(font.face.families() + fallback->face.families());
    }
}

} // namespace

void FontBook::registerBundledFonts(const QString& folder) {
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::Readable);
    for (const QFileInfo& file : files) {
        const QString suffix = file.suffix().toLower();
        if (suffix != QLatin1StringView("ttf") && suffix != QLatin1StringView("otf")) {
            continue;
        }
        const QString path = file.absoluteFilePath();
        const QByteArray bytes = wholeFile(path);
        const auto names = readNameTable(QRawFont(bytes, 16).fontTable("name"));
        const int id = names ? QFontDatabase::addApplicationFontFromData(bytes) : -1;
        if (id < 0) {
            continue;
        }
        const QStringList families = QFontDatabase::applicationFontFamilies(id);
        QFont face;
        face.setFamilies(
            {families.contains(names->family) ? names->family : families.value(0, names->family)});
        face.setStyleName(names->style);
        faces_.insert(names->postScript, unhinted(face));
    }
}

std::optional<TextFont> FontBook::named(const QString& postScriptName, double size) const {
    const auto face = faces_.constFind(postScriptName);
    if (face == faces_.cend()) {
        return std::nullopt;
    }
    return TextFont{*face, size};
}

TextFont nsFont(const FontBook& book, double size, FontDesign design, FontWeight weight) {
    std::optional<TextFont> font;
    if (design == FontDesign::Monospaced && weight == FontWeight::Medium) {
        font = book.named(monoMediumName, size);
    }
    if (!font) {
        font = book.named(bundledName(design), size);
    }
    if (!font) {
        return {systemFace(design, weight), size};
    }
    if (design == FontDesign::Rounded) {
        appendFallback(*font, book.named(sansName, size));
    } else if (design == FontDesign::Monospaced) {
        appendFallback(*font, TextFont{systemFace(design, weight), size});
    }
    return *font;
}

TextFont quoteFont(const FontBook& book, const QString& fontName, double size) {
    if (fontName == QLatin1StringView("fraunces")) {
        if (auto font = book.named(frauncesName, size)) {
            appendFallback(*font, book.named(serifName, size));
            return *font;
        }
    }
    return nsFont(book, size, fontDesignNamed(fontName));
}

} // namespace morrowleaf
