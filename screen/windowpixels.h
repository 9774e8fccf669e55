// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QRegion>

class QPaintDevice;
class QWidget;

namespace morrowleaf {

// The pixels of a widget during one paint event. They are those of the window's
// backing store where that is an image in memory, so that nothing is copied;
// otherwise those of a separate image that finish() draws.
class WindowPixels {
public:
    // `device` is the device that the widget is being painted on, null if
    // unknown; `origin` is the widget's position on it in points.
    WindowPixels(const QWidget& widget, QPaintDevice* device, QPoint origin);

    QImage& image() { return image_; } // premultiplied, device pixel ratio set
    // Whether image() is the backing store itself.
    bool direct() const { return direct_; }
    // Call it at the end of the paint event. `region` is in points of the widget.
    void finish(QWidget& widget, const QRegion& region) const;

private:
    QImage image_;
    bool direct_ = false;
};

// The device pixels that a rectangle in points touches.
QRect devicePixels(const QRectF& points, double devicePixelRatio);
// The points that a region of device pixels touches.
QRegion inPoints(const QRegion& pixels, double devicePixelRatio);
// Widens a region in points so that its edges do not cut through a device pixel. For
// every ratio that is a multiple of 0.05, 20 points are a whole number of pixels.
QRegion onWholePixels(const QRegion& region, double devicePixelRatio);

} // namespace morrowleaf
