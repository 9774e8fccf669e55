// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/readouts.h"

#include <array>
#include <charconv>
#include <cmath>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;

QString readout(double value, int decimals, QLatin1StringView unit) {
    if (value > 9999) {
        return u">9999"_s;
    }
    if (value < -999) {
        return u"<-999"_s;
    }
    std::array<char, 16> digits{};
    // Unlike printf, this knows no locale; unlike Qt, it rounds halves as printf does.
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                       std::chars_format::fixed, decimals);
    return QString(QLatin1StringView(digits.data(), written.ptr)) + unit;
}

} // namespace

QString percentReadout(double value) {
    return readout(value * 100, 0, "%"_L1);
}

QString plainReadout(double value) {
    return readout(value, 2, ""_L1);
}

QString secondsReadout(double value) {
    return readout(std::trunc(value), 0, "s"_L1);
}

} // namespace morrowleaf
