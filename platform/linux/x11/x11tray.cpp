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
        x11::listenTo(x11::rootWindow(), XCB_EVENT_MASK_STRUCTURE_NOTIFY);
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
