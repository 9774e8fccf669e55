// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/thumbnails.h"

#include "photos/bgstore.h"

namespace morrowleaf {

Thumbnails::Thumbnails(BGStore& photos, QObject* parent)
    : QObject(parent)
    , photos_(photos) {}

QImage Thumbnails::picture(const QString& path, QSize size) {
    if (const auto known = thumbnails_.find(path);
        known != thumbnails_.end() && known->second.size == size) {
        return known->second.picture;
    }
    const auto photo = photos_.image(path);
    if (!photo) {
        return {};
    }
    const auto decode = [photo, size](const std::stop_token&) {
        return photo->decodeFilling(size);
    };
    const auto done = [this, path](const QImage& picture) { take(path, picture); };
    thumbnails_[path] = {size, {}, Job(photos_.workers(), decode, done)};
    return {};
}

void Thumbnails::take(const QString& path, const QImage& picture) {
    if (picture.isNull()) {
        photos_.markUnreadable(path);
    }
    thumbnails_[path].picture = picture;
    emit ready(path);
}

} // namespace morrowleaf
