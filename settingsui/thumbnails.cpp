// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/thumbnails.h"

#include "photos/bgstore.h"

#include <QFutureWatcher>
#include <QPromise>

namespace morrowleaf {

Thumbnails::Thumbnails(BGStore& photos, QObject* parent)
    : QObject(parent)
    , photos_(photos) {}

QImage Thumbnails::picture(const QString& path, QSize size) {
    if (const auto known = pictures_.constFind(path);
        known != pictures_.cend() && known->first == size) {
        return known->second;
    }
    if (wanted_.value(path) == size) {
        return {};
    }
    const auto photo = photos_.image(path);
    if (!photo) {
        return {};
    }
    wanted_.insert(path, size);
    auto promise = std::make_shared<QPromise<QImage>>();
    auto* watcher = new QFutureWatcher<QImage>(this);
    connect(watcher, &QFutureWatcher<QImage>::finished, this, [this, watcher, path, size] {
        watcher->deleteLater();
        finish(path, size, watcher->result());
    });
    watcher->setFuture(promise->future());
    promise->start();
    photos_.workers().start([promise, photo, size] {
        promise->addResult(photo->decodeFilling(size));
        promise->finish();
    });
    return {};
}

void Thumbnails::finish(const QString& path, QSize size, const QImage& picture) {
    if (picture.isNull()) {
        photos_.markUnreadable(path);
    }
    if (wanted_.value(path) == size) {
        wanted_.remove(path);
        pictures_.insert(path, {size, picture});
        emit ready(path);
    }
}

} // namespace morrowleaf
