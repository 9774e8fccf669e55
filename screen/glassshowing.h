// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/job.h"

#include <QImage>
#include <QObject>

#include <memory>

class QThreadPool;

namespace morrowleaf {

struct Glass;

// The glass for one captured picture: made on a worker thread when it is first
// wanted, and released as soon as another picture or none is wanted.
class GlassShowing : public QObject {
    Q_OBJECT

public:
    explicit GlassShowing(QThreadPool& workers, QObject* parent = nullptr);

    // Sets the picture to show through glass; a null picture means none.
    // Repeating a call with the same picture and ratio has no effect.
    void want(const QImage& picture, double devicePixelRatio);

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
