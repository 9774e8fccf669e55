// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/settingswindow.h"

#include <QIcon>
#include <QStyle>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace morrowleaf {

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr QSize contentSize(520, 520);
constexpr int leftMargin = 32;
constexpr int belowMiddle = 400;
constexpr Qt::WindowFlags kind = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                 Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
} // namespace

SettingsWindow::SettingsWindow(QWidget* view, Floater& floater)
    : QMainWindow(nullptr, kind)
    , floater_(floater) {
    floater_.setFloating(*this, true);
    setObjectName(u"SettingsWindow"_s);
    setWindowTitle(tr("Morrowleaf Settings"));
    setWindowIcon(QIcon(u":/morrowleaf/app-icon.svg"_s));
    setAttribute(Qt::WA_QuitOnClose, false);
    setContextMenuPolicy(Qt::NoContextMenu);
    setCentralWidget(view);
    setFixedSize(contentSize.expandedTo(view->maximumSize()));
}

void SettingsWindow::place(const QRect& available) {
    available_ = available;
    // The frame does not exist yet; assume a title bar of the usual height.
    const QSize frame(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    lowerInto(available, frame);
    moveInto(available, size() + frame);
}

void SettingsWindow::fitInto(const QRect& available) {
    lowerInto(available, frameGeometry().size() - size());
}

void SettingsWindow::lowerInto(const QRect& available, const QSize& frame) {
    constexpr int lowest = 200; // the form scrolls, but something of it remains in sight
    const int height = available.height() - frame.height();
    setFixedHeight(std::clamp(height, lowest, centralWidget()->maximumHeight()));
}

void SettingsWindow::bringToFront() {
    if (isVisible() && !isActiveWindow()) {
        // The window may be on another workspace; hiding it first makes it appear on this
        // one.
        hide();
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void SettingsWindow::joinOrdinaryWindows() {
    floater_.setFloating(*this, false);
}

void SettingsWindow::riseAboveOrdinaryWindows() {
    floater_.setFloating(*this, true);
}

void SettingsWindow::paintEvent(QPaintEvent* event) {
    QMainWindow::paintEvent(event);
    if (!available_.isEmpty()) {
        // The window is on screen now, so the size of its frame is known.
        QTimer::singleShot(0, this, [this, available = std::exchange(available_, {})] {
            fitInto(available);
            moveInto(available, frameGeometry().size());
        });
    }
}

void SettingsWindow::moveInto(const QRect& available, const QSize& frame) {
    const QPoint origin = settingsWindowOrigin(available, frame);
    if (pos() != origin) {
        move(origin);
    }
}

QPoint settingsWindowOrigin(const QRect& available, const QSize& frame) {
    const int left = available.left() + leftMargin;
    const int top = available.top() + available.height() / 2 + belowMiddle - frame.height();
    const int lastLeft = available.left() + std::max(available.width() - frame.width(), 0);
    const int lastTop = available.top() + std::max(available.height() - frame.height(), 0);
    return {std::clamp(left, available.left(), lastLeft),
            std::clamp(top, available.top(), lastTop)};
}

} // namespace morrowleaf
