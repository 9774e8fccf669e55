// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/job.h"

#include <QImage>
#include <QObject>
#include <QString>

#include <unordered_map>

namespace morrowleaf {

class BGStore;

// Small pictures of photos, decoded in a worker and kept, at the exact size
// that they are drawn in. Going away does not wait for a decoding that runs.
class Thumbnails : public QObject {
    Q_OBJECT

public:
    explicit Thumbnails(BGStore& photos, QObject* parent = nullptr);

    // The picture filling `size` device pixels, or null: then ready() follows,
    // unless the photo cannot be read.
    QImage picture(const QString& path, QSize size);

signals:
    void ready(const QString& path);

private:
    struct Thumbnail {
        QSize size;
        QImage picture; // null while it is decoded, and where that failed
        Job decoding;
    };

    void take(const QString& path, const QImage& picture);

    BGStore& photos_;
    std::unordered_map<QString, Thumbnail> thumbnails_; // by path
};

} // namespace morrowleaf
