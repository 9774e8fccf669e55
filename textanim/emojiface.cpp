// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "textanim/emojiface.h"

#include <QDataStream>
#include <QFont>
#include <QFontDatabase>
#include <QMap>
#include <QPainterPath>
#include <QRawFont>
#include <QtEndian>

#include <cmath>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int size = 512; // pixels; widths are compared at this size

using Tables = QMap<QByteArray, QByteArray>; // of a font file, by tag

QRawFont installedFace() {
    QFont generic;
    generic.setFamilies({u"emoji"_s});
    generic.setPixelSize(size);
    return QRawFont::fromFont(generic);
}

// A name table that holds only a family.
QByteArray nameTable(const QString& family) {
    QByteArray table;
    QDataStream out(&table, QIODevice::WriteOnly);
    constexpr quint16 strings = 6 + 12; // their offset, after the header and one record
    out << quint16{0} << quint16{1} << strings;
    out << quint16{3} << quint16{1} << quint16{0x409}; // Windows, Unicode, English
    out << quint16{1} << static_cast<quint16>(2 * family.size()) << quint16{0};
    for (const QChar unit : family) {
        out << unit.unicode();
    }
    return table;
}

QByteArray fontFile(const Tables& tables) {
    QByteArray file;
    QDataStream out(&file, QIODevice::WriteOnly);
    const auto count = static_cast<quint16>(tables.size());
    out << quint32{0x00010000} << count << quint16{0} << quint16{0} << quint16{0};
    auto offset = static_cast<quint32>(12 + 16 * count);
    const auto padded = [](const QByteArray& table) { return (table.size() + 3) / 4 * 4; };
    for (const auto& [tag, table] : tables.asKeyValueRange()) {
        out.writeRawData(tag.constData(), 4);
        out << quint32{0} << offset << static_cast<quint32>(table.size());
        offset += static_cast<quint32>(padded(table));
    }
    for (const QByteArray& table : tables) {
        file += table + QByteArray(padded(table) - table.size(), '\0');
    }
    return file;
}

// The file of a face with the glyphs of `face`, all without ink; empty if that cannot be
// made. `advance` is that of `glyph`, in pixels.
QByteArray withoutInk(const QRawFont& face, quint32 glyph, double advance, const QString& family) {
    Tables tables;
    for (const char* tag : {"head", "hhea", "hmtx", "maxp", "cmap", "GDEF", "GSUB", "OS/2"}) {
        const QByteArray table = face.fontTable(tag);
        if (!table.isEmpty()) {
            tables.insert(tag, table);
        }
    }
    QByteArray& head = tables["head"];
    const QByteArray hhea = tables.value("hhea");
    const QByteArray hmtx = tables.value("hmtx");
    const QByteArray maxp = tables.value("maxp");
    if (head.size() < 54 || hhea.size() < 36 || maxp.size() < 6) {
        return {};
    }
    const auto widths = qFromBigEndian<quint16>(hhea.constData() + 34);
    const auto entry = 4 * qMin<qsizetype>(glyph, widths - 1);
    if (entry < 0 || hmtx.size() < entry + 4 || advance <= 0) {
        return {};
    }
    // The bitmaps are not as wide as the file says: the em is adjusted to them.
    const auto units = qFromBigEndian<quint16>(hmtx.constData() + entry);
    qToBigEndian(static_cast<quint16>(std::lround(units * size / advance)), head.data() + 18);
    qToBigEndian(quint16{0}, head.data() + 50); // the offsets in "loca" are of 16 bits
    const auto glyphs = qFromBigEndian<quint16>(maxp.constData() + 4);
    tables.insert("loca", QByteArray(2 * (glyphs + 1), '\0'));
    tables.insert("glyf", QByteArray(4, '\0'));
    tables.insert("name", nameTable(family));
    return fontFile(tables);
}

QString registeredFamily() {
    const QRawFont face = installedFace();
    constexpr char32_t grinning = 0x1F600;
    const QList<quint32> glyph = face.glyphIndexesForString(QString::fromUcs4(&grinning, 1));
    // First of all: after pathForGlyph() Qt no longer knows the advance of the bitmap.
    const double advance = face.advancesForGlyphIndexes(glyph).value(0).x();
    const bool isColoured = face.supportsCharacter(grinning) && !glyph.isEmpty() &&
                            face.pathForGlyph(glyph[0]).isEmpty();
    if (!isColoured) {
        return {};
    }
    const QString family = u"Morrowleaf without ink"_s;
    const QByteArray file = withoutInk(face, glyph[0], advance, family);
    const bool isKnown = !file.isEmpty() && QFontDatabase::addApplicationFontFromData(file) >= 0;
    return isKnown ? family : face.familyName();
}

} // namespace

QString emojiFamily() {
    static const QString family = registeredFamily();
    return family;
}

QRawFont drawnFace(const QRawFont& face) {
    return !emojiFamily().isEmpty() && face.familyName() == emojiFamily() ? installedFace() : face;
}

} // namespace morrowleaf
