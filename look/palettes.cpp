// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "look/palettes.h"

#include <QCoreApplication>

#include <algorithm>

namespace morrowleaf {

namespace {

Palette fromHex(const char* name, const std::array<quint32, 9>& colors, quint32 ink,
                bool light = false) {
    Palette palette;
    palette.name = QString::fromLatin1(name);
    std::transform(colors.begin(), colors.end(), palette.colors.begin(), Palette::hex);
    palette.ink = Palette::hex(ink);
    palette.light = light;
    return palette;
}

} // namespace

QString Palette::shownName() const {
    return QCoreApplication::translate("Palette", qUtf8Printable(name));
}

QColor Palette::hex(quint32 rgb) {
    return QColor::fromRgb(static_cast<QRgb>(rgb | 0xFF000000u));
}

std::span<const Palette> Palette::all() {
    static const std::array<Palette, 9> palettes{
        //: The name of a palette, in the appearance editor under a tile of 48 points
        fromHex(QT_TRANSLATE_NOOP("Palette", "Midnight"),
                {0x0B1026, 0x141C3A, 0x0B1026, 0x1E2A5E, 0x3B3E8C, 0x16204A, 0x0D1330, 0x2A2F6B,
                 0x0B1026},
                0xEDEBFF),
        fromHex(QT_TRANSLATE_NOOP("Palette", "Ember"),
                {0x15100C, 0x2B1A10, 0x120D0A, 0x50291A, 0x8A4526, 0x35180E, 0x120D0A, 0x6B3320,
                 0x15100C},
                0xFFEEDD),
        fromHex(QT_TRANSLATE_NOOP("Palette", "Forest"),
                {0x06120F, 0x0B2320, 0x06120F, 0x123B33, 0x1E6151, 0x0E2E28, 0x06120F, 0x184A3E,
                 0x081713},
                0xE4FBF1),
        fromHex(QT_TRANSLATE_NOOP("Palette", "Plum"),
                {0x1A0B1B, 0x2E1030, 0x140A16, 0x4E1740, 0x7B2E5C, 0x33123A, 0x140A16, 0x5F1F4C,
                 0x1A0B1B},
                0xFDE9F6),
        fromHex(QT_TRANSLATE_NOOP("Palette", "Slate"),
                {0x0A0F14, 0x122029, 0x0A0F14, 0x1B3A46, 0x2E6070, 0x14303A, 0x0A0F14, 0x224A58,
                 0x0A0F14},
                0xE8F4F8),
        fromHex(QT_TRANSLATE_NOOP("Palette", "Brass"),
                {0x121004, 0x241F0A, 0x0F0D04, 0x453A12, 0x7A6420, 0x2C260C, 0x0F0D04, 0x5C4C18,
                 0x121004},
                0xFBF3D9),
        fromHex(QT_TRANSLATE_NOOP("Palette", "Violet"),
                {0x0E0A18, 0x1B1230, 0x0E0A18, 0x2F1D5A, 0x4F3391, 0x22163F, 0x0C0816, 0x3C2670,
                 0x0E0A18},
                0xF0E9FF),
        fromHex(QT_TRANSLATE_NOOP("Palette", "Paper"),
                {0xF6F1E8, 0xEFE8DA, 0xF7F3EB, 0xF0EADD, 0xE3D7C3, 0xEFE8DA, 0xF6F2EA, 0xEDE5D5,
                 0xF5F0E7},
                0x262019, true),
        fromHex(QT_TRANSLATE_NOOP("Palette", "Noir"),
                {0x050507, 0x0B0B0F, 0x050507, 0x111117, 0x1D1D26, 0x0D0D12, 0x050507, 0x15151C,
                 0x060608},
                0xF1EFEA),
    };
    return palettes;
}

const Palette& Palette::photo() {
    static const Palette palette = [] {
        std::array<quint32, 9> colors{};
        colors.fill(0x0F0F13);
        return fromHex("Photo", colors, 0xF4F2EE);
    }();
    return palette;
}

const Palette& Palette::ofTheDay(const Moment& moment) {
    const auto count = static_cast<qint64>(all().size());
    const qint64 index = moment.dayOrdinal() % count;
    return all()[static_cast<size_t>(index < 0 ? index + count : index)];
}

const Palette& Palette::current(qint64 paletteIndex, const Moment& moment) {
    const auto palettes = all();
    if (paletteIndex >= 0 && paletteIndex < static_cast<qint64>(palettes.size())) {
        return palettes[static_cast<size_t>(paletteIndex)];
    }
    return ofTheDay(moment);
}

} // namespace morrowleaf
