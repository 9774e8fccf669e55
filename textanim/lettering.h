// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/motion.h"
#include "textanim/placedpicture.h"
#include "textanim/textoutline.h"

#include <QColor>

namespace morrowleaf {

// The letters of one line, without their shadow, as a style draws them. What is
// costly is kept between calls; different lines may be drawn at the same time
// on different threads.
class Lettering {
public:
    virtual ~Lettering() = default;
    Lettering(const Lettering&) = delete;
    Lettering& operator=(const Lettering&) = delete;

    // The line at rest.
    virtual const TextOutline& text() const = 0;
    // What the letters touch, with the halo of their blur, in points from the
    // top left of the line's place; empty when there is nothing to draw.
    virtual QRectF rect(const RevealValues& values) const = 0;
    // The letters at a device scale. The pixels live until the next call.
    virtual PlacedPicture draw(const RevealValues& values, double scale, const QColor& color) = 0;
    // Drops all that is kept, the pixels of the last call too.
    virtual void letGo() = 0;

protected:
    Lettering() = default;
};

// Letters that are set in type: all styles but the handwriting.
class TypeLettering final : public Lettering {
public:
    // `margin` in points lies around the ink, for what goes beyond the outlines.
    explicit TypeLettering(TextOutline text, double margin = 1);

    const TextOutline& text() const override { return text_; }
    QRectF rect(const RevealValues& values) const override;
    PlacedPicture draw(const RevealValues& values, double scale, const QColor& color) override;
    void letGo() override { memory_ = {}; }

private:
    QImage paint(const RevealValues& values, double scale, int cell, QRect rect,
                 const QColor& color);
    PlacedPicture drawBlurred(const RevealValues& values, double scale, double sigma,
                              const QColor& color);

    TextOutline text_;
    double margin_;
    std::vector<QRgb> memory_;
};

// Device pixels, up or down, that bring the resting baseline onto whole ones.
double baselineShift(const TextOutline& text, double scale);

} // namespace morrowleaf
