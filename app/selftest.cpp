// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/selftest.h"

#include "base/randomindex.h"
#include "look/palettes.h"
#include "quotes/collection.h"
#include "quotes/schedule.h"
#include "settings/prefs.h"
#include "settings/settingsstore.h"
#include "settings/settingstable.h"
#include "textanim/linebalancing.h"

#include <QSet>

namespace morrowleaf {

namespace {

using namespace Qt::StringLiterals;

constexpr int days = 400;

// The moment `count` calendar days later, at the same local time.
Moment daysAfter(const Moment& moment, int count) {
    const QDateTime later = moment.local().addDays(count);
    if (!later.isValid()) {
        qFatal("The date %d days from now cannot be reckoned.", count);
    }
    return {static_cast<double>(later.toMSecsSinceEpoch()) / 1000, moment.zone};
}

void balanceEveryText() {
    for (const BuiltinQuote& quote : quotes) {
        balancedLines(quote.text);
    }
}

void checkEachDay(const Moment& now) {
    QSet<QString> texts;
    for (int day = 0; day < days; ++day) {
        const Moment date = daysAfter(now, day);
        texts.insert(quoteOfTheDay(date).text);
        Palette::ofTheDay(date);
    }
}

void checkSlotBoundary(SettingsStore& store) {
    store.set(K::frequency, u"6h"_s);
    for (const double seconds : {0.0, 21599.0, 21600.0}) {
        scheduledQuote({seconds, QTimeZone::utc()}, Prefs::frequency(store), secureRandomIndex());
    }
    store.remove(K::frequency);
}

} // namespace

void selftest(SettingsStore& store, std::FILE* out, const Moment& now) {
    balanceEveryText();
    checkEachDay(now);
    checkSlotBoundary(store);
    std::fprintf(out, "selftest ok \u2014 %zu quotes, connector parsing ok\n", quotes.size());
    std::fflush(out);
}

} // namespace morrowleaf
