// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "screen/quoteview.h"
#include "tests/fakes/shippedfonts.h"

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

// "Midnight" in Fraunces on a Friday morning, on a screen of this size.
inline QuoteViewState plainState(QSizeF size = {1512, 982}) {
    QuoteViewState state;
    state.settings.fontName = u"fraunces"_s;
    state.settings.paletteIndex = 0;
    state.palette = Palette::all()[0];
    state.mainScreen = size;
    state.size = size;
    const QDateTime morning(QDate(2025, 11, 14), QTime(9, 30), Qt::UTC);
    state.moment = {static_cast<double>(morning.toSecsSinceEpoch()), QTimeZone::utc()};
    state.locale = QLocale(u"en_US"_s);
    return state;
}

} // namespace morrowleaf
