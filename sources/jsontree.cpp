// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/jsontree.h"

#include "sources/textencoding.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <iterator>
#include <vector>

namespace morrowleaf {

namespace {

using Json = nlohmann::json;

// Iterates over a JSON text and skips what follows the second digit of every run of
// digits outside strings. The text stays grammatically the same, but contains no number
// that is too large for the parser, which rejects such numbers.
class ShortNumbers {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    ShortNumbers(const char* at, const char* end)
        : at_(at)
        , end_(end) {}

    reference operator*() const { return *at_; }
    ShortNumbers& operator++() {
        step();
        while (digits_ >= 2 && at_ != end_ && isDigit(*at_)) {
            ++at_;
        }
        return *this;
    }
    ShortNumbers operator++(int) {
        const ShortNumbers before = *this;
        ++*this;
        return before;
    }
    bool operator==(const ShortNumbers& other) const { return at_ == other.at_; }

private:
    static bool isDigit(char byte) { return byte >= '0' && byte <= '9'; }

    void step() {
        const char byte = *at_++;
        if (inString_) {
            inString_ = escaped_ || byte != '"';
            escaped_ = !escaped_ && byte == '\\';
        } else {
            inString_ = byte == '"';
            digits_ = isDigit(byte) ? digits_ + 1 : 0;
        }
    }

    const char* at_;
    const char* end_;
    int digits_ = 0;
    bool inString_ = false;
    bool escaped_ = false;
};

// The parser ends its input at a zero byte and skips a second byte order mark;
// a JSON document contains neither.
bool mayBeJson(QByteArrayView utf8) {
    return !utf8.contains('\0') && !utf8.startsWith(QByteArrayView("\xEF\xBB\xBF"));
}

} // namespace

// Builds a tree from the parser's events. The names and signatures of the
// public functions are the parser's; each returns whether to go on.
class JsonTreeBuilder {
public:
    using Kind = JsonTree::Kind;

    JsonTreeBuilder(std::span<const std::string_view> names, std::size_t entryLimit)
        : entryLimit_(entryLimit) {
        tree_.names_ = names;
    }

    bool null() { return scalar(); }
    bool boolean(bool /*value*/) { return scalar(); }
    bool number_integer(Json::number_integer_t /*value*/) { return scalar(); }
    bool number_unsigned(Json::number_unsigned_t /*value*/) { return scalar(); }
    bool number_float(Json::number_float_t /*value*/, const std::string& /*digits*/) {
        return scalar();
    }
    bool binary(Json::binary_t& /*value*/) { return false; }
    bool string(std::string& value);
    bool key(std::string& name);
    bool start_object(std::size_t /*size*/) { return startContainer(Kind::Object); }
    bool end_object() { return endContainer(); }
    bool start_array(std::size_t /*size*/) { return startContainer(Kind::ObjectList); }
    bool end_array() { return endContainer(); }
    bool parse_error(std::size_t /*position*/, const std::string& /*token*/,
                     const Json::exception& /*error*/) {
        return false;
    }

    bool overflowed() const { return overflowed_; }
    JsonTree take() { return std::move(tree_); }

private:
    static constexpr std::uint8_t noName = 255;
    static constexpr int maxDepth = 512;

    bool isWanted(Kind kind);
    bool append(Kind kind, std::size_t text, std::size_t extent);
    bool scalar();
    bool startContainer(Kind kind);
    bool endContainer();

