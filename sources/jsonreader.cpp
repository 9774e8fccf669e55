// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/jsonbuilder.h"
#include "sources/jsonencoding.h"
#include "sources/shortnumbers.h"

#include <nlohmann/json.hpp>

namespace morrowleaf {

namespace {

using Json = nlohmann::json;

// The names and signatures are the reader's.
struct Events {
    JsonTreeBuilder& builder;

    bool null() { return builder.scalar(); }
    bool boolean(bool /*value*/) { return builder.scalar(); }
    bool number_integer(Json::number_integer_t /*value*/) { return builder.scalar(); }
    bool number_unsigned(Json::number_unsigned_t /*value*/) { return builder.scalar(); }
    bool number_float(Json::number_float_t /*value*/, const std::string& /*digits*/) {
        return builder.scalar();
    }
    bool string(std::string& value) { return builder.string(value); }
    bool binary(Json::binary_t& /*value*/) { return false; }
    bool start_object(std::size_t /*size*/) {
        return builder.startContainer(JsonTree::Kind::Object);
    }
    bool key(std::string& name) { return builder.key(name); }
    bool end_object() { return builder.endContainer(); }
    bool start_array(std::size_t /*size*/) {
        return builder.startContainer(JsonTree::Kind::ObjectList);
    }
    bool end_array() { return builder.endContainer(); }
    bool parse_error(std::size_t /*position*/, const std::string& /*token*/,
                     const Json::exception& /*error*/) {
        return false;
    }
};

// The reader takes a zero byte for the end of its input and skips a second
// byte order mark; neither belongs into a JSON document.
bool mayBeJson(QByteArrayView utf8) {
    return !utf8.contains('\0') && !utf8.startsWith(QByteArrayView("\xEF\xBB\xBF"));
}

} // namespace

JsonReading readJson(QByteArrayView body, std::span<const std::string_view> names,
                     std::size_t entryLimit) {
    QByteArray buffer;
    const std::optional<QByteArrayView> utf8 = jsonAsUtf8(body, buffer);
    if (!utf8 || !mayBeJson(*utf8)) {
        return {};
    }
    JsonTreeBuilder builder(names, entryLimit);
    Events events{builder};
    const char* const end = utf8->data() + utf8->size();
    if (!Json::sax_parse(ShortNumbers(utf8->data(), end), ShortNumbers(end, end), &events)) {
        return {builder.overflowed() ? JsonVerdict::TooLarge : JsonVerdict::NotJson, {}};
    }
    return {JsonVerdict::Read, builder.take()};
}

} // namespace morrowleaf
