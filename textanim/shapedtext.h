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

// A text laid out once: its glyph outlines, its place, its colour glyphs.
// A cheap, shared, immutable value. Drawn from outlines, so that it is the
// same at every device pixel ratio and moves smoothly at any fraction.
class ShapedText {
public:
    ShapedText();
    // `tracking` in points is added after every character (also the last).
    // With a `maxWidth` above 0 the text wraps at word boundaries into
    // leading-aligned rows; one word wider than that is scaled down as a whole.
    ShapedText(const QString& text, const TextFont& font, double tracking = 0, double maxWidth = 0);

    QSizeF size() const;     // typographic width × rows of (ascent + descent), points
    double baseline() const; // of the first row, from the top
    void paint(QPainter& painter, QPointF topLeft, const QColor& color) const;

    const TextOutline& outline() const { return *outline_; }

private:
    std::shared_ptr<const TextOutline> outline_;
};

// What is kept of one text between its frames: once it rests, its picture. The
// pixels are those of ShapedText::paint() either way.
class KeptText {
public:
    // Draws `text`, always the same, at the painter's origin.
    void paint(QPainter& painter, const ShapedText& text, const QColor& color);

private:
    struct Look {
        QTransform device;
        QColor color;

        bool operator==(const Look&) const = default;
    };

    std::optional<Look> last_;
    QImage picture_; // of the last look, once it has come twice
    QPoint corner_;  // device pixels
};

} // namespace morrowleaf
