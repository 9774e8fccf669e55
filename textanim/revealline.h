// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "look/animationkinds.h"
#include "textanim/fonts.h"
#include "textanim/rowbreaking.h"

#include <QColor>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <memory>
#include <vector>

class QPainter;
class QTransform;

namespace morrowleaf {

class GlyphShapes;

// The shadow of the visible letters of a line.
struct LineShadow {
    double opacity = 0;   // of black, 0...1
    double radius = 24;   // standard deviation of the Gaussian, points
    QPointF offset{0, 6}; // points

    bool operator==(const LineShadow&) const = default;
};

// One line of the quotation and its entrance. The drawing depends only on the
// line and the seconds since it appeared; what is costly is kept between calls.
// Seconds must be finite (for a typed line other values are a fatal error); to
// draw a line at rest, use settledAfter().
class RevealLine {
public:
    struct Parts {
        QString text;     // without line breaks
        qint64 index = 0; // 0 for the first line
        TextAnim style = TextAnim::Fade;
        TextFont font;       // for all styles but handwriting
        TextFont strokeFont; // for handwriting
        QColor color;
        LineShadow shadow;
        double maxWidth = 0; // of the column, points; 0 means unbounded
        // Those of the text in its font, if it has been measured: a line that is measured
        // is laid out only when it is drawn.
        std::vector<RowPiece> pieces{};
        bool isStill = false; // without motion, blur and delay
    };

    explicit RevealLine(const Parts& parts);
    // `shapes` may be shared by several lines.
    RevealLine(const Parts& parts, const std::shared_ptr<GlyphShapes>& shapes);
    ~RevealLine();
    RevealLine(RevealLine&&) noexcept;
    RevealLine& operator=(RevealLine&&) noexcept;

    const Parts& parts() const;
    double delay() const; // seconds from appearance to the start
    QSizeF size() const;  // the space reserved from the start, points
    // The letters of which the outlines have been read: all, at the latest when the line
    // becomes visible.
    qsizetype readLetters() const;
    // Reads the next of them, at most so many; returns how many. Changes nothing that is
    // drawn.
    qsizetype readAhead(qsizetype most) const;

    // Changes colour and shadow, which need no new layout.
    void setColors(const QColor& color, const LineShadow& shadow);

    // Draws the line as it looks `seconds` after it appeared, with its top left
    // corner at `topLeft`. The painter is in points; its scale counts as the
    // device pixel ratio.
    void paint(QPainter& painter, QPointF topLeft, double seconds) const;

    // Renders what paint() will draw at that instant with a painter whose
    // deviceTransform() is `device`, unless it is kept already. Different lines
    // may be prepared at the same time on different threads.
    void prepare(const QTransform& device, double seconds) const;
    bool isPrepared(const QTransform& device, double seconds) const;

    // The rectangle that paint() touches at that instant (offset, halo and shadow
    // included), in points relative to the top left corner; empty when nothing is visible.
    QRectF paintedRect(double seconds) const;
    // Whether the picture at `to` differs from that at `from`.
    bool changesBetween(double from, double to) const;
    // Seconds after which the line never changes again; 0 for a line without ink.
    double settledAfter() const;

private:
    struct Private;
    std::unique_ptr<Private> d_;
};

} // namespace morrowleaf
