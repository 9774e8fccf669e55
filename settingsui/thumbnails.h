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

// Small pictures of photos, decoded by a worker and cached at the exact size in which
// they are drawn. The destructor does not wait for a decoder. Main thread.
class Thumbnails : public QObject {
    Q_OBJECT

public:
    explicit Thumbnails(BGStore& photos, QObject* parent = nullptr);

    // The picture that fills `size` device pixels, or null. If it is null, ready() follows
    // once the picture has been decoded.
    QImage picture(const QString& path, QSize size);

signals:
    void ready(const QString& path);

private:
    struct Thumbnail {
        QSize size;
        QImage picture; // null while it is being decoded, and if that failed
        Job decoding;
    };

    void take(const QString& path, const QImage& picture);

    BGStore& photos_;
    std::unordered_map<QString, Thumbnail> thumbnails_; // by path
};

} // namespace morrowleaf
