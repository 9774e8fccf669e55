// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/fonts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QRawFont>
#include <QStringConverter>
#include <QtEndian>

#include <array>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView serifName = "EBGaramond-Regular"_L1;
constexpr QLatin1StringView sansName = "InterDisplay-Regular"_L1;
constexpr QLatin1StringView roundedName = "Nunito-Regular"_L1;
constexpr QLatin1StringView monoName = "IBMPlexMono-Regular"_L1;
constexpr QLatin1StringView monoMediumName = "IBMPlexMono-Medium"_L1;

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

// The system's face for a design; its general font for a design that it has no face for.
QFont systemFace(FontDesign design, FontWeight weight) {
    QFont face = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    switch (design) {
    case FontDesign::Serif:
        face.setStyleHint(QFont::Serif);
        face.setFamilies({u"serif"_s, face.family()});
        break;
    case FontDesign::Monospaced:
        face.setStyleHint(QFont::Monospace);
        face.setFamilies({u"monospace"_s, face.family()});
        break;
    case FontDesign::Default:
    case FontDesign::Rounded:
        break;
    }
    face.setWeight(weight == FontWeight::Medium ? QFont::Medium : QFont::Normal);
    return unhinted(face);
}

// The bytes of a font file, empty if it is unreadable or too large. Fonts are
// registered from memory, so that a running program keeps its faces when the
// files are replaced by a newer version.
QByteArray wholeFile(const QString& path) {
    constexpr qint64 largest = 32 << 20;
    QFile file(path);
    if (file.size() > largest || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return file.readAll();
}

// Characters missing from `font` are drawn with the fallback, before the faces
// that the system would choose.
void appendFallback(TextFont& font, const std::optional<TextFont>& fallback) {
    if (fallback && fallback->face.family() != font.face.family()) {
        font.face.setFamilies(font.face.families() + fallback->face.families());
    }
}

enum NameId : quint16 {
    Family = 1,
    Style = 2,
    PostScript = 6,
    TypographicFamily = 16,
    TypographicStyle = 17
};

std::optional<quint16> number(const QByteArray& table, qsizetype at) {
    if (at < 0 || at + 2 > table.size()) {
        return std::nullopt;
    }
    return qFromBigEndian<quint16>(table.constData() + at);
}

struct Record {
    quint16 platform, encoding, language, name, length, offset;
};

std::optional<Record> recordAt(const QByteArray& table, qsizetype at) {
    std::array<quint16, 6> field{};
    for (std::size_t i = 0; i < field.size(); ++i) {
        const auto value = number(table, at + 2 * static_cast<qsizetype>(i));
        if (!value) {
            return std::nullopt;
        }
        field[i] = *value;
    }
    return Record{field[0], field[1], field[2], field[3], field[4], field[5]};
}

// How well a record suits: English names come before other languages; 0 is unusable.
int preference(const Record& record) {
    constexpr quint16 macintosh = 1;
    constexpr quint16 windows = 3;
    if (record.platform == windows && record.encoding <= 1) {
        return record.language == 0x409 ? 4 : 2;
    }
    if (record.platform == 0) {
        return 3;
    }
    return record.platform == macintosh && record.encoding == 0 ? 1 : 0;
}

QString decoded(const Record& record, const QByteArray& bytes) {
    constexpr quint16 macintosh = 1;
    if (record.platform == macintosh) {
        return QString::fromLatin1(bytes);
    }
    return QStringDecoder(QStringDecoder::Utf16BE, QStringDecoder::Flag::Stateless).decode(bytes);
}

QString nameWithId(const QByteArray& table, quint16 id) {
    const quint16 count = number(table, 2).value_or(0);
    const qsizetype storage = number(table, 4).value_or(0);
    QString best;
    int bestPreference = 0;
    for (int i = 0; i < count; ++i) {
        const auto record = recordAt(table, 6 + 12 * i);
        if (!record) {
            break;
        }
        if (record->name != id || preference(*record) <= bestPreference) {
            continue;
        }
        const qsizetype begin = storage + record->offset;
        if (begin + record->length > table.size()) {
            continue;
        }
        const QString name = decoded(*record, table.mid(begin, record->length));
        if (!name.isEmpty()) {
            best = name;
            bestPreference = preference(*record);
        }
    }
    return best;
}

QString eitherName(const QByteArray& table, quint16 first, quint16 second) {
    const QString name = nameWithId(table, first);
    return name.isEmpty() ? nameWithId(table, second) : name;
}

} // namespace

void FontBook::registerBundledFonts(const QString& folder) {
    if (folder.isEmpty()) {
        return; // QDir would take the working directory
    }
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::Readable);
    for (const QFileInfo& file : files) {
        const QString suffix = file.suffix().toLower();
        if (suffix != "ttf"_L1 && suffix != "otf"_L1) {
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
    if (fontName == "fraunces"_L1) {
        if (auto font = book.named(frauncesName, size)) {
            appendFallback(*font, book.named(serifName, size));
            return *font;
        }
    }
    return nsFont(book, size, fontDesignNamed(fontName));
}

std::optional<FontNames> readNameTable(const QByteArray& table) {
    FontNames names{nameWithId(table, PostScript), eitherName(table, TypographicFamily, Family),
                    eitherName(table, TypographicStyle, Style)};
    if (names.postScript.isEmpty()) {
        return std::nullopt;
    }
    return names;
}

} // namespace morrowleaf
