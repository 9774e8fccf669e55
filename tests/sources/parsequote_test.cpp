// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/jsontree.h"
#include "sources/parsequote.h"
#include "sources/textencoding.h"

#include <QStringEncoder>

#include <gtest/gtest.h>

#include <array>
#include <string>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

const RandomIndex first = [](qsizetype) { return qsizetype{0}; };

// "text|author", or "nothing" for std::nullopt.
std::string parsed(QByteArrayView body, const RandomIndex& random = first) {
    const std::optional<Quote> quote = parseQuote(body, random);
    return quote ? (quote->text + u'|' + quote->author).toStdString() : "nothing";
}

struct Row {
    const char* body;
    const char* result;
};

class ParseQuote : public testing::TestWithParam<Row> {};

TEST_P(ParseQuote, ReadsTheQuotation) {
    EXPECT_EQ(parsed(GetParam().body), GetParam().result) << GetParam().body;
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, ParseQuote,
    testing::Values(Row{R"([{"q":"A","a":"B","h":"<p>A</p>"}])", "A|B"},
                    Row{R"({"id":1,"quote":"A","author":"B"})", "A|B"},
                    Row{R"({"slip":{"id":7,"advice":"A"}})", "A|Unknown"},
                    Row{R"({"data":{"content":"A","author":{"name":" B "}}})", "A|B"},
                    Row{R"({"quote":{"text":"A","by":"B"}})", "A|B"},
                    Row{R"({"data":{"x":1},"q":"A"})", "nothing"},
                    Row{R"({"data":{},"q":"A"})", "nothing"},
                    Row{R"({"results":[],"q":"A"})", "A|Unknown"},
                    Row{R"({"results":["x"],"q":"A"})", "A|Unknown"},
                    Row{R"({"results":[{"q":"B"},1],"q":"A"})", "A|Unknown"},
                    Row{R"({"results":[1,{"q":"B"}],"q":"A"})", "A|Unknown"},
                    Row{R"({"data":5,"items":true,"contents":null,"q":"A"})", "A|Unknown"},
                    Row{R"({"q":"  ","text":"A"})", "A|Unknown"},
                    Row{R"({"q":5,"text":"A"})", "A|Unknown"},
                    Row{R"({"author":"","a":"B","q":"A"})", "A|B"},
                    Row{R"({"author":"C","a":"B","q":"A"})", "A|B"},
                    Row{R"({"author":{"name":"C"},"by":"B","q":"A"})", "A|B"},
                    Row{R"({"author":{"name":"C"},"by":" ","q":"A"})", "A|C"},
                    Row{R"({"author":{"name":5},"q":"A"})", "A|Unknown"},
                    Row{R"({"author":"C","data":{"q":"A"}})", "A|Unknown"},
                    Row{R"({"data":{"data":{"data":{"q":"A"}}}})", "A|Unknown"},
                    Row{R"({"data":{"data":{"data":{"data":{"q":"A"}}}}})", "nothing"},
                    Row{R"({"data":{"data":{"data":[{"q":"A"}]}}})", "A|Unknown"},
                    Row{R"({"data":{"data":{"data":{"data":[{"q":"A"}]}}}})", "nothing"},
                    Row{R"([{"data":{"q":"A"}}])", "nothing"},
                    Row{R"({"contents":{"q":"B"},"data":{"q":"A"}})", "A|Unknown"},
                    Row{R"({"quote":"A","quotes":[{"q":"B"}]})", "B|Unknown"}, Row{"[]", "nothing"},
                    Row{"{}", "nothing"}, Row{"[1,2]", "nothing"}, Row{R"(["A"])", "nothing"},
                    Row{R"([[{"q":"A"}]])", "nothing"}, Row{R"({"name":"A"})", "nothing"},
                    Row{R"({"q":"A","q":"B"})", "B|Unknown"}, Row{R"({"q":"A","q":5})", "nothing"},
                    Row{R"({"data":{"q":"A"},"data":1,"q":"B"})", "B|Unknown"},
                    Row{R"({"\u0071":"A"})", "A|Unknown"}, Row{R"({"Q":"A"})", "nothing"},
                    Row{R"({"q":"<b>","a":"<i>"})", "<b>|<i>"}));

