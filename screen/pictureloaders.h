// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/job.h"
#include "platform/readers.h"

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>

#include <memory>

class QThreadPool;

namespace morrowleaf {

class BGStore;
struct Glass;

// The photo of one quote screen. A reader program decodes it at the size shown, and its
// pixels are kept while it is wanted. A photo that cannot be decoded is tried again when
// it is wanted anew.
class PhotoLoader : public QObject {
    Q_OBJECT

public:
    explicit PhotoLoader(BGStore& photos, QObject* parent = nullptr);

    // Sets the photo to show and its size in device pixels; an empty path means
    // no photo. Repeating a call does not decode the photo again.
    void setPhoto(const QString& path, QSize pixels);

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
    Reading decoding_;
};

// The glass for one captured picture: made on a worker thread when it is first
// wanted, and released as soon as another picture or none is wanted.
class GlassLoader : public QObject {
    Q_OBJECT

public:
    explicit GlassLoader(QThreadPool& workers, QObject* parent = nullptr);

    // Sets the picture to show through glass; a null picture means none.
    // Repeating a call with the same picture and ratio has no effect.
    void setPicture(const QImage& picture, double devicePixelRatio);

    // Null until made() has been emitted for the wanted picture.
    const std::shared_ptr<const Glass>& glass() const { return glass_; }

signals:
    void made();

private:
    QThreadPool& workers_;
    qint64 key_ = 0;
    double ratio_ = 0;
    std::shared_ptr<const Glass> glass_;
    Job making_;
};

} // namespace morrowleaf
