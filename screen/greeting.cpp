// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/greeting.h"

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

QString greeting(int hour) {
    if (hour >= 5 && hour <= 11) {
        return u"Good morning"_s;
    }
    if (hour >= 12 && hour <= 16) {
        return u"Good afternoon"_s;
    }
    if (hour >= 17 && hour <= 21) {
        return u"Good evening"_s;
    }
    return u"Still awake"_s;
}

QString greeting(const Moment& moment) {
    return greeting(moment.local().time().hour());
}

QString today(const Moment& moment, const QLocale& locale) {
    return locale.toUpper(locale.toString(moment.local().date(), u"dddd, d MMMM"_s));
}

QString hintText(double sideInset) {
    return sideInset > 0 ? u"esc to finish"_s : u"press any key"_s;
}

} // namespace morrowleaf
