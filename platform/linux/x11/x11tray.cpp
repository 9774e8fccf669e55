// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/x11/x11tray.h"

#include "platform/linux/x11/x11connection.h"

#include <QCoreApplication>

namespace morrowleaf {

namespace {
constexpr auto selectionName = "_NET_SYSTEM_TRAY_S0";
}

X11Tray::X11Tray()
    : manager_(x11::atom("MANAGER"))
    , selection_(x11::atom(selectionName)) {
    // A new owner announces itself to those who listen at the root window.
    auto* c = x11::connection();
    const auto root = x11::rootWindow();
    const x11::Reply<xcb_get_window_attributes_reply_t> now(
        xcb_get_window_attributes_reply(c, xcb_get_window_attributes(c, root), nullptr));
    if (now) {
        const std::uint32_t mask = now->your_event_mask | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(c, root, XCB_CW_EVENT_MASK, &mask);
    }
    QCoreApplication::instance()->installNativeEventFilter(this);
}

X11Tray::~X11Tray() {
    QCoreApplication::instance()->removeNativeEventFilter(this);
}

bool X11Tray::isPresent() const {
    return x11::selectionOwner(selectionName) != XCB_WINDOW_NONE;
}

bool X11Tray::nativeEventFilter(const QByteArray& /*type*/, void* message, qintptr* /*result*/) {
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & 0x7F) == XCB_CLIENT_MESSAGE) {
        const auto* said = reinterpret_cast<const xcb_client_message_event_t*>(event);
        if (said->type == manager_ && said->data.data32[1] == selection_) {
            QMetaObject::invokeMethod(this, &TrayHost::appeared, Qt::QueuedConnection);
        }
    }
    return false;
}

} // namespace morrowleaf
