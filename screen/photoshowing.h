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

// The photo of one quote screen: decoded by a worker at the size shown, its
// pixels kept while it is wanted and dropped after.
class PhotoShowing : public QObject {
    Q_OBJECT

public:
    explicit PhotoShowing(BGStore& photos, QObject* parent = nullptr);

    // What to show from now on, and how large in device pixels; an empty path
    // is no photo. Asking again for the same costs nothing.
    void want(const QString& path, QSize pixels);

    // A photo is wanted and nothing says yet that it cannot be read.
    bool readable() const { return readable_; }
    // Null until the pixels are there. A photo that takes another's place
    // lets the old one stand until then.
    const QImage& pixels() const { return pixels_; }
    // The pixels whose place these took, until they are let go.
    const QImage& replaced() const { return replaced_; }
    void dropReplaced() { replaced_ = {}; }

signals:
    // The pixels have come, or the photo has turned out to be unreadable.
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
