// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/moment.h"

#include <QLocale>
#include <QString>

namespace morrowleaf {

// Greeting and hint are in the language of the messages, the date in that of the locale.

// The greeting for an hour of the day, 0...23: morning from 5, afternoon from 12,
// evening from 17 and "Still awake" from 22.
QString greeting(int hour);
// The greeting for the local hour of a moment.
QString greeting(const Moment& moment);

// The local date in the form "FRIDAY, 14 NOVEMBER", in the language and the upper
// case of the locale.
QString today(const Moment& moment, const QLocale& locale);

// The hint at the bottom. A `sideInset` above 0 (points) is kept free for the
// appearance editor, during which only Escape ends the showing.
QString hintText(double sideInset);

} // namespace morrowleaf
