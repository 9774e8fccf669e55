// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "photos/photoreaders.h"

#include "photos/photorequest.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace morrowleaf {

using namespace std::chrono_literals;

namespace {

constexpr auto deadline = 20s; // a slow machine decodes a large photo in less
constexpr int photosAtOnce = 2;
constexpr int largestSide = 32767; // pixels, of any QImage

ReaderWish wish(const QString& path, const QSize& size, qsizetype answerSize) {
    return {.request = photoRequest(path, size),
            .answerSize = answerSize,
            .time = deadline,
            .counted = ReaderWish::Counted::FromStart};
}

// An image in the memory of the answer.
QImage imageIn(const AnswerBytes& bytes, const QSize& size) {
    const auto release = [](void* kept) { delete static_cast<AnswerBytes*>(kept); };
    return {reinterpret_cast<const uchar*>(bytes.data.get()),
            size.width(),
            size.height(),
            size.width() * photoPixelBytes,
            QImage::Format_RGB32,
            release,
            new AnswerBytes(bytes)};
}

} // namespace

PhotoReaders::PhotoReaders(const QString& reader)
    : readers_(reader, photosAtOnce) {}

Reading PhotoReaders::decode(const QString& path, const QSize& size,
                             std::function<void(const QImage&)> done) {
    // No answer has room for a size that is no size, so there will be none.
    const bool possible = size.isValid() && std::max(size.width(), size.height()) <= largestSide;
    const qsizetype bytes =
        possible ? qsizetype{photoPixelBytes} * size.width() * size.height() : 0;
    return readers_.read(wish(path, size, bytes),
                         [size, done = std::move(done)](const AnswerBytes& answer) {
                             const bool usable = answer && areOpaque(answer.view());
                             done(usable ? imageIn(answer, size) : QImage());
                         });
}

Reading PhotoReaders::inspect(const QString& path, std::function<void(const QSize&)> done) {
    return readers_.read(wish(path, {0, 0}, photoSizeBytes),
                         [done = std::move(done)](const AnswerBytes& answer) {
                             std::array<qint32, 2> size{};
                             if (answer) {
                                 std::memcpy(size.data(), answer.data.get(), photoSizeBytes);
                             }
                             done({size[0], size[1]});
                         });
}

} // namespace morrowleaf
