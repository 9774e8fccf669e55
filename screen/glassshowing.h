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

// The glass over one captured picture: made by a worker when it is first
// wanted, once for that picture, and dropped with it.
class GlassShowing : public QObject {
    Q_OBJECT

public:
    explicit GlassShowing(QThreadPool& workers, QObject* parent = nullptr);

    // The picture to look through from now on; a null one is none. Asking
    // again for the same costs nothing.
    void want(const QImage& picture, double devicePixelRatio);

    // Null until it is made.
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
