// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "quotes/collection.h"

#include <QCryptographicHash>
#include <QSet>
#include <gtest/gtest.h>

#include <algorithm>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Collection, HoldsEveryTextAndCreditInOrder) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const Quote quote : quotes) {
        hash.addData((quote.text + u'\t' + quote.author + u'\n').toUtf8());
    }
    EXPECT_EQ(hash.result().toHex(),
              QByteArray("a3edf82be5f698acf5692145fa0020a7108d423bc93aa0811bcc6590f82c33a4"));
}

TEST(Collection, BeginsAndEndsWithTheGivenQuotations) {
    ASSERT_EQ(quotes.size(), 124u);
    EXPECT_EQ(quotes[0].text, "The wound is the place where the light enters you."_L1);
    EXPECT_EQ(quotes[0].author, "Rumi"_L1);
    EXPECT_EQ(quotes[123].text,
              "Knowing is not enough; we must apply. Willing is not enough; we must do."_L1);
}

TEST(Collection, CreditsFiftyEightPeopleAndThreeTraditions) {
    QSet<QString> people;
    int credited = 0;
    QStringList traditions;
    for (const Quote quote : quotes) {
        if (quote.author.endsWith(u" Proverb"_s)) {
            traditions.append(quote.author);
        } else {
            people.insert(quote.author);
            ++credited;
        }
    }
    EXPECT_EQ(credited, 120);
    EXPECT_EQ(people.size(), 58);
    traditions.sort();
    EXPECT_EQ(traditions, (QStringList{u"Chinese Proverb"_s, u"Japanese Proverb"_s,
                                       u"Japanese Proverb"_s, u"Zen Proverb"_s}));
}

TEST(Collection, IsPlainPrintableAscii) {
    const auto plain = [](QLatin1StringView text) {
        return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](char character) {
            return character >= 0x20 && character < 0x7F && character != '"';
        });
    };
    for (const BuiltinQuote& quote : quotes) {
        EXPECT_TRUE(plain(quote.text)) << quote.text.data();
        EXPECT_TRUE(plain(quote.author)) << quote.author.data();
    }
}

} // namespace
