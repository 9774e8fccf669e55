// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/parsequote.h"
#include "sources/sourcebytes.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace morrowleaf;

namespace {

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

bool isTrimmedText(const QString& text) {
    return !text.isEmpty() && text == text.trimmed() && text.isValidUtf16();
}

} // namespace

// Any body of a source gives either nothing or a quotation whose text and author are
// trimmed and not blank; unpacking it keeps within its limit.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray body(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    qsizetype drawn = 0;
    const auto quote = parseQuote(body, [&](qsizetype count) {
        require(count > 0 && ++drawn == 1);
        return (count - 1) / 2;
    });
    require(!quote || (isTrimmedText(quote->text) && isTrimmedText(quote->author)));
    constexpr qsizetype limit = 100'000;
    for (const char* encoding : {"gzip", "deflate"}) {
        const auto unpacked = unpack(body, encoding, limit);
        require(!unpacked || unpacked->size() <= limit);
    }
    return 0;
}
