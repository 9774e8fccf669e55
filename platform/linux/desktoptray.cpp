// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/desktoptray.h"

#include "platform/linux/dbus/notifierhost.h"
#include "platform/linux/x11/x11tray.h"

namespace morrowleaf {

namespace {

class EitherTray final : public TrayHost {
public:
    EitherTray() {
        connect(&notifier_, &TrayHost::appeared, this, &TrayHost::appeared);
        connect(&x11_, &TrayHost::appeared, this, &TrayHost::appeared);
    }
    bool isPresent() const override { return notifier_.isPresent() || x11_.isPresent(); }

private:
    NotifierHost notifier_;
    X11Tray x11_;
};

} // namespace

std::unique_ptr<TrayHost> makeDesktopTray(bool x11) {
    if (x11) {
        return std::make_unique<EitherTray>();
    }
    return std::make_unique<NotifierHost>();
}

} // namespace morrowleaf
