// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/x11/x11monitors.h"

#include "platform/linux/x11/x11connection.h"

#include <QCoreApplication>
#include <xcb/randr.h>

namespace morrowleaf {

namespace {

// The number of the RandR extension's first event; 0 without the extension. Qt has
// already selected these events.
std::uint8_t firstEvent() {
    const auto* extension = xcb_get_extension_data(x11::connection(), &xcb_randr_id);
    return extension != nullptr && extension->present != 0 ? extension->first_event : 0;
}

} // namespace

X11Monitors::X11Monitors() {
    QCoreApplication::instance()->installNativeEventFilter(this);
}

X11Monitors::~X11Monitors() {
    QCoreApplication::instance()->removeNativeEventFilter(this);
}

bool X11Monitors::isAnyOn() {
    if (firstEvent() == 0) {
        return true;
    }
    auto* c = x11::connection();
    constexpr std::uint8_t activeOnly = 1;
    const x11::Reply<xcb_randr_get_monitors_reply_t> reply(xcb_randr_get_monitors_reply(
        c, xcb_randr_get_monitors(c, x11::rootWindow(), activeOnly), nullptr));
    return !reply || reply->nMonitors > 0;
}

bool X11Monitors::nativeEventFilter(const QByteArray& /*type*/, void* message,
                                    qintptr* /*result*/) {
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    const int type = event->response_type & 0x7F;
    const int first = firstEvent();
    if (first != 0 &&
        (type == first + XCB_RANDR_SCREEN_CHANGE_NOTIFY || type == first + XCB_RANDR_NOTIFY)) {
        QMetaObject::invokeMethod(this, &X11Monitors::changed, Qt::QueuedConnection);
    }
    return false;
}

} // namespace morrowleaf
