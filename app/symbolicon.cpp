// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/symbolicon.h"

#include "app/resources.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

#include <array>

namespace morrowleaf {

namespace {

// Panels ask for one of these; each is drawn from the drawing that was fitted
// to its pixel grid.
struct Size {
    int pixels;
    const char* drawing;
};
constexpr std::array sizes{
    Size{16, "quote-sym-16.svg"}, Size{22, "quote-sym-22.svg"}, Size{24, "quote-sym-24.svg"},
    Size{32, "quote-sym-16.svg"}, Size{44, "quote-sym-22.svg"}, Size{48, "quote-sym-24.svg"},
    Size{64, "quote-sym-16.svg"}, Size{96, "quote-sym-24.svg"}, Size{128, "quote-sym-16.svg"}};

QPixmap drawn(const Size& size, const QColor& colour) {
    QSvgRenderer drawing(iconFolder() + '/' + size.drawing);
    if (!drawing.isValid()) {
        return {};
    }
    QPixmap pixmap(size.pixels, size.pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    drawing.render(&painter, QRectF(0, 0, size.pixels, size.pixels));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), colour);
    return pixmap;
}

} // namespace

QIcon symbolIn(const QColor& colour) {
    QIcon icon;
    for (const Size& size : sizes) {
        const QPixmap pixmap = drawn(size, colour);
        if (!pixmap.isNull()) {
            icon.addPixmap(pixmap);
        }
    }
    return icon;
}

QIcon panelSymbol() {
    // Where the symbol is installed the panel tints it itself.
    QIcon themed = QIcon::fromTheme("org.morrowleaf.Morrowleaf-symbolic");
    const QString desktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP");
    if (!themed.isNull() && (desktop.contains("KDE") || desktop.contains("GNOME"))) {
        return themed;
    }
    return symbolIn(QGuiApplication::palette().color(QPalette::WindowText));
}

} // namespace morrowleaf
