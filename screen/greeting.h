// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/moment.h"

#include <QLocale>
#include <QString>

namespace morrowleaf {

// The greeting for an hour of the day, 0 to 23.
QString greeting(int hour);
// The same for the local hour of a moment.
QString greeting(const Moment& moment);

// The local date as "FRIDAY, 14 NOVEMBER", in the words and the upper case of
// the locale.
QString today(const Moment& moment, const QLocale& locale);

// What ends the showing: a hint that differs while an inset is kept free.
QString hintText(double sideInset);

} // namespace morrowleaf
