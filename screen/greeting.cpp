// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/greeting.h"

namespace morrowleaf {

QString greeting(int hour) {
    if (hour >= 5 && hour <= 11) {
        return QStringLiteral("Good morning");
    }
    if (hour >= 12 && hour <= 16) {
        return QStringLiteral("Good afternoon");
    }
    if (hour >= 17 && hour <= 21) {
        return QStringLiteral("Good evening");
    }
    return QStringLiteral("Still awake");
}

QString greeting(const Moment& moment) {
    return greeting(moment.local().time().hour());
}

QString today(const Moment& moment, const QLocale& locale) {
    return locale.toUpper(locale.toString(moment.local().date(), QStringLiteral("dddd, d MMMM")));
}

QString hintText(double sideInset) {
    return sideInset > 0 ? QStringLiteral("esc to finish") : QStringLiteral("press any key");
}

} // namespace morrowleaf
