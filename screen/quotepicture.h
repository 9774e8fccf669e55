// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "backdrop/backdrop.h"
#include "backdrop/showntiles.h"

#include <QImage>
#include <QRegion>

namespace morrowleaf {

class QuoteView;

// The picture of one quote screen, backdrop and texts: the instant of the backdrop, what
// of it has to be painted when, and the painting. Instants are seconds since the
// appearance; regions are in points of the screen.
class QuotePicture {
public:
    QuotePicture() { setFrameInterval(1.0 / 60); }

    // Whoever changes it or the view calls change() and paints everything.
    BackdropState backdrop;
    void change() { changed_ = true; }

    // Sets the time between two frames of the display, in seconds; 1/60 until then.
    void setFrameInterval(double seconds);
    // Lets the next paint show the backdrop of the instant `seconds`, which is `since2001`
    // by the wall clock, unless it shows an instant of the same thirtieth of a second.
    void advance(double seconds, double since2001);
    // Whether something of the backdrop may have to be painted at `seconds`.
    bool isDue(double seconds) const;
    // The instant at which isDue() will hold next. Call only if the backdrop moves.
    double nextDue() const;
    // What has to be painted so that nothing of the backdrop is off by more than the bound
    // before the next thirtieth of a second. Call after advance() and paint it.
    QRegion outdated(double devicePixelRatio);

    // Paints a region of the window: the texts at the instant `seconds` over the backdrop
    // of advance().
    void paint(QImage& window, const QRegion& region, const QuoteView& view, double seconds);
    // The same on another surface than the window; what the window shows stays known.
    void paintElsewhere(QImage& target, const QRegion& region, const QuoteView& view,
                        double seconds);

    // How many pixels of the backdrop have been computed for the window.
    qint64 computed() const { return computed_; }

private:
    void paintBackdrop(QImage& window, const QRegion& pixels, bool textsMove);
    void paintTiles(QImage& window, const QRegion& pixels);
    void paintPlain(QImage& target, const QRegion& pixels);
    void planNext();

    BackdropPainter painter_;
    ShownTiles tiles_;
    qint64 tick_ = -1;
    qint64 nextTick_ = 0;
    double longestTick_ = 0; // seconds until the next tick, if it comes as late as it may
    double since2001_ = 0;
    bool changed_ = true;
    qint64 computed_ = 0;
    // What the window shows of the backdrop, without texts, while it is painted again and again.
    QImage aside_;
    QRegion awaited_; // outdated in aside_
};

} // namespace morrowleaf
