// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QWidget>

namespace morrowleaf {

// Lies over everything in a window and lends the window an alpha, without the
// help of the window system: all widgets of a window share one backing store,
// and this one paints last.
class Veil : public QWidget {
    Q_OBJECT

public:
    explicit Veil(QWidget* window);

    // With `desktop` (device pixels of the whole window) the window stays
    // opaque, and the picture shows through instead of what lies behind.
    void setDesktop(const QImage& desktop);
    // 0...1; at 1 the veil is out of the way.
    void setAlpha(double alpha);
    double alpha() const { return alpha_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage desktop_;
    double alpha_ = 1;
};

} // namespace morrowleaf
