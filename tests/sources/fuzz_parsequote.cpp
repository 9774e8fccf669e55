// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/parsequote.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

// Any bytes give either std::nullopt or a quotation whose text and author are trimmed and
// not blank.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArrayView body(data, static_cast<qsizetype>(size));
    qsizetype drawn = 0;
    const auto quote = morrowleaf::parseQuote(body, [&](qsizetype count) {
        if (count < 1 || ++drawn > 1) {
            std::abort();
        }
        return (count - 1) / 2;
    });
    if (quote &&
        (quote->text.isEmpty() || quote->author.isEmpty() || quote->text != quote->text.trimmed() ||
         quote->author != quote->author.trimmed() || !quote->text.isValidUtf16() ||
         !quote->author.isValidUtf16())) {
        std::abort();
    }
    return 0;
}
