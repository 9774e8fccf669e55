// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/statusitem.h"

#include "settingsui/menuactions.h"

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
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

QPixmap drawSymbol(const Size& size, const QColor& colour) {
    QSvgRenderer drawing(":/morrowleaf/"_L1 + size.drawing);
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

// The symbol in one colour.
QIcon symbolIn(const QColor& colour) {
    QIcon icon;
    for (const Size& size : sizes) {
        const QPixmap pixmap = drawSymbol(size, colour);
        if (!pixmap.isNull()) {
            icon.addPixmap(pixmap);
        }
    }
    return icon;
}

} // namespace

StatusItem::StatusItem(MenuActions& actions, const TrayHost& host)
    : host_(host) {
    menu_.addActions({&actions.showQuote, &actions.editAppearance, &actions.openSettings});
    menu_.addSeparator();
    menu_.addAction(&actions.quit);

    icon_.setIcon(symbol());
    icon_.setToolTip(u"Morrowleaf"_s);
    icon_.setContextMenu(&menu_);
    connect(&icon_, &QSystemTrayIcon::activated, this,
            [this, &actions](QSystemTrayIcon::ActivationReason reason) {
                handleClick(reason, actions.showQuote);
            });
    icon_.show();
    menu_.installEventFilter(this);
}

void StatusItem::handleClick(QSystemTrayIcon::ActivationReason reason, QAction& showQuote) {
    if (reason != QSystemTrayIcon::Trigger) {
        return;
    }
    switch (host_.click()) {
    case TrayHost::Click::PopsUpMenu:
        menu_.popup(QCursor::pos());
        break;
    case TrayHost::Click::ShowsQuote:
        showQuote.trigger();
        break;
    case TrayHost::Click::OpensMenu:
        break;
    }
}

QIcon StatusItem::symbol() const {
    const QIcon tinted = host_.tintedSymbol();
    // The colour of the palette is legible on the panels of most desktops.
    return !tinted.isNull() ? tinted
                            : symbolIn(QGuiApplication::palette().color(QPalette::WindowText));
}

bool StatusItem::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        icon_.setIcon(symbol());
    }
    return false;
}

} // namespace morrowleaf
