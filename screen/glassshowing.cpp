// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/glassshowing.h"

#include "backdrop/glass.h"

namespace morrowleaf {

GlassShowing::GlassShowing(QThreadPool& workers, QObject* parent)
    : QObject(parent)
    , workers_(workers) {}

void GlassShowing::want(const QImage& picture, double devicePixelRatio) {
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
        [picture, devicePixelRatio](const std::stop_token&) {
            return makeGlass(picture, devicePixelRatio);
        },
        [this](const std::shared_ptr<const Glass>& glass) {
            glass_ = glass;
            emit made();
        });
}

} // namespace morrowleaf
