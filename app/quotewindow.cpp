// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/quotewindow.h"

#include <QAccessibleWidget>
#include <QCloseEvent>
#include <QScreen>

#include <utility>

namespace morrowleaf {

namespace {

// Screen readers take windows for what they are only by their role.
QAccessibleInterface* speakingWindow(const QString& /*className*/, QObject* object) {
    auto* window = qobject_cast<QuoteWindow*>(object);
    return window != nullptr ? new QAccessibleWidget(window, QAccessible::Window) : nullptr;
}

} // namespace

QuoteWindow::QuoteWindow(OverlayMaker& overlays, QScreen& screen, const OverlaySetup& setup) {
    QAccessible::installFactory(speakingWindow); // ignores one that it knows
    setObjectName("QuoteWindow");
    setWindowTitle("Morrowleaf");
    overlay_ = overlays.make(*this, screen, setup);
    // Every pixel comes from the content: nothing may be filled in before it.
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_OpaquePaintEvent, overlay_->seeThrough() == SeeThrough::No);
    veil_ = new Veil(this);
}

QuoteWindow::~QuoteWindow() {
    fade_.reset();
    overlay_.reset();
}

void QuoteWindow::setContent(QWidget* content) {
    content_ = content;
    content->setParent(this);
    content->setGeometry(rect());
    content->show();
    veil_->raise();
}

void QuoteWindow::setDesktop(const QImage& desktop) {
    veil_->setDesktop(desktop);
}

void QuoteWindow::setAlpha(double alpha) {
    veil_->setAlpha(alpha);
}

double QuoteWindow::alpha() const {
    return veil_->alpha();
}

void QuoteWindow::fade(Timing& timing, double alpha, double seconds, double (*curve)(double),
                       std::function<void()> done) {
    const double from = this->alpha();
    fade_ = timing.animate(
        seconds,
        [this, from, alpha, curve](double fraction) {
            setAlpha(from + (alpha - from) * curve(fraction));
        },
        std::move(done));
}

void QuoteWindow::orderFront() {
    overlay_->orderFront();
}

void QuoteWindow::orderOut() {
    fade_.reset();
    overlay_->orderOut();
}

void QuoteWindow::resizeEvent(QResizeEvent* /*event*/) {
    if (content_ != nullptr) {
        content_->setGeometry(rect());
    }
    veil_->setGeometry(rect());
}

// A window manager asks, or the program ends.
void QuoteWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    emit closed();
}

} // namespace morrowleaf
