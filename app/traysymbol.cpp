// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/traysymbol.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <array>

namespace morrowleaf {

namespace {

using namespace Qt::Literals::StringLiterals;

// The sizes that panels ask for, each with the drawing that fits its pixel grid.
struct Size {
    int pixels;
    QLatin1StringView drawing;
};
constexpr std::array sizes{Size{16, "quote-sym-16.svg"_L1}, Size{22, "quote-sym-22.svg"_L1},
                           Size{24, "quote-sym-24.svg"_L1}, Size{32, "quote-sym-16.svg"_L1},
                           Size{44, "quote-sym-22.svg"_L1}, Size{48, "quote-sym-24.svg"_L1},
                           Size{64, "quote-sym-16.svg"_L1}, Size{96, "quote-sym-24.svg"_L1},
                           Size{128, "quote-sym-16.svg"_L1}};

QPixmap drawGlyph(QSvgRenderer& drawing, int pixels, const QColor& colour) {
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    drawing.render(&painter, QRectF(0, 0, pixels, pixels));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), colour);
    return pixmap;
}

// A glyph, `by` pixels wider in all directions.
QPixmap widened(const QPixmap& glyph, int by) {
    QPixmap pixmap(glyph.size());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    for (int x = -by; x <= by; ++x) {
        for (int y = -by; y <= by; ++y) {
            painter.drawPixmap(x, y, glyph);
        }
    }
    return pixmap;
}

QPixmap drawSymbol(const Size& size, const QColor& colour) {
    QSvgRenderer drawing(":/morrowleaf/"_L1 + size.drawing);
    if (!drawing.isValid()) {
        return {};
    }
    constexpr double edgeOpacity = 0.85;
    constexpr int pixelsOfThinEdge = 32; // larger symbols have a wider one
    constexpr int middle = 128;
    const QColor edge = colour.lightness() < middle ? Qt::white : Qt::black;
    QPixmap pixmap(size.pixels, size.pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setOpacity(edgeOpacity);
    painter.drawPixmap(
        0, 0, widened(drawGlyph(drawing, size.pixels, edge), 1 + size.pixels / pixelsOfThinEdge));
    painter.setOpacity(1);
    painter.drawPixmap(0, 0, drawGlyph(drawing, size.pixels, colour));
    return pixmap;
}

} // namespace

QIcon traySymbol(const QColor& colour) {
    QIcon icon;
    for (const Size& size : sizes) {
        const QPixmap pixmap = drawSymbol(size, colour);
        if (!pixmap.isNull()) {
            icon.addPixmap(pixmap);
        }
    }
    return icon;
}

} // namespace morrowleaf
