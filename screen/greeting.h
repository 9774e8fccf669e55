// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/moment.h"

#include <QLocale>
#include <QString>

namespace morrowleaf {

// The greeting for an hour of the day, 0...23: morning from 5, afternoon from 12,
// evening from 17 and "Still awake" from 22.
QString greeting(int hour);
// The same for the local hour of a moment.
QString greeting(const Moment& moment);

// The local date as "FRIDAY, 14 NOVEMBER", in the words and the upper case of
// the locale.
QString today(const Moment& moment, const QLocale& locale);

// The hint at the bottom. While an inset (in points) is kept free for the
// appearance editor, only Escape ends the showing.
QString hintText(double sideInset);

} // namespace morrowleaf
