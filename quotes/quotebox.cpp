// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "quotes/quotebox.h"

#include "quotes/schedule.h"
#include "settings/prefs.h"
#include "settings/settingsstore.h"
#include "settings/settingstable.h"

#include <QPointer>

namespace morrowleaf {

namespace {

Quote firstQuote(const SettingsStore& store, const Clock& clock, const RandomIndex& random) {
    if (!Prefs::source(store).isEmpty()) {
        const QString text = store.get(K::cachedText);
        if (!text.isEmpty()) {
            return {text, store.get(K::cachedAuthor)};
        }
    }
    return scheduledQuote(clock(), Prefs::frequency(store), random);
}

} // namespace

QuoteBox::QuoteBox(SettingsStore& store, QuoteLoader loader, const Clock& clock,
                   const RandomIndex& random, QObject* parent)
    : QObject(parent)
    , store_(store)
    , loader_(std::move(loader))
    , quote_(firstQuote(store, clock, random)) {
    refresh();
}

void QuoteBox::refresh() {
    const QString source = Prefs::source(store_);
    if (source.isEmpty()) {
        return;
    }
    loader_(source, [box = QPointer(this), &store = store_](const std::optional<Quote>& loaded) {
        if (!loaded) {
            return;
        }
        if (box) {
            box->assign(*loaded);
        }
        store.set(K::cachedText, loaded->text);
        store.set(K::cachedAuthor, loaded->author);
    });
}

void QuoteBox::assign(const Quote& next) {
    emit quoteWillChange(next);
    quote_ = next;
    emit quoteChanged();
}

} // namespace morrowleaf
