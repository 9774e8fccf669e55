// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/jsonencoding.h"

#include <QChar>

namespace morrowleaf {

namespace {

struct Encoding {
    int unit = 1; // bytes of one code unit
    bool bigEndian = false;
    qsizetype mark = 0; // bytes of the byte order mark
};

Encoding encodingOf(QByteArrayView body) {
    if (body.startsWith(QByteArrayView("\xEF\xBB\xBF"))) {
        return {1, false, 3};
    }
    if (body.startsWith(QByteArrayView("\xFF\xFE\0\0", 4))) {
        return {4, false, 4};
    }
    if (body.startsWith(QByteArrayView("\0\0\xFE\xFF", 4))) {
        return {4, true, 4};
    }
    if (body.startsWith(QByteArrayView("\xFF\xFE"))) {
        return {2, false, 2};
    }
    if (body.startsWith(QByteArrayView("\xFE\xFF"))) {
        return {2, true, 2};
    }
    // A JSON text begins with two ASCII characters.
    if (body.size() < 4) {
        return {};
    }
    const auto zero = [body](qsizetype index) { return body[index] == '\0'; };
    if (zero(0) && zero(2)) {
        return {zero(1) ? 4 : 2, true, 0};
    }
    if (zero(1) && zero(3)) {
        return {zero(2) ? 4 : 2, false, 0};
    }
    return {};
}

char32_t unitAt(const char* at, const Encoding& encoding) {
    char32_t value = 0;
    for (int i = 0; i < encoding.unit; ++i) {
        const int index = encoding.bigEndian ? i : encoding.unit - 1 - i;
        value = (value << 8U) | static_cast<unsigned char>(at[index]);
    }
    return value;
}

void appendUtf8(QByteArray& out, char32_t code) {
    const auto byte = [&out](char32_t value) { out.append(static_cast<char>(value)); };
    if (code < 0x80) {
        byte(code);
        return;
    }
    if (code < 0x800) {
        byte(0xC0U | (code >> 6U));
    } else {
        if (code < 0x10000) {
            byte(0xE0U | (code >> 12U));
        } else {
            byte(0xF0U | (code >> 18U));
            byte(0x80U | ((code >> 12U) & 0x3FU));
        }
        byte(0x80U | ((code >> 6U) & 0x3FU));
    }
    byte(0x80U | (code & 0x3FU));
}

bool convert(QByteArrayView units, const Encoding& encoding, QByteArray& out) {
    if (units.size() % encoding.unit != 0) {
        return false;
    }
    out.reserve(encoding.unit == 2 ? units.size() + units.size() / 2 : units.size());
    const char* const end = units.data() + units.size();
    for (const char* at = units.data(); at != end; at += encoding.unit) {
        char32_t code = unitAt(at, encoding);
        if (encoding.unit == 2 && QChar::isHighSurrogate(code)) {
            at += encoding.unit;
            const char32_t low = at == end ? 0 : unitAt(at, encoding);
            if (!QChar::isLowSurrogate(low)) {
                return false;
            }
            code = QChar::surrogateToUcs4(static_cast<char16_t>(code), static_cast<char16_t>(low));
        }
        if (QChar::isSurrogate(code) || code > QChar::LastValidCodePoint) {
            return false;
        }
        appendUtf8(out, code);
    }
    return true;
}

} // namespace

std::optional<QByteArrayView> jsonAsUtf8(QByteArrayView body, QByteArray& buffer) {
    const Encoding encoding = encodingOf(body);
    const QByteArrayView text = body.sliced(encoding.mark);
    if (encoding.unit == 1) {
        return text;
    }
    if (!convert(text, encoding, buffer)) {
        return std::nullopt;
    }
    return QByteArrayView(buffer);
}

} // namespace morrowleaf
