// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/greeting.h"

#include <QCoreApplication>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

QString greeting(int hour) {
    if (hour >= 5 && hour <= 11) {
        return QCoreApplication::translate("Greeting", "Good morning");
    }
    if (hour >= 12 && hour <= 16) {
        return QCoreApplication::translate("Greeting", "Good afternoon");
    }
    if (hour >= 17 && hour <= 21) {
        return QCoreApplication::translate("Greeting", "Good evening");
    }
    //: A kind greeting from 22 to 5 o'clock; no question
    return QCoreApplication::translate("Greeting", "Still awake");
}

QString greeting(const Moment& moment) {
    return greeting(moment.local().time().hour());
}

QString today(const Moment& moment, const QLocale& locale) {
    return locale.toUpper(locale.toString(moment.local().date(), u"dddd, d MMMM"_s));
}

QString hintText(double sideInset) {
    return sideInset > 0
               //: A hint in small letters; "esc" is the key
               ? QCoreApplication::translate("Hint", "esc to finish")
               //: A hint in small letters
               : QCoreApplication::translate("Hint", "press any key");
}

} // namespace morrowleaf
