// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/quotepicture.h"

#include "screen/frameclock.h"
#include "screen/quoteview.h"
#include "screen/windowpixels.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace morrowleaf {

namespace {

constexpr double tickSlack = 1.05; // because timers are late

void copyPixels(QImage& to, const QImage& from, const QRegion& region) {
    uchar* const bits = to.bits();
    for (const QRect& rect : region) {
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            std::memcpy(bits + y * to.bytesPerLine() + rect.left() * 4,
                        from.constScanLine(y) + rect.left() * 4,
                        static_cast<std::size_t>(rect.width()) * 4);
        }
    }
}

QRegion pixelsOf(const QRegion& points, const QImage& target) {
    QRegion pixels;
    for (const QRect& rect : points) {
        pixels += devicePixels(rect, target.devicePixelRatio()).intersected(target.rect());
    }
    return pixels;
}

} // namespace

void QuotePicture::setFrameInterval(double seconds) {
    // A tick comes with the first frame that does not begin before it.
    const double frames = std::ceil(backdropInterval / seconds - 1e-6);
    longestTick_ = tickSlack * frames * seconds;
}

void QuotePicture::advance(double seconds, double since2001) {
    if (backdropTick(seconds) != tick_) {
        tick_ = backdropTick(seconds);
        since2001_ = since2001;
    }
}

bool QuotePicture::isDue(double seconds) const {
    const qint64 tick = backdropTick(seconds);
    return BackdropPainter::moves(backdrop) && tick != tick_ && (tick >= nextTick_ || tick < tick_);
}

double QuotePicture::nextDue() const {
    return static_cast<double>(std::max(nextTick_, tick_ + 1)) * backdropInterval;
}

QRegion QuotePicture::outdated(double devicePixelRatio) {
    const QRegion due = tiles_.outdated(painter_.keys(), since2001_, since2001_ + longestTick_);
    if (!aside_.isNull()) {
        awaited_ += due;
    }
    planNext();
    return inPoints(due, devicePixelRatio);
}

void QuotePicture::planNext() {
    const double late = longestTick_ - backdropInterval;
    const double wait = tiles_.nextDue(painter_.keys(), since2001_) - since2001_ - late;
    nextTick_ = tick_ + std::max<qint64>(1, static_cast<qint64>(wait / backdropInterval));
}

void QuotePicture::paint(QImage& window, const QRegion& region, const QuoteView& view,
                         double seconds) {
    const QRegion pixels = pixelsOf(region, window);
    paintBackdrop(window, pixels, view.nextMotion(seconds).has_value());
    QPainter painter(&window);
    view.paint(painter, seconds, pixels);
}

void QuotePicture::paintElsewhere(QImage& target, const QRegion& region, const QuoteView& view,
                                  double seconds) {
    const QRegion pixels = pixelsOf(region, target);
    paintPlain(target, pixels);
    QPainter painter(&target);
    view.paint(painter, seconds, pixels);
}

// While texts move or the window fades, pixels of the backdrop are painted much more often
// than they change. Then they are kept aside, so that painting them again is copying them.
void QuotePicture::paintBackdrop(QImage& window, const QRegion& pixels, bool textsMove) {
    const bool whole = QRegion(window.rect()).subtracted(pixels).isEmpty();
    const bool fits =
        aside_.size() == window.size() && aside_.devicePixelRatio() == window.devicePixelRatio();
    const bool known = fits && !changed_;
    // What was changed at rest, is often changed in the next frame as well.
    const bool keeps = !backdrop.hasPhoto && (textsMove ? known || whole : whole && !changed_);
    changed_ = false;
    if (!keeps) {
        aside_ = {};
        paintTiles(window, pixels);
        if (textsMove) {
            tiles_.forget(); // the next tick paints everything, and keeps it
            planNext();
        }
        return;
    }
    if (!fits) {
        aside_ = QImage(window.size(), window.format());
        aside_.setDevicePixelRatio(window.devicePixelRatio());
    }
    if (!known) {
        awaited_ = aside_.rect();
    }
    if (!awaited_.isEmpty()) {
        paintTiles(aside_, awaited_);
    }
    copyPixels(window, aside_, pixels);
}

// `window`: its pixels, or those kept aside for it.
void QuotePicture::paintTiles(QImage& window, const QRegion& pixels) {
    paintPlain(window, pixels);
    for (const QRect& rect : pixels) {
        computed_ += qint64{rect.width()} * rect.height();
    }
    if (BackdropPainter::moves(backdrop)) {
        tiles_.record(pixels, painter_.keys(), since2001_);
        planNext();
    } else {
        tiles_.forget();
    }
    awaited_ = {};
}

void QuotePicture::paintPlain(QImage& target, const QRegion& pixels) {
    for (const QRect& rect : pixels) {
        painter_.paint(target, rect, backdrop, since2001_);
    }
}

} // namespace morrowleaf