INSTANTIATE_TEST_SUITE_P(
    Strictness, ParseQuote,
    testing::Values(Row{"Be kind.", "Be kind.|Unknown"}, Row{"  a\n b \t", "a\n b|Unknown"},
                    Row{R"("Hi")", R"("Hi"|Unknown)"}, Row{"5", "5|Unknown"},
                    Row{"true", "true|Unknown"}, Row{"null", "null|Unknown"}, Row{"", "nothing"},
                    Row{" \r\n ", "nothing"}, Row{"<p>", "nothing"}, Row{" \n<p>", "nothing"},
                    Row{R"({"q":"A"} x)", R"({"q":"A"} x|Unknown)"},
                    Row{R"({"q":"A",})", R"({"q":"A",}|Unknown)"}, Row{"[{]", "[{]|Unknown"},
                    Row{R"({q:"A"})", R"({q:"A"}|Unknown)"},
                    Row{R"({"q":'A'})", R"({"q":'A'}|Unknown)"},
                    Row{"{\"q\":\"A\nB\"}", "{\"q\":\"A\nB\"}|Unknown"},
                    Row{R"({"q":"\x"})", R"({"q":"\x"}|Unknown)"},
                    Row{R"({"q":"\ud800"})", R"({"q":"\ud800"}|Unknown)"},
                    Row{R"({"q":"\udc00"})", R"({"q":"\udc00"}|Unknown)"},
                    Row{R"({"q":"A","n":1.})", R"({"q":"A","n":1.}|Unknown)"},
                    Row{R"({"q":"A","n":01})", R"({"q":"A","n":01}|Unknown)"},
                    Row{R"({"q":"A","n":001})", R"({"q":"A","n":001}|Unknown)"},
                    Row{R"({"q":"A","n":+1})", R"({"q":"A","n":+1}|Unknown)"},
                    Row{R"({"q":"A"/**/})", R"({"q":"A"/**/}|Unknown)"},
                    Row{R"({"q":"A","n":NaN})", R"({"q":"A","n":NaN}|Unknown)"},
                    Row{R"({"q":"A","n":1e999})", "A|Unknown"},
                    Row{R"({"q":"A","n":-1.5e-99999})", "A|Unknown"},
                    Row{R"({"n":123456789012345678901234567890,"q":"A"})", "A|Unknown"},
                    Row{R"({"q":"12345 \" 678 1e999"})", R"(12345 " 678 1e999|Unknown)"},
                    Row{R"({"q":"\ud83d\ude00"})", "\xF0\x9F\x98\x80|Unknown"},
                    Row{"\xEF\xBB\xBF{\"q\":\"A\"}", "A|Unknown"},
                    Row{"\xEF\xBB\xBF\xEF\xBB\xBF[]", "\xEF\xBB\xBF\xEF\xBB\xBF[]|Unknown"},
                    Row{R"({"q":"\ufeffA"})", "\xEF\xBB\xBF"
                                              "A|Unknown"},
                    Row{"{\"q\":\"\xC2\xA0\xE2\x80\x83\xC2\x85"
                        "A\xE2\x80\x8B \"}",
                        "A\xE2\x80\x8B|Unknown"},
                    Row{"{\"q\":\"\xFF\"}", "{\"q\":\"\xEF\xBF\xBD\"}|Unknown"}));

TEST(ParseQuoteBytes, AZeroByteDoesNotEndADocument) {
    EXPECT_EQ(parsed(QByteArrayView("{\"q\":\"A\"}\0x", 11)),
              std::string("{\"q\":\"A\"}\0x|Unknown", 19));
    EXPECT_EQ(parsed(R"({"q":"A\u0000B","a\u0000":"C"})"), std::string("A\0B|Unknown", 11));
}

TEST(ParseQuoteBytes, ReadsTheWideEncodings) {
    const QString document = u"[{\"q\":\"\u00E9\u4E00\U0001F600\",\"a\":\"B\"}]"_s;
    const std::string result = "\xC3\xA9\xE4\xB8\x80\xF0\x9F\x98\x80|B";
    for (const auto encoding :
         {QStringConverter::Utf8, QStringConverter::Utf16LE, QStringConverter::Utf16BE,
          QStringConverter::Utf32LE, QStringConverter::Utf32BE}) {
        for (const auto flag :
             {QStringConverter::Flag::Default, QStringConverter::Flag::WriteBom}) {
            QStringEncoder encode(encoding, flag);
            const QByteArray body = encode(document);
            EXPECT_EQ(parsed(body), result) << encoding;
            EXPECT_NE(parsed(body + 'x'), result) << encoding;
        }
    }
    // An unpaired surrogate is not valid in any encoding.
    EXPECT_NE(parsed(QByteArrayView("[\0{\0\"\0q\0\"\0:\0\"\0\x00\xD8\"\0}\0]\0", 22)), "nothing");
}

