// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/fonts.h"

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QSizeF>
#include <QTransform>

#include <memory>
#include <optional>

class QPainter;

namespace morrowleaf {

struct TextOutline;

// A text that is laid out once: its glyph outlines, its size and its colour
// glyphs. An immutable value that is cheap to copy. It is drawn from outlines, so
// that it looks the same at every device pixel ratio and moves smoothly by
// fractions of a pixel.
class ShapedText {
public:
    ShapedText();
    // `tracking` in points is added after every character, including the last, but
    // not in scripts whose letters join.
    // With a `maxWidth` above 0 (points) the text wraps at word boundaries into
    // leading-aligned rows of nearly equal length; a row of one word that is wider
    // is scaled down.
    ShapedText(const QString& text, const TextFont& font, double tracking = 0, double maxWidth = 0);

    QSizeF size() const;     // typographic width × rows of (ascent + descent), points
    double baseline() const; // of the first row, points from the top
    // The tracking after the last character, which does not count when a text is
    // aligned or centred.
    double lastTracking() const { return lastTracking_; }
    void paint(QPainter& painter, QPointF topLeft, const QColor& color) const;

    const TextOutline& outline() const { return *outline_; }

private:
    std::shared_ptr<const TextOutline> outline_;
    double lastTracking_ = 0;
};

// Caches the picture of one text that is drawn repeatedly with the same transform
// and colour. The pixels are always those of ShapedText::paint().
class KeptText {
public:
    // Draws `text`, which must be the same each time, at the painter's origin.
    void paint(QPainter& painter, const ShapedText& text, const QColor& color);

private:
    struct Look {
        QTransform device;
        QColor color;

        bool operator==(const Look&) const = default;
    };

    std::optional<Look> last_;
    QImage picture_; // of the last look, once it has been drawn twice
    QPoint corner_;  // device pixels
};

} // namespace morrowleaf
