// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/textencoding.h"

#include <unicode/ucnv.h>
#include <unicode/ustring.h>

#include <memory>

namespace morrowleaf {

namespace {

struct Encoding {
    const char* name = nullptr; // ICU's; null for UTF-8
    qsizetype mark = 0;         // bytes of the byte order mark
};

Encoding encodingOf(QByteArrayView body) {
    if (body.startsWith(QByteArrayView("\xEF\xBB\xBF"))) {
        return {nullptr, 3};
    }
    if (body.startsWith(QByteArrayView("\xFF\xFE\0\0", 4))) {
        return {"UTF-32LE", 4};
    }
    if (body.startsWith(QByteArrayView("\0\0\xFE\xFF", 4))) {
        return {"UTF-32BE", 4};
    }
    if (body.startsWith(QByteArrayView("\xFF\xFE"))) {
        return {"UTF-16LE", 2};
    }
    if (body.startsWith(QByteArrayView("\xFE\xFF"))) {
        return {"UTF-16BE", 2};
    }
    // A JSON array or object begins with two ASCII characters.
    if (body.size() < 4) {
        return {};
    }
    const auto zero = [body](qsizetype index) { return body[index] == '\0'; };
    if (zero(0) && zero(2)) {
        return {zero(1) ? "UTF-32BE" : "UTF-16BE", 0};
    }
    if (zero(1) && zero(3)) {
        return {zero(2) ? "UTF-32LE" : "UTF-16LE", 0};
    }
    return {};
}

// Returns false if `text` is ill-formed.
bool convertToUtf8(QByteArrayView text, const char* encoding, QByteArray& out) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UConverter, decltype(&ucnv_close)> converter(ucnv_open(encoding, &status),
                                                                       ucnv_close);
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                        &status);
    // Two bytes of UTF-16 become at most three bytes, four bytes of either encoding at most
    // four.
    out.resize(text.size() + text.size() / 2);
    const int32_t size =
        ucnv_toAlgorithmic(UCNV_UTF8, converter.get(), out.data(), static_cast<int32_t>(out.size()),
                           text.data(), static_cast<int32_t>(text.size()), &status);
    out.truncate(size);
    return U_SUCCESS(status);
}

} // namespace

QString decodeUtf8(QByteArrayView bytes) {
    QString text(bytes.size(), Qt::Uninitialized); // no byte becomes more than one UTF-16 code unit
    int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8WithSub(reinterpret_cast<UChar*>(text.data()), static_cast<int32_t>(text.size()),
                         &length, bytes.data(), static_cast<int32_t>(bytes.size()),
                         QChar::ReplacementCharacter, nullptr, &status);
    text.truncate(length);
    return text;
}

std::optional<QByteArrayView> jsonAsUtf8(QByteArrayView body, QByteArray& buffer) {
    const Encoding encoding = encodingOf(body);
    const QByteArrayView text = body.sliced(encoding.mark);
    if (!encoding.name) {
        return text;
    }
    if (!convertToUtf8(text, encoding.name, buffer)) {
        return std::nullopt;
    }
    return QByteArrayView(buffer);
}

} // namespace morrowleaf