TEST(ParseQuoteBytes, Accepts512Levels) {
    const auto nested = [](int levels) {
        return R"({"q":"A","x":)" + std::string(std::size_t(levels), '[') +
               std::string(std::size_t(levels), ']') + "}";
    };
    EXPECT_EQ(parsed(nested(511)), "A|Unknown");
    EXPECT_NE(parsed(nested(512)), "A|Unknown");
    EXPECT_EQ(parsed(std::string(std::size_t{4} << 20U, '[')), "nothing");
}

TEST(ParseQuoteBytes, DrawsOneElementOnce) {
    int draws = 0;
    const RandomIndex second = [&draws](qsizetype count) {
        ++draws;
        EXPECT_EQ(count, 3);
        return qsizetype{1};
    };
    const char* body = R"({"results":[{"q":"A"},{"x":{"q":"C"},"data":{"q":"D"}},{"q":"B"}]})";
    EXPECT_EQ(parsed(body, second), "nothing");
    EXPECT_EQ(draws, 1);
    EXPECT_EQ(parsed(body, [](qsizetype) { return qsizetype{2}; }), "B|Unknown");
}

TEST(ParseQuoteBytes, CountsPerceivedCharacters) {
    const QByteArray family = "\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x91\xA7"; // one character
    EXPECT_NE(parsed(QByteArray(599, 'a')), "nothing");
    EXPECT_EQ(parsed(QByteArray(600, 'a')), "nothing");
    EXPECT_NE(parsed("  " + QByteArray(599, 'a') + "\n"), "nothing");
    EXPECT_NE(parsed(family.repeated(599)), "nothing");
    EXPECT_EQ(parsed(family.repeated(600)), "nothing");
    EXPECT_NE(parsed("\xEF\xBB\xBF" + QByteArray(598, 'a')), "nothing"); // the mark counts
    EXPECT_EQ(parsed("\xEF\xBB\xBF" + QByteArray(599, 'a')), "nothing");
    EXPECT_NE(parsed(R"({"q":")" + QByteArray(5000, 'a') + "\"}"), "nothing");
}

TEST(Trimming, RemovesExactlyUnicodeWhitespace) {
    for (char32_t code = 1; code <= QChar::LastValidCodePoint; ++code) {
        if (QChar::isSurrogate(code)) {
            continue;
        }
        const auto category = QChar::category(code);
        const bool white =
            category == QChar::Separator_Space || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph || (code >= 0x9 && code <= 0xD) || code == 0x85;
        ASSERT_EQ(QStringView(QChar::fromUcs4(code)).trimmed().isEmpty(), white)
            << std::uint32_t(code);
    }
}

TEST(Utf8, ReplacesEachMaximalSubpart) {
    const auto decoded = [](const char* bytes) { return decodeUtf8(bytes).toStdU16String(); };
    EXPECT_EQ(decoded("a\xF1\x80\x80\xE1\x80\xC2"
                      "b\x80"
                      "c\x80\xBF"
                      "d"),
              u"a\uFFFD\uFFFD\uFFFDb\uFFFDc\uFFFD\uFFFDd");
    EXPECT_EQ(decoded("\xC0\xAF\xE0\x80\xBF\xF0\x81\x82"
                      "A"),
              u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA");
    EXPECT_EQ(decoded("\xED\xA0\x80\xED\xBF\xBF"
                      "A"),
              u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA");
    EXPECT_EQ(decoded("\xF4\x91\x92\x93\xFF"
                      "A\x80\xBF"
                      "B"),
              u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA\uFFFD\uFFFDB");
    EXPECT_EQ(decoded("\xE1\x80\xE2\xF0\x91\x92\xF1\xBF"
                      "A"),
              u"\uFFFD\uFFFD\uFFFD\uFFFDA");
    EXPECT_EQ(decoded("\xEF\xBB\xBFx\xF0\x90\x80\x80"), u"\uFEFFx\U00010000");
}

TEST(JsonTree, RejectsATreeThatWouldBeTooLarge) {
    static constexpr std::array<std::string_view, 1> names{"q"};
    EXPECT_EQ(readJson("[{},{}]", names, 3).verdict, JsonVerdict::Read);
    EXPECT_EQ(readJson("[{},{},{}]", names, 3).verdict, JsonVerdict::TooLarge);
    EXPECT_EQ(readJson("[1,{},{},{}]", names, 3).verdict, JsonVerdict::Read);
}

} // namespace
