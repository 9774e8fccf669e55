// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/parsequote.h"

#include "base/graphemes.h"
#include "sources/jsontree.h"
#include "sources/textencoding.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace morrowleaf {

namespace {

using Kind = JsonTree::Kind;
using Node = JsonTree::Node;
using namespace Qt::Literals::StringLiterals;
using namespace std::string_view_literals;

// In the order in which they are tried. "quote" is in two lists: with an object it is a
// wrapper, with a string it is the text.
constexpr std::array containerKeys{"data"sv,    "quote"sv,  "slip"sv,  "result"sv,
                                   "results"sv, "quotes"sv, "items"sv, "contents"sv};
constexpr std::array textKeys{"q"sv,    "quote"sv,     "text"sv,   "content"sv,
                              "body"sv, "quoteText"sv, "advice"sv, "value"sv};
constexpr std::array authorKeys{"a"sv,           "author"sv,     "by"sv,
                                "quoteAuthor"sv, "originator"sv, "authorSlug"sv};
constexpr std::string_view authorObject = "author";
constexpr std::string_view authorName = "name";

constexpr int deepestUnwrapped = 2;
constexpr int plainTextLimit = 599; // user-perceived characters

constexpr auto keptNames = [] {
    std::array<std::string_view, containerKeys.size() + textKeys.size() + authorKeys.size() + 1>
        all;
    auto next = std::copy(containerKeys.begin(), containerKeys.end(), all.begin());
    next = std::copy(textKeys.begin(), textKeys.end(), next);
    next = std::copy(authorKeys.begin(), authorKeys.end(), next);
    *next = authorName;
    return all;
}();

bool leadsToObject(const JsonTree& tree, Node node) {
    return tree.kind(node) == Kind::Object ||
           (tree.kind(node) == Kind::ObjectList && tree.count(node) > 0);
}

std::optional<Node> container(const JsonTree& tree, Node object) {
    for (const std::string_view key : containerKeys) {
        const std::optional<Node> value = tree.member(object, key);
        if (value && leadsToObject(tree, *value)) {
            return value;
        }
    }
    return std::nullopt;
}

// The object that contains the quotation: the root, or the object that its wrappers lead
// to.
std::optional<Node> unwrap(const JsonTree& tree, const RandomIndex& random) {
    Node node = 0;
    if (!leadsToObject(tree, node)) {
        return std::nullopt;
    }
    for (int depth = 0; tree.kind(node) == Kind::Object && depth <= deepestUnwrapped; ++depth) {
        const std::optional<Node> inner = container(tree, node);
        if (!inner) {
            break;
        }
        node = *inner;
    }
    if (tree.kind(node) == Kind::ObjectList) {
        return tree.element(node, random(tree.count(node))); // not unwrapped any further
    }
    return node;
}

QString trimmedString(const JsonTree& tree, std::optional<Node> node) {
    return node && tree.kind(*node) == Kind::String ? tree.string(*node).trimmed() : QString();
}

template <std::size_t count>
QString firstText(const JsonTree& tree, Node object,
                  const std::array<std::string_view, count>& keys) {
    for (const std::string_view key : keys) {
        QString text = trimmedString(tree, tree.member(object, key));
        if (!text.isEmpty()) {
            return text;
        }
    }
    return {};
}

QString authorOf(const JsonTree& tree, Node object) {
    QString author = firstText(tree, object, authorKeys);
    const std::optional<Node> nested = tree.member(object, authorObject);
    if (author.isEmpty() && nested && tree.kind(*nested) == Kind::Object) {
        author = trimmedString(tree, tree.member(*nested, authorName));
    }
    return author.isEmpty() ? u"Unknown"_s : author;
}

std::optional<Quote> quoteIn(const JsonTree& tree, const RandomIndex& random) {
    const std::optional<Node> object = unwrap(tree, random);
    if (!object) {
        return std::nullopt;
    }
    const QString text = firstText(tree, *object, textKeys);
    if (text.isEmpty()) {
        return std::nullopt;
    }
    return Quote{text, authorOf(tree, *object)};
}

std::optional<Quote> plainText(QByteArrayView body) {
    const QString text = decodeUtf8(body).trimmed();
    if (text.isEmpty() || text.startsWith(u'<') || hasMoreCharacters(text, plainTextLimit)) {
        return std::nullopt;
    }
    return Quote{text, u"Unknown"_s};
}

} // namespace

std::optional<Quote> parseQuote(QByteArrayView body, const RandomIndex& random) {
    const JsonReading reading = readJson(body, keptNames);
    switch (reading.verdict) {
    case JsonVerdict::Read:
        return quoteIn(reading.tree, random);
    case JsonVerdict::NotJson:
        return plainText(body);
    case JsonVerdict::TooLarge:
        break;
    }
    return std::nullopt;
}

} // namespace morrowleaf
