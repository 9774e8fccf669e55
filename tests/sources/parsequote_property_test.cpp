// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Reads random bodies with parseQuote and with a second, simple implementation of the
// same rules that knows the document behind the body. The seed is printed;
// PARSEQUOTE_SEED sets another one.

#include "sources/parsequote.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string>
#include <utility>
#include <vector>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

struct Member;

struct Value {
    enum Type { Object, Array, Text, Other } type = Other;
    std::vector<Member> members; // as written, possibly with equal keys
    std::vector<Value> elements;
    QString text;
    std::string literal; // of Other
};

struct Member {
    std::string name;
    Value value;
};

const Value* find(const Value& object, const std::string& key) {
    const Value* found = nullptr;
    for (const auto& [name, value] : object.members) {
        if (name == key) {
            found = &value;
        }
    }
    return found;
}

// The simple implementation.

bool isWhite(QChar c) {
    const auto category = c.category();
    return category == QChar::Separator_Space || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph || c == u'\t' || c == u'\n' || c == u'\u000B' ||
           c == u'\u000C' || c == u'\r' || c == u'\u0085';
}

QString trim(QString text) {
    while (!text.isEmpty() && isWhite(text.front())) {
        text.remove(0, 1);
    }
    while (!text.isEmpty() && isWhite(text.back())) {
        text.chop(1);
    }
    return text;
}

QString textUnder(const Value& object, const std::string& key) {
    const Value* value = find(object, key);
    return value && value->type == Value::Text ? trim(value->text) : QString();
}

const Value* unwrap(const Value& value, int depth, const RandomIndex& random) {
    if (value.type == Value::Array) {
        for (const Value& element : value.elements) {
            if (element.type != Value::Object) {
                return nullptr;
            }
        }
        if (value.elements.empty()) {
            return nullptr;
        }
        return &value.elements[size_t(random(qsizetype(value.elements.size())))];
    }
    if (value.type != Value::Object) {
        return nullptr;
    }
    if (depth > 2) {
        return &value;
    }
    for (const char* key :
         {"data", "quote", "slip", "result", "results", "quotes", "items", "contents"}) {
        const Value* inner = find(value, key);
        if (inner && inner->type != Value::Text) {
            if (const Value* found = unwrap(*inner, depth + 1, random)) {
                return found;
            }
        }
    }
    return &value;
}

std::optional<Quote> quoteOf(const Value& root, const RandomIndex& random) {
    const Value* d = unwrap(root, 0, random);
    if (!d) {
        return std::nullopt;
    }
    QString text;
    for (const char* key :
         {"q", "quote", "text", "content", "body", "quoteText", "advice", "value"}) {
        text = text.isEmpty() ? textUnder(*d, key) : text;
    }
    if (text.isEmpty()) {
        return std::nullopt;
    }
    QString author;
    for (const char* key : {"a", "author", "by", "quoteAuthor", "originator", "authorSlug"}) {
        author = author.isEmpty() ? textUnder(*d, key) : author;
    }
    const Value* nested = find(*d, "author");
    if (author.isEmpty() && nested && nested->type == Value::Object) {
        author = textUnder(*nested, "name");
    }
    return Quote{text, author.isEmpty() ? u"Unknown"_s : author};
}

std::optional<Quote> plainQuote(const QString& body, int characters) {
    const QString text = trim(body);
    if (text.isEmpty() || characters > 599 || text.front() == u'<') {
        return std::nullopt;
    }
    return Quote{text, u"Unknown"_s};
}

// The random documents.

using Engine = std::mt19937;

size_t below(Engine& engine, size_t count) {
    return engine() % count;
}

bool oneIn(Engine& engine, size_t count) {
    return below(engine, count) == 0;
}

template <typename T>
const T& anyOf(Engine& engine, const std::vector<T>& choices) {
    return choices[below(engine, choices.size())];
}

const std::vector<std::string> wrappers{"data",    "quote",  "slip",  "result",
                                        "results", "quotes", "items", "contents"};
