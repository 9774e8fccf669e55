// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/pictureloaders.h"

#include "backdrop/glass.h"
#include "photos/bgstore.h"

namespace morrowleaf {

namespace {
constexpr int beforeThumbnails = 1; // priority of the job
}

PhotoLoader::PhotoLoader(BGStore& photos, QObject* parent)
    : QObject(parent)
    , photos_(photos) {
    photos_.forgetFailures(); // each showing tries again
}

void PhotoLoader::setPhoto(const QString& path, QSize pixels) {
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
        [photo, pixels](const StopToken&) { return photo->decodeFilling(pixels); },
        [this](const QImage& image) { take(image); }, beforeThumbnails);
}

void PhotoLoader::take(const QImage& image) {
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
