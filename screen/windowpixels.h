// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

class QPaintDevice;
class QWidget;

namespace morrowleaf {

// The pixels of a widget, for the length of one paint event: those of the
// window's own picture where it is one in memory, so that nothing is copied,
// else a picture aside that is drawn at the end.
class WindowPixels {
public:
    // `device` is what the widget is being painted on, null when unknown;
    // `origin` the widget's place on it in points.
    WindowPixels(const QWidget& widget, QPaintDevice* device, QPoint origin);

    QImage& image() { return image_; } // premultiplied, device pixel ratio set
    bool direct() const { return direct_; }
    // Before the paint event ends; `region` in points of the widget.
    void finish(QWidget& widget, const QRegion& region) const;

private:
    QImage image_;
    bool direct_ = false;
};

// The device pixels that a rectangle in points touches.
QRect devicePixels(const QRectF& points, double devicePixelRatio);

} // namespace morrowleaf
