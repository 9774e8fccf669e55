// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/x11/placement.h"

#include "platform/linux/x11/x11connection.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

namespace morrowleaf {

namespace {

// In milliseconds.
constexpr int settling = 50;    // the window may be moved once it is mapped
constexpr int patience = 1'000; // a late showing is better than one on the wrong screen

} // namespace

Placement::Placement() {
    // Whoever has the focus keeps it until the real window takes it.
    window_.setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    window_.resize(2, 2);
    window_.setOpacity(0);
    x11::hideFromTaskLists(static_cast<xcb_window_t>(window_.winId()));
    settled_.setSingleShot(true);
    connect(&settled_, &QTimer::timeout, this, &Placement::look);
    const auto wait = [this] {
        if (window_.isExposed()) {
            settled_.start(settling);
        }
    };
    connect(&window_, &QWindow::xChanged, this, wait);
    connect(&window_, &QWindow::yChanged, this, wait);
    window_.installEventFilter(this);
    window_.show();
    settled_.start(patience);
}

bool Placement::eventFilter(QObject* /*window*/, QEvent* event) {
    if (event->type() == QEvent::Expose && window_.isExposed()) {
        settled_.start(settling);
    }
    return false;
}

void Placement::look() {
    const bool isPlaced = window_.isExposed();
    emit found(isPlaced ? QGuiApplication::screenAt(window_.geometry().center()) : nullptr);
}

} // namespace morrowleaf
