// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/utf8.h"

#include <QChar>

namespace morrowleaf {

namespace {

struct Lead {
    int more = 0; // continuation bytes that have to follow; -1: no lead byte
    unsigned char low = 0x80;
    unsigned char high = 0xBF; // range of the first of them
};

// The well-formed sequences of the Unicode Standard, table 3-7.
Lead leadOf(unsigned char byte) {
    if (byte < 0x80) {
        return {0};
    }
    if (byte < 0xC2 || byte > 0xF4) {
        return {-1};
    }
    if (byte < 0xE0) {
        return {1};
    }
    switch (byte) {
    case 0xE0:
        return {2, 0xA0, 0xBF};
    case 0xED:
        return {2, 0x80, 0x9F};
    case 0xF0:
        return {3, 0x90, 0xBF};
    case 0xF4:
        return {3, 0x80, 0x8F};
    default:
        return {byte < 0xF0 ? 2 : 3};
    }
}

constexpr char32_t payloadOfLead(unsigned char byte, int more) {
    return more == 0 ? byte : byte & (0x3FU >> more);
}

} // namespace

QString decodeUtf8(QByteArrayView bytes) {
    QString text;
    text.resize(bytes.size()); // no sequence gives more units than it has bytes
    QChar* const start = text.data();
    QChar* out = start;
    const auto* at = reinterpret_cast<const unsigned char*>(bytes.data());
    const auto* const end = at + bytes.size();
    while (at != end) {
        const unsigned char first = *at++;
        auto [more, low, high] = leadOf(first);
        char32_t code =
            more < 0 ? char32_t{QChar::ReplacementCharacter} : payloadOfLead(first, more);
        for (; more > 0; --more) {
            if (at == end || *at < low || *at > high) {
                code = QChar::ReplacementCharacter;
                break;
            }
            code = (code << 6U) | (*at++ & 0x3FU);
            low = 0x80;
            high = 0xBF;
        }
        if (QChar::requiresSurrogates(code)) {
            *out++ = QChar(QChar::highSurrogate(code));
            *out++ = QChar(QChar::lowSurrogate(code));
        } else {
            *out++ = QChar(static_cast<char16_t>(code));
        }
    }
    text.resize(out - start);
    return text;
}

} // namespace morrowleaf
