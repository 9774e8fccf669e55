// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/photoshowing.h"

#include "photos/bgstore.h"

#include <QCoreApplication>
#include <QThreadPool>

namespace morrowleaf {

namespace {
constexpr int beforeThumbnails = 1; // among what waits for a worker
}

struct PhotoShowing::Request {
    QString path;
    QSize pixels;
};

PhotoShowing::PhotoShowing(BGStore& photos, QObject* parent)
    : QObject(parent)
    , photos_(photos) {}

PhotoShowing::~PhotoShowing() = default;

void PhotoShowing::want(const QString& path, QSize pixels) {
    const std::shared_ptr<const Photo> photo = path.isEmpty() ? nullptr : photos_.image(path);
    readable_ = photo != nullptr;
    if (!photo || pixels.isEmpty()) {
        path_.clear();
        size_ = {};
        pixels_ = {};
        replaced_ = {};
        request_.reset();
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
    decode(path, pixels);
}

void PhotoShowing::decode(const QString& path, QSize pixels) {
    request_ = std::make_shared<Request>(Request{path, pixels});
    const std::weak_ptr<Request> wanted = request_;
    const std::shared_ptr<const Photo> photo = photos_.image(path);
    // The request lives on the main thread, with this object: a result that
    // finds it gone has nobody left to go to.
    const auto work = [this, wanted, photo, pixels] {
        if (wanted.expired()) {
            return;
        }
        const QImage image = photo->decodeFilling(pixels);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [this, wanted, image] {
                if (const std::shared_ptr<Request> request = wanted.lock()) {
                    arrived(*request, image);
                }
            },
            Qt::QueuedConnection);
    };
    photos_.workers().start(work, beforeThumbnails);
}

void PhotoShowing::arrived(const Request& request, const QImage& image) {
    if (image.isNull()) {
        photos_.markUnreadable(request.path);
        readable_ = false;
        path_.clear();
        size_ = {};
    }
    replaced_ = image.isNull() ? QImage() : pixels_;
    pixels_ = image;
    request_.reset();
    emit changed();
}

} // namespace morrowleaf
