// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "textanim/shapedtext.h"

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QTransform>

#include <optional>

namespace morrowleaf {

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