const std::vector<std::string> leaves{
    "q", "quote", "text",        "content",    "body",       "quoteText", "advice", "value", "a",
    "a", "by",    "quoteAuthor", "originator", "authorSlug", "name",      "author", "Data",  "x"};

const QString joiner = QChar(0xFEFF); // a conversion from a byte literal would drop it

// Each of these pieces is one user-perceived character.
QString randomText(Engine& engine) {
    static const std::vector<QString> pieces{
        u"A"_s,      u"B"_s,      u"<"_s,  u"\""_s,     u"\\"_s,     u"/"_s,
        u"1"_s,      u" "_s,      u"\t"_s, u"\n"_s,     u"\u00A0"_s, u"\u2003"_s,
        u"\u0085"_s, u"\u200B"_s, joiner,  u"\u2028"_s, u"\u00E9"_s, u"\u4E00"_s};
    QString text;
    for (size_t count = below(engine, 4); count > 0; --count) {
        text += anyOf(engine, pieces);
    }
    return text;
}

Value randomValue(Engine& engine, int depth);

Value randomObject(Engine& engine, int depth) {
    Value object;
    object.type = Value::Object;
    for (size_t count = below(engine, 6); count > 0; --count) {
        const bool wraps = depth < 4 && oneIn(engine, 3);
        const std::string key = anyOf(engine, wraps ? wrappers : leaves);
        Value value = randomValue(engine, depth + 1);
        object.members.push_back({key, std::move(value)});
    }
    return object;
}

Value randomArray(Engine& engine, int depth) {
    Value array;
    array.type = Value::Array;
    const bool pure = !oneIn(engine, 3);
    for (size_t count = below(engine, 4); count > 0; --count) {
        array.elements.push_back(pure ? randomObject(engine, depth + 1)
                                      : randomValue(engine, depth + 1));
    }
    return array;
}

Value randomValue(Engine& engine, int depth) {
    const size_t kind = below(engine, depth < 6 ? 10 : 4);
    if (kind >= 6) {
        return randomObject(engine, depth);
    }
    if (kind >= 4) {
        return randomArray(engine, depth);
    }
    Value value;
    if (kind > 0) {
        value.type = Value::Text;
        value.text = randomText(engine);
        return value;
    }
    value.literal = anyOf<std::string>(engine, {"0", "-1.5e+3", "true", "false", "null", "1e999"});
    return value;
}

QString written(const Value& value, Engine& engine);

QString blanks(Engine& engine) {
    return oneIn(engine, 8) ? anyOf<QString>(engine, {u" "_s, u"\n"_s, u"\t "_s, u" \n "_s})
                            : QString();
}

QString quoted(const QString& text, Engine& engine) {
    QString out = u"\""_s;
    for (const QChar c : text) {
        if (c.unicode() < 0x20 || c == u'"' || c == u'\\' || oneIn(engine, 4)) {
            out += u"\\u%1"_s.arg(c.unicode(), 4, 16, QChar(u'0'));
        } else {
            out += c;
        }
    }
    return out + u'"';
}

QString written(const Value& value, Engine& engine) {
    QStringList parts;
    switch (value.type) {
    case Value::Text:
        return quoted(value.text, engine);
    case Value::Other:
        return QString::fromStdString(value.literal);
    case Value::Array:
        for (const Value& element : value.elements) {
            parts << blanks(engine) + written(element, engine) + blanks(engine);
        }
        return u'[' + parts.join(u',') + u']';
    case Value::Object:
        for (const auto& [name, member] : value.members) {
            parts << blanks(engine) + quoted(QString::fromStdString(name), engine) +
                         blanks(engine) + u':' + blanks(engine) + written(member, engine);
        }
        return u'{' + parts.join(u',') + u'}';
    }
    return {};
}

unsigned firstSeed() {
    const char* given = std::getenv("PARSEQUOTE_SEED");
    return given ? unsigned(std::strtoul(given, nullptr, 10)) : 1;
}

std::string shown(const std::optional<Quote>& quote) {
    return quote ? (quote->text + u'|' + quote->author).toStdString() : "nothing";
}

