// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/photoshowing.h"

#include "photos/bgstore.h"

namespace morrowleaf {

namespace {
constexpr int beforeThumbnails = 1; // priority of the job
}

PhotoShowing::PhotoShowing(BGStore& photos, QObject* parent)
    : QObject(parent)
    , photos_(photos) {}

void PhotoShowing::want(const QString& path, QSize pixels) {
    const std::shared_ptr<const Photo> photo = path.isEmpty() ? nullptr : photos_.image(path);
    readable_ = photo != nullptr;
    if (!photo || pixels.isEmpty()) {
        path_.clear();
        size_ = {};
        pixels_ = {};
        replaced_ = {};
        decoding_ = {};
        return;
    }
    if (path == path_ && pixels == size_) {
        return;
    }
    path_ = path;
    size_ = pixels;
    if (pixels_.size() != pixels) {
        pixels_ = {};
    }
    decoding_ = Job(
        photos_.workers(),
        [photo, pixels](const std::stop_token&) { return photo->decodeFilling(pixels); },
        [this](const QImage& image) { take(image); }, beforeThumbnails);
}

void PhotoShowing::take(const QImage& image) {
    if (image.isNull()) {
        photos_.markUnreadable(path_);
        readable_ = false;
        path_.clear();
        size_ = {};
    }
    replaced_ = image.isNull() ? QImage() : pixels_;
    pixels_ = image;
    emit changed();
}

} // namespace morrowleaf
