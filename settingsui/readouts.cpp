// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/readouts.h"

#include <cmath>
#include <iomanip>
#include <locale>
#include <sstream>

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
    // Unlike printf, this can do without the user's locale; unlike Qt, it rounds halves as
    // printf does.
    std::ostringstream digits;
    digits.imbue(std::locale::classic());
    digits << std::fixed << std::setprecision(decimals) << value;
    return QString::fromStdString(digits.str()) + unit;
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
