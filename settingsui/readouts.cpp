// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/readouts.h"

#include <QCoreApplication>

#include <cmath>
#include <iomanip>
#include <locale>
#include <sstream>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;

// `pattern` has a place for the number, "%1".
QString readout(const QString& pattern, double value, int decimals) {
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
    return pattern.arg(QString::fromStdString(digits.str()));
}

} // namespace

QString percentReadout(double value) {
    //: A percentage; there is room for five characters
    return readout(QCoreApplication::translate("Readout", "%1%"), value * 100, 0);
}

QString plainReadout(double value) {
    return readout(u"%1"_s, value, 2);
}

QString secondsReadout(double value) {
    //: A number of seconds; there is room for five characters
    return readout(QCoreApplication::translate("Readout", "%1s"), std::trunc(value), 0);
}

} // namespace morrowleaf
