// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/x11/x11parts.h"

#include "platform/linux/x11/x11connection.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>

namespace morrowleaf {

namespace {

constexpr auto selectionName = "_NET_SYSTEM_TRAY_S0";

class X11Tray final : public TrayHost, public QAbstractNativeEventFilter {
public:
    X11Tray()
        : manager_(x11::atom("MANAGER"))
        , selection_(x11::atom(selectionName)) {
        // A new owner announces itself to the clients that listen on the root window.
        auto* c = x11::connection();
        const auto root = x11::rootWindow();
        const x11::Reply<xcb_get_window_attributes_reply_t> now(
            xcb_get_window_attributes_reply(c, xcb_get_window_attributes(c, root), nullptr));
        if (now) {
            const std::uint32_t mask = now->your_event_mask | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
            xcb_change_window_attributes(c, root, XCB_CW_EVENT_MASK, &mask);
        }
        QCoreApplication::instance()->installNativeEventFilter(this);
        if (x11::selectionOwner(selectionName) != XCB_WINDOW_NONE) {
            announce();
        }
    }
    ~X11Tray() override { QCoreApplication::instance()->removeNativeEventFilter(this); }

    bool nativeEventFilter(const QByteArray& /*type*/, void* message,
                           qintptr* /*result*/) override {
        const auto* event = static_cast<const xcb_generic_event_t*>(message);
        if ((event->response_type & 0x7F) == XCB_CLIENT_MESSAGE) {
            const auto* sent = reinterpret_cast<const xcb_client_message_event_t*>(event);
            if (sent->type == manager_ && sent->data.data32[1] == selection_) {
                announce();
            }
        }
        return false;
    }

private:
    void announce() { QMetaObject::invokeMethod(this, &TrayHost::appeared, Qt::QueuedConnection); }

    xcb_atom_t manager_;
    xcb_atom_t selection_;
};

} // namespace

std::unique_ptr<TrayHost> makeX11Tray() {
    return std::make_unique<X11Tray>();
}

} // namespace morrowleaf
