// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/x11/x11grab.h"

#include "platform/linux/x11/x11connection.h"

namespace morrowleaf {

namespace {
// In milliseconds.
constexpr int retryInterval = 50;
constexpr int grabTime = 3'000; // screen lockers try for about as long
} // namespace

X11Grab::X11Grab() {
    retry_.setInterval(retryInterval);
    QObject::connect(&retry_, &QTimer::timeout, &retry_, [this] { grab(); });
    enough_.setInterval(grabTime);
    QObject::connect(&enough_, &QTimer::timeout, &enough_, [this] {
        // Not isActive(): Qt may not hear of a focus that moves beside a grab.
        if (x11::inputFocus() == static_cast<xcb_window_t>(holder_->winId())) {
            ungrab();
        } else {
            holder_->requestActivate();
        }
    });
}

void X11Grab::prepare(QWindow& window) {
    if (holder_ == nullptr) {
        previousFocus_ = x11::inputFocus();
    }
    holder_ = &window;
}

void X11Grab::take(QWindow& window, What what) {
    prepare(window);
    what_ = what;
    keyboard_ = false;
    mouse_ = false;
    window.requestActivate();
    if (what != What::Focus) {
        // Another client, such as a screen locker that is just ending, may hold
        // a grab for a while.
        retry_.start();
        grab();
    }
}

void X11Grab::grab() {
    if (holder_ == nullptr) {
        retry_.stop();
        return;
    }
    if (!keyboard_) {
        keyboard_ = holder_->setKeyboardGrabEnabled(true);
    }
    if (!mouse_ && what_ == What::Everything) {
        mouse_ = holder_->setMouseGrabEnabled(true);
    }
    if (keyboard_ && (mouse_ || what_ != What::Everything)) {
        retry_.stop();
        enough_.start();
    }
}

void X11Grab::ungrab() {
    retry_.stop();
    enough_.stop();
    // Regardless of keyboard_ and mouse_, because closing a popup may have returned a grab
    // to this window.
    holder_->setKeyboardGrabEnabled(false);
    holder_->setMouseGrabEnabled(false);
    keyboard_ = false;
    mouse_ = false;
}

bool X11Grab::hasLetGo(const QWindow& window) const {
    return isHolder(window) && what_ == What::Everything && !keyboard_ && !retry_.isActive();
}

void X11Grab::retake(const QWindow& window) {
    if (hasLetGo(window)) {
        retry_.start();
        grab();
    }
}

void X11Grab::releaseGrabs(const QWindow& window) {
    if (isHolder(window)) {
        what_ = What::Focus;
        ungrab();
    }
}

void X11Grab::giveBack(const QWindow& window) {
    if (!isHolder(window)) {
        return;
    }
    releaseGrabs(window);
    const auto own = static_cast<xcb_window_t>(holder_->winId());
    holder_ = nullptr;
    // If another application has taken the focus meanwhile, it keeps it.
    const xcb_window_t now = x11::inputFocus();
    const bool isFree =
        now == own || now <= XCB_INPUT_FOCUS_POINTER_ROOT || now == x11::rootWindow() ||
        (x11::belongsToApplication(previousFocus_) && !x11::belongsToApplication(now));
    if (isFree && previousFocus_ > XCB_INPUT_FOCUS_POINTER_ROOT) {
        x11::setInputFocus(previousFocus_);
    }
    previousFocus_ = XCB_WINDOW_NONE;
}

} // namespace morrowleaf
