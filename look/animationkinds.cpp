// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "look/animationkinds.h"

#include <QCoreApplication>
#include <QLatin1StringView>

#include <algorithm>
#include <cmath>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

struct TextAnimRow {
    QLatin1StringView raw;
    const char* label; // English
};

struct ScreenAnimRow {
    QLatin1StringView raw;
    const char* label; // English
    double speed;
    double amplitude;
};

// In the order of the enumerators.
constexpr std::array<TextAnimRow, allTextAnims.size()> textRows{{
    //: How the lines of the quote come in
    {"fade"_L1, QT_TRANSLATE_NOOP("TextAnim", "Fade")},
    {"handwrite"_L1, QT_TRANSLATE_NOOP("TextAnim", "Handwrite")},
    {"typewriter"_L1, QT_TRANSLATE_NOOP("TextAnim", "Typewriter")},
    {"rise"_L1, QT_TRANSLATE_NOOP("TextAnim", "Rise")},
    {"blur"_L1, QT_TRANSLATE_NOOP("TextAnim", "Blur")},
}};

constexpr std::array<ScreenAnimRow, allScreenAnims.size()> screenRows{{
    //: How the backdrop moves
    {"drift"_L1, QT_TRANSLATE_NOOP("ScreenAnim", "Drift"), 0.11, 0.16},
    {"still"_L1, QT_TRANSLATE_NOOP("ScreenAnim", "Still"), 0.0, 0.16},
    {"breathe"_L1, QT_TRANSLATE_NOOP("ScreenAnim", "Breathe"), 0.06, 0.1},
    {"aurora"_L1, QT_TRANSLATE_NOOP("ScreenAnim", "Aurora"), 0.3, 0.26},
    {"zoom"_L1, QT_TRANSLATE_NOOP("ScreenAnim", "Zoom"), 0.08, 0.16},
}};

const TextAnimRow& row(TextAnim kind) {
    return textRows[static_cast<size_t>(kind)];
}
const ScreenAnimRow& row(ScreenAnim kind) {
    return screenRows[static_cast<size_t>(kind)];
}

template <typename Kinds>
auto kindNamed(const Kinds& kinds, const QString& raw)
    -> std::optional<typename Kinds::value_type> {
    const auto found =
        std::find_if(kinds.begin(), kinds.end(), [&](auto kind) { return row(kind).raw == raw; });
    return found == kinds.end() ? std::nullopt : std::optional(*found);
}

} // namespace

QString rawValue(TextAnim kind) {
    return row(kind).raw;
}
QString rawValue(ScreenAnim kind) {
    return row(kind).raw;
}

std::optional<TextAnim> textAnimFromRawValue(const QString& raw) {
    return kindNamed(allTextAnims, raw);
}

std::optional<ScreenAnim> screenAnimFromRawValue(const QString& raw) {
    return kindNamed(allScreenAnims, raw);
}

TextAnim storedTextAnim(const QString& raw) {
    return textAnimFromRawValue(raw).value_or(allTextAnims.front());
}

ScreenAnim storedScreenAnim(const QString& raw) {
    return screenAnimFromRawValue(raw).value_or(allScreenAnims.front());
}

QString label(TextAnim kind) {
    return QCoreApplication::translate("TextAnim", row(kind).label);
}
QString label(ScreenAnim kind) {
    return QCoreApplication::translate("ScreenAnim", row(kind).label);
}

double speed(ScreenAnim kind) {
    return row(kind).speed;
}
double amplitude(ScreenAnim kind) {
    return row(kind).amplitude;
}

double backdropScale(ScreenAnim kind, double phase) {
    switch (kind) {
    case ScreenAnim::Breathe:
        return 1.02 + 0.025 * std::sin(3.0 * phase);
    case ScreenAnim::Zoom:
        return 1.06 + 0.06 * std::sin(1.4 * phase);
    case ScreenAnim::Drift:
    case ScreenAnim::Still:
    case ScreenAnim::Aurora:
        break;
    }
    return 1;
}

} // namespace morrowleaf
