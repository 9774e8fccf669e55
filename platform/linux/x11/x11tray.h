// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/trayhost.h"

#include <QAbstractNativeEventFilter>

#include <xcb/xcb.h>

namespace morrowleaf {

// Present once somebody owns the system tray selection of the X server.
class X11Tray : public TrayHost, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    X11Tray();
    ~X11Tray() override;

    bool isPresent() const override;
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    xcb_atom_t manager_;
    xcb_atom_t selection_;
};

} // namespace morrowleaf
