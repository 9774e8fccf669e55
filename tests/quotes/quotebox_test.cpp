// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "quotes/quotebox.h"
#include "quotes/schedule.h"
#include "settings/settingsstore.h"
#include "settings/settingstable.h"

#include <gtest/gtest.h>

#include <memory>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

class QuoteBoxTest : public testing::Test {
protected:
    std::unique_ptr<QuoteBox> box() {
        return std::make_unique<QuoteBox>(
            store,
            [this](const QString& source, std::function<void(std::optional<Quote>)> done) {
                sources.append(source);
                answer = std::move(done);
            },
            [this] { return moment; }, [](qsizetype) { return qsizetype{0}; });
    }
    void set(const TextSetting& setting, const char* text) {
        store.set(setting, QString::fromUtf8(text));
    }
    std::string cache() const {
        return (store.text(K::cachedText).value_or(u"-"_s) + u'|' +
                store.text(K::cachedAuthor).value_or(u"-"_s))
            .toStdString();
    }

    SettingsStore store;
    Moment moment{1.7e9, QTimeZone::utc()};
    QStringList sources;
    std::function<void(std::optional<Quote>)> answer;
};

TEST_F(QuoteBoxTest, WithoutASourceShowsTheScheduleAndLoadsNothing) {
    set(K::cachedText, "C");
    EXPECT_EQ(box()->quote().text, quoteOfTheDay(moment).text);
    EXPECT_TRUE(sources.isEmpty());
}

TEST_F(QuoteBoxTest, TheCacheIsShownFirstIfASourceIsSet) {
    set(K::source, "  ");
    EXPECT_EQ(box()->quote().text, quoteOfTheDay(moment).text);
    set(K::cachedText, "");
    EXPECT_EQ(box()->quote().text, quoteOfTheDay(moment).text);
    set(K::cachedText, " ");
    EXPECT_EQ(box()->quote().text, " "_L1);
    EXPECT_EQ(box()->quote().author, "Unknown"_L1);
    set(K::cachedAuthor, "");
    EXPECT_EQ(box()->quote().author, QString());
    EXPECT_EQ(sources, QStringList(5, u"  "_s));
}

TEST_F(QuoteBoxTest, AnAnswerIsAnnouncedAndThenCached) {
    set(K::source, "/x");
    const auto holder = box();
    QStringList events;
    QObject::connect(holder.get(), &QuoteBox::quoteWillChange, [&](const Quote& next) {
        events << "will "_L1 + next.text
               << (holder->quote().text == next.text ? u"late"_s : u"old"_s);
    });
    QObject::connect(holder.get(), &QuoteBox::quoteChanged,
                     [&] { events << "now "_L1 + holder->quote().text; });
    QObject::connect(&store, &SettingsStore::changed, [&](const QString& key) { events << key; });
    answer(Quote{u"A"_s, u"B"_s});
    EXPECT_EQ(events, QStringList({u"will A"_s, u"old"_s, u"now A"_s, u"cachedQuoteText"_s,
                                   u"cachedQuoteAuthor"_s}));
    EXPECT_EQ(cache(), "A|B");
    EXPECT_EQ(sources, QStringList{u"/x"_s});
}

TEST_F(QuoteBoxTest, AFailureChangesNothing) {
    set(K::source, "/x");
    set(K::cachedText, "C");
    const auto holder = box();
    QObject::connect(holder.get(), &QuoteBox::quoteWillChange, [] { FAIL(); });
    answer(std::nullopt);
    EXPECT_EQ(holder->quote().text, "C"_L1);
    EXPECT_EQ(cache(), "C|-");
}

TEST_F(QuoteBoxTest, AnAnswerAfterTheBoxIsDestroyedStillWritesTheCache) {
    set(K::source, "/x");
    box().reset();
    answer(Quote{u"A"_s, u""_s});
    EXPECT_EQ(cache(), "A|");
}

TEST_F(QuoteBoxTest, AnObserverMayDestroyTheBox) {
    set(K::source, "/x");
    auto holder = box();
    QObject::connect(holder.get(), &QuoteBox::quoteChanged, [&] { holder.reset(); });
    answer(Quote{u"A"_s, u"B"_s});
    EXPECT_EQ(cache(), "A|B");
}

TEST_F(QuoteBoxTest, TheLastOfTwoLoadsWins) {
    set(K::source, "/x");
    const auto one = box();
    const auto late = answer;
    const auto two = box();
    answer(Quote{u"2"_s, u"2"_s});
    late(Quote{u"1"_s, u"1"_s});
    EXPECT_EQ(cache(), "1|1");
    EXPECT_EQ(two->quote().text, "2"_L1);
}

} // namespace