// Both readers draw the same elements, and the same number of them.
struct Draws {
    explicit Draws(unsigned seed)
        : engine(seed) {}
    RandomIndex index() {
        return [this](qsizetype count) {
            ++made;
            return qsizetype(below(engine, size_t(count)));
        };
    }
    Engine engine;
    int made = 0;
};

class ParseQuoteProperty : public testing::Test {
protected:
    ParseQuoteProperty() {
        std::printf("seeds from %u on\n", seed);
        RecordProperty("seed", int(seed));
    }
    unsigned seed = firstSeed();
};

TEST_F(ParseQuoteProperty, AgreesWithTheSimpleImplementation) {
    int found = 0;
    int drawn = 0;
    for (const unsigned end = seed + 4000; seed != end; ++seed) {
        Engine engine(seed);
        const Value root = oneIn(engine, 4) ? randomArray(engine, 0) : randomObject(engine, 0);
        const QByteArray body = (blanks(engine) + written(root, engine) + blanks(engine)).toUtf8();
        Draws mine(seed);
        Draws theirs(seed);
        const std::optional<Quote> expected = quoteOf(root, mine.index());
        ASSERT_EQ(shown(parseQuote(body, theirs.index())), shown(expected))
            << "seed " << seed << ": " << body.toStdString();
        ASSERT_EQ(theirs.made, mine.made) << "seed " << seed << ": " << body.toStdString();
        found += expected ? 1 : 0;
        drawn += mine.made;
    }
    // Documents without a quotation prove little.
    EXPECT_GT(found, 400);
    EXPECT_GT(drawn, 400);
}

TEST_F(ParseQuoteProperty, ReadsBrokenDocumentsAsPlainText) {
    int found = 0;
    for (const unsigned end = seed + 2000; seed != end; ++seed) {
        Engine engine(seed);
        QString text = written(randomObject(engine, 0), engine);
        switch (below(engine, 4)) {
        case 0:
            text.chop(1);
            break;
        case 1:
            text += anyOf<QString>(engine, {u"x"_s, u"}"_s, u"[]"_s, u","_s, u"\\"_s});
            break;
        case 2:
            text.insert(1, u',');
            break;
        default:
            text.prepend(anyOf<QString>(
                engine, {u"<"_s, u"x"_s, u","_s, u"\u00A0"_s + joiner, u"\u2003x"_s}));
        }
        const std::optional<Quote> expected = plainQuote(text, int(trim(text).size()));
        Draws draws(seed);
        ASSERT_EQ(shown(parseQuote(text.toUtf8(), draws.index())), shown(expected))
            << "seed " << seed << ": " << text.toStdString();
        ASSERT_EQ(draws.made, 0);
        found += expected ? 1 : 0;
    }
    EXPECT_GT(found, 400);
}

TEST_F(ParseQuoteProperty, CountsPerceivedCharactersOfPlainText) {
    const std::vector<QString> characters{u"a"_s,
                                          u"e\u0301"_s,
                                          u"\u0928\u093F"_s,
                                          u"\r\n"_s,
                                          u"\U0001F600"_s,
                                          u"\U0001F469\u200D\U0001F467"_s,
                                          joiner,
                                          u"\U0001F1E9\U0001F1EA"_s,
                                          u"\u1100\u1161\u11A8"_s};
    int kept = 0;
    int refused = 0;
    for (const unsigned end = seed + 400; seed != end; ++seed) {
        Engine engine(seed);
        const int count = 590 + int(below(engine, 20));
        QString text = u"-"_s; // neither end is blank
        for (int i = 0; i < count - 2; ++i) {
            text += anyOf(engine, characters);
        }
        text += u'-';
        const QByteArray body = ("\n "_L1 + text + u"\u2003"_s).toUtf8();
        const std::optional<Quote> expected = plainQuote(text, count);
        ASSERT_EQ(shown(parseQuote(body, [](qsizetype) { return qsizetype{0}; })), shown(expected))
            << "seed " << seed;
        ++(expected ? kept : refused);
    }
    EXPECT_GT(kept, 100);
    EXPECT_GT(refused, 100);
}

} // namespace