    JsonTree tree_;
    std::vector<JsonTree::Node> open_; // the kept containers around the next value
    std::size_t entryLimit_;
    int depth_ = 0;
    int skippedFrom_ = 0; // the depth of an outermost container not kept, or 0
    std::uint8_t name_ = noName;
    bool overflowed_ = false;
};

// Whether to keep the next value. An array that turns out to contain anything but objects
// loses its kept elements.
bool JsonTreeBuilder::isWanted(Kind kind) {
    if (skippedFrom_ > 0) {
        return false;
    }
    if (open_.empty()) {
        return true;
    }
    JsonTree::Entry& around = tree_.entries_[open_.back()];
    switch (around.kind) {
    case Kind::Object:
        return name_ != noName;
    case Kind::ObjectList:
        if (kind == Kind::Object) {
            return true;
        }
        around.kind = Kind::MixedList;
        tree_.entries_.resize(open_.back() + 1);
        return false;
    default:
        return false;
    }
}

bool JsonTreeBuilder::append(Kind kind, std::size_t text, std::size_t extent) {
    if (tree_.entries_.size() >= entryLimit_) {
        overflowed_ = true;
        return false;
    }
    if (!open_.empty() && tree_.entries_[open_.back()].kind == Kind::ObjectList) {
        ++tree_.entries_[open_.back()].text;
        name_ = noName;
    }
    tree_.entries_.push_back(
        {static_cast<std::uint32_t>(text), static_cast<std::uint32_t>(extent), kind, name_});
    return true;
}

bool JsonTreeBuilder::scalar() {
    return depth_ > 0 && (!isWanted(Kind::Scalar) || append(Kind::Scalar, 0, 0));
}

bool JsonTreeBuilder::string(std::string& value) {
    if (depth_ == 0) {
        return false;
    }
    if (!isWanted(Kind::String)) {
        return true;
    }
    const std::size_t offset = tree_.bytes_.size();
    tree_.bytes_.append(value);
    return append(Kind::String, offset, value.size());
}

bool JsonTreeBuilder::key(std::string& name) {
    const auto found = std::find(tree_.names_.begin(), tree_.names_.end(), name);
    name_ = found == tree_.names_.end() ? noName
                                        : static_cast<std::uint8_t>(found - tree_.names_.begin());
    return true;
}

bool JsonTreeBuilder::startContainer(Kind kind) {
    if (++depth_ > maxDepth) {
        return false;
    }
    if (!isWanted(kind)) {
        skippedFrom_ = skippedFrom_ > 0 ? skippedFrom_ : depth_;
        return true;
    }
    const auto node = static_cast<JsonTree::Node>(tree_.entries_.size());
    if (!append(kind, 0, 0)) {
        return false;
    }
    open_.push_back(node);
    return true;
}

bool JsonTreeBuilder::endContainer() {
    const int closed = depth_--;
    if (skippedFrom_ > 0) {
        skippedFrom_ = skippedFrom_ == closed ? 0 : skippedFrom_;
        return true;
    }
    tree_.entries_[open_.back()].extent = static_cast<std::uint32_t>(tree_.entries_.size());
    open_.pop_back();
    return true;
}

JsonTree::Node JsonTree::after(Node node) const {
    const Entry& entry = entries_[node];
    const bool container = entry.kind == Kind::Object || entry.kind == Kind::ObjectList ||
                           entry.kind == Kind::MixedList;
    return container ? entry.extent : node + 1;
}

std::optional<JsonTree::Node> JsonTree::member(Node object, std::string_view name) const {
    std::optional<Node> found;
    for (Node at = object + 1; at < entries_[object].extent; at = after(at)) {
        if (names_[entries_[at].name] == name) {
            found = at;
        }
    }
    return found;
}

JsonTree::Node JsonTree::element(Node list, qsizetype index) const {
    Node at = list + 1;
    for (; index > 0; --index) {
        at = after(at);
    }
    return at;
}

QString JsonTree::string(Node node) const {
    const Entry& entry = entries_[node];
    return decodeUtf8(QByteArrayView(bytes_).sliced(entry.text, entry.extent));
}

JsonReading readJson(QByteArrayView body, std::span<const std::string_view> names,
                     std::size_t entryLimit) {
    QByteArray buffer;
    const std::optional<QByteArrayView> utf8 = jsonAsUtf8(body, buffer);
    if (!utf8 || !mayBeJson(*utf8)) {
        return {};
    }
    JsonTreeBuilder builder(names, entryLimit);
    const char* const end = utf8->data() + utf8->size();
    if (!Json::sax_parse(ShortNumbers(utf8->data(), end), ShortNumbers(end, end), &builder)) {
        return {builder.overflowed() ? JsonVerdict::TooLarge : JsonVerdict::NotJson, {}};
    }
    return {JsonVerdict::Read, builder.take()};
}

} // namespace morrowleaf
