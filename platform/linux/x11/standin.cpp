// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/x11/standin.h"

#include "platform/linux/x11/x11connection.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QSurfaceFormat>

#include <utility>

namespace morrowleaf {

namespace {

// In milliseconds. Compositors fade new windows in.
constexpr int fadeOfDesktop = 250;
constexpr int patience = 800; // until the window is exposed, at most

} // namespace

StandIn::StandIn(QScreen& screen, const QImage& picture)
    : picture_(picture) {
    setScreen(&screen);
    setGeometry(screen.geometry());
    setFlags(Qt::Window | Qt::FramelessWindowHint);
    setTitle(tr("Edit Appearance"));
    QSurfaceFormat format = requestedFormat();
    format.setAlphaBufferSize(picture.hasAlphaChannel() && x11::hasCompositor() ? 8 : 0);
    setFormat(format);
    x11::hideFromTaskLists(static_cast<xcb_window_t>(winId()));
    drawn_.setSingleShot(true);
    connect(&drawn_, &QTimer::timeout, this, [this] {
        if (const auto then = std::exchange(then_, {})) {
            then();
        }
    });
}

void StandIn::present(std::function<void()> then) {
    then_ = std::move(then);
    drawn_.start(patience);
    showFullScreen();
}

void StandIn::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(QRect(QPoint(), size()), picture_);
}

void StandIn::exposeEvent(QExposeEvent* event) {
    QRasterWindow::exposeEvent(event);
    if (isExposed() && !wasExposed_) {
        wasExposed_ = true;
        drawn_.start(fadeOfDesktop);
        // Some window managers give the keyboard to a dialog of another program only if its
        // owner has it, and only if the user was not active in the owner after having been so
        // in that program.
        const auto id = static_cast<xcb_window_t>(winId());
        if (QGuiApplication::modalWindow() == nullptr) {
            x11::setInputFocus(id);
        }
        // Comes last: they move the focus with the time of the last change that they have
        // heard of, and the server refuses that if it is earlier than the focus.
        x11::forgetUserTime(id);
    }
}

// It is a picture: the dialog and the editor are what can be closed.
void StandIn::closeEvent(QCloseEvent* event) {
    event->ignore();
}

} // namespace morrowleaf
