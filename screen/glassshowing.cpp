// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/glassshowing.h"

#include "backdrop/glass.h"

#include <QCoreApplication>
#include <QThreadPool>

namespace morrowleaf {

GlassShowing::GlassShowing(QThreadPool& workers, QObject* parent)
    : QObject(parent)
    , workers_(workers) {}

GlassShowing::~GlassShowing() = default;

void GlassShowing::want(const QImage& picture, double devicePixelRatio) {
    const qint64 key = picture.isNull() ? 0 : picture.cacheKey();
    if (key == key_ && devicePixelRatio == ratio_) {
        return;
    }
    key_ = key;
    ratio_ = devicePixelRatio;
    glass_.reset();
    request_.reset();
    if (picture.isNull()) {
        return;
    }
    request_ = std::make_shared<Request>();
    // The request lives on the main thread, with this object: a result that
    // finds it gone has nobody left to go to.
    const std::weak_ptr<Request> wanted = request_;
    workers_.start([this, wanted, picture, devicePixelRatio] {
        if (wanted.expired()) {
            return;
        }
        const std::shared_ptr<const Glass> glass = makeGlass(picture, devicePixelRatio);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [this, wanted, glass] {
                if (wanted.expired()) {
                    return;
                }
                request_.reset();
                glass_ = glass;
                emit made();
            },
            Qt::QueuedConnection);
    });
}

} // namespace morrowleaf
