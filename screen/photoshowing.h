// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/job.h"

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>

namespace morrowleaf {

class BGStore;

// The photo of one quote screen. It is decoded on a worker thread at the size
// shown, and its pixels are kept while it is wanted.
class PhotoShowing : public QObject {
    Q_OBJECT

public:
    explicit PhotoShowing(BGStore& photos, QObject* parent = nullptr);

    // Sets the photo to show and its size in device pixels; an empty path means
    // no photo. Repeating a call does not decode the photo again.
    void want(const QString& path, QSize pixels);

    // Whether a photo is wanted and has not turned out to be unreadable.
    bool readable() const { return readable_; }
    // Null until the photo is decoded. When a photo replaces another of the same
    // size, the old pixels remain until then.
    const QImage& pixels() const { return pixels_; }
    // The pixels that pixels() has replaced; null after dropReplaced().
    const QImage& replaced() const { return replaced_; }
    void dropReplaced() { replaced_ = {}; }

signals:
    // The photo has been decoded, or has turned out to be unreadable.
    void changed();

private:
    void take(const QImage& image);

    BGStore& photos_;
    bool readable_ = false;
    QString path_;
    QSize size_;
    QImage pixels_;
    QImage replaced_;
    Job decoding_;
};

} // namespace morrowleaf
