// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/pictureloaders.h"

#include "backdrop/glass.h"
#include "photos/bgstore.h"

namespace morrowleaf {

PhotoLoader::PhotoLoader(BGStore& photos, QObject* parent)
    : QObject(parent)
    , photos_(photos) {}

void PhotoLoader::setPhoto(const QString& path, QSize pixels) {
    if (path.isEmpty() || pixels.isEmpty()) {
        readable_ = !path.isEmpty();
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
    readable_ = readable_ || path != path_;
    path_ = path;
    size_ = pixels;
    if (pixels_.size() != pixels) {
        pixels_ = {};
    }
    decoding_ =
        photos_.readers().decode(path, pixels, [this](const QImage& image) { take(image); });
}

void PhotoLoader::take(const QImage& image) {
    readable_ = !image.isNull();
    replaced_ = readable_ ? pixels_ : QImage();
    pixels_ = image;
    emit changed();
}

GlassLoader::GlassLoader(QThreadPool& workers, QObject* parent)
    : QObject(parent)
    , workers_(workers) {}

void GlassLoader::setPicture(const QImage& picture, double devicePixelRatio) {
    const qint64 key = picture.isNull() ? 0 : picture.cacheKey();
    if (key == key_ && devicePixelRatio == ratio_) {
        return;
    }
    key_ = key;
    ratio_ = devicePixelRatio;
    glass_.reset();
    if (picture.isNull()) {
        making_ = {};
        return;
    }
    making_ = Job(
        workers_,
        [picture, devicePixelRatio](const StopToken&) {
            return makeGlass(picture, devicePixelRatio);
        },
        [this](const std::shared_ptr<const Glass>& glass) {
            glass_ = glass;
            emit made();
        });
}

} // namespace morrowleaf
