// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Gives the examples of the guide to the reader.
#include "sources/parsequote.h"
#include "tools/sourcepath.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

QString guidePage() {
    QFile file(sourcePath(u"docs/quotations.md"_s));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
}

TEST(Guide, SaysWhatIsReadFromEachExample) {
    // A block of code, and below it the quotation that it shows, or "nothing".
    static const QRegularExpression example(u"```(json|text)\n(.*?)\n```\n\n> (.+?)\n"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    const QString page = guidePage();
    int examples = 0;
    for (const QRegularExpressionMatch& match : example.globalMatch(page)) {
        const auto quote =
            parseQuote(match.captured(2).toUtf8(), [](qsizetype count) { return count - 1; });
        EXPECT_EQ(match.captured(3), quote ? quote->text + u" — "_s + quote->author : u"nothing"_s)
            << qPrintable(match.captured(2));
        ++examples;
    }
    EXPECT_EQ(examples, page.count("```json"_L1) + page.count("```text"_L1));
    EXPECT_GE(examples, 14);
}

TEST(Guide, NamesTheKeysThatAreUnderstood) {
    // The list of names in code that follows these words.
    const auto namesAfter = [page = guidePage()](const QString& words) {
        static const QRegularExpression next(uR"((?:,|\s+or)?\s+`(\w+)`)"_s);
        QStringList names;
        auto at = page.indexOf(words) + words.size();
        while (true) {
            const auto match = next.match(page, at, QRegularExpression::NormalMatch,
                                          QRegularExpression::AnchorAtOffsetMatchOption);
            if (!match.hasMatch()) {
                return names;
            }
            names.append(match.captured(1));
            at = match.capturedEnd();
        }
    };
    const auto shows = [](const QString& body) {
        const auto quote = parseQuote(body.toUtf8(), [](qsizetype) { return qsizetype{0}; });
        return quote ? quote->text + u'|' + quote->author : QString();
    };
    const QStringList texts = namesAfter(u"The text may be called"_s);
    const QStringList authors = namesAfter(u"and the author"_s);
    const QStringList wrappers = namesAfter(u"may be wrapped in"_s);
    EXPECT_EQ(texts.size(), 8);
    EXPECT_EQ(authors.size(), 6);
    EXPECT_EQ(wrappers.size(), 8);
    for (const QString& name : texts) {
        EXPECT_EQ(shows(uR"({"%1":"A"})"_s.arg(name)), "A|Unknown"_L1) << qPrintable(name);
    }
    for (const QString& name : authors) {
        EXPECT_EQ(shows(uR"({"q":"A","%1":"B"})"_s.arg(name)), "A|B"_L1) << qPrintable(name);
    }
    for (const QString& name : wrappers) {
        EXPECT_EQ(shows(uR"({"%1":[{"q":"A"}]})"_s.arg(name)), "A|Unknown"_L1) << qPrintable(name);
    }
}

} // namespace
