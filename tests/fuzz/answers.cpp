// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/backdrop.h"
#include "photos/photorequest.h"
#include "sources/quoteanswer.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

using namespace morrowleaf;

namespace {

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

bool isText(const QString& text) {
    return !text.isEmpty() && text.isValidUtf16();
}

void readQuotation(QByteArrayView answer) {
    const auto quote = readQuoteAnswer(answer);
    if (!quote) {
        return;
    }
    require(isText(quote->text) && isText(quote->author));
    // As long as each code unit of both can be in UTF-8.
    std::vector<char> again(
        static_cast<std::size_t>(3 * (quote->text.size() + quote->author.size()) + 2));
    require(writeQuoteAnswer(*quote, again));
    const QByteArrayView bytes(again.data(), static_cast<qsizetype>(again.size()));
    const auto same = readQuoteAnswer(bytes);
    require(same && same->text == quote->text && same->author == quote->author);
}

void drawPixels(QByteArrayView answer) {
    static BackdropPainter painter;
    constexpr QSize size(16, 9);
    QImage photo(size, QImage::Format_RGB32);
    if (answer.size() < photo.sizeInBytes() || !areOpaque(answer.first(photo.sizeInBytes()))) {
        return;
    }
    std::memcpy(photo.bits(), answer.data(), static_cast<std::size_t>(photo.sizeInBytes()));
    BackdropState state;
    state.palette = Palette::photo();
    state.hasPhoto = true;
    state.photo = photo;
    QImage target(size, QImage::Format_ARGB32_Premultiplied);
    painter.paint(target, target.rect(), state, 0);
    for (int y = 0; y < target.height(); ++y) {
        for (int x = 0; x < target.width(); ++x) {
            require(qAlpha(target.pixel(x, y)) == 255);
        }
    }
}

} // namespace

// Whatever a reader that has been taken over answers is a quotation, a picture or nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray answer(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    readQuotation(answer);
    drawPixels(answer);
    const auto request = parsePhotoRequest(answer);
    if (request && request->path.isValidUtf16()) {
        const auto same = parsePhotoRequest(photoRequest(request->path, request->size));
        require(same && same->path == request->path && same->size == request->size);
    }
    return 0;
}
