// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/quotewindow.h"

#include "app/showingtimes.h"
#include "base/curves.h"

#include <QAccessibleWidget>
#include <QCloseEvent>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

// Screen readers recognise a window only by its role.
QAccessibleInterface* speakingWindow(const QString& /*className*/, QObject* object) {
    auto* window = qobject_cast<QuoteWindow*>(object);
    return window != nullptr ? new QAccessibleWidget(window, QAccessible::Window) : nullptr;
}

} // namespace

// Covers everything in a window and gives it an alpha without the window system: all
// widgets of a window share one backing store, and this one paints last.
class Veil : public QWidget {
public:
    explicit Veil(QWidget* window);

    // With `desktop` (device pixels of the whole window) the window stays opaque, and this
    // picture shows through instead of the real desktop.
    void setDesktop(const QImage& desktop);
    // From 0 to 1; at 1 the veil is hidden.
    void setAlpha(double alpha);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage desktop_;
    double alpha_ = 1;
};

Veil::Veil(QWidget* window)
    : QWidget(window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void Veil::setDesktop(const QImage& desktop) {
    desktop_ = desktop;
    update();
}

void Veil::setAlpha(double alpha) {
    alpha_ = alpha;
    setVisible(alpha_ < 1);
    update();
}

void Veil::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    if (desktop_.isNull()) {
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.fillRect(event->rect(), QColor::fromRgbF(0, 0, 0, static_cast<float>(alpha_)));
        return;
    }
    painter.setOpacity(1 - alpha_);
    painter.setClipRect(event->rect());
    painter.drawImage(rect(), desktop_);
}

QuoteWindow::QuoteWindow(OverlayMaker& overlays, QScreen& screen, const OverlaySetup& setup) {
    QAccessible::installFactory(speakingWindow); // a second installation has no effect
    setObjectName(u"QuoteWindow"_s);
    setWindowTitle(u"Morrowleaf"_s);
    overlay_ = overlays.make(*this, screen, setup);
    // The content paints every pixel, so Qt must not fill in a background first.
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
    alpha_ = std::clamp(alpha, 0.0, 1.0);
    if (!overlay_->setAlpha(alpha_)) {
        veil_->setAlpha(alpha_);
    }
}

void QuoteWindow::fadeIn(Timing& timing) {
    fade(timing, 1, fadeInSeconds, easeOut, [] {});
}

void QuoteWindow::fadeOut(Timing& timing, std::function<void()> done) {
    fade(timing, 0, fadeOutSeconds, easeIn, std::move(done));
}

// `curve` maps the elapsed fraction of the time (0 to 1) to the fraction of the change.
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

// The window manager asks for it, or the program is ending.
void QuoteWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    emit closed();
}

} // namespace morrowleaf
