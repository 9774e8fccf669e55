// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/loginswitch.h"

#include "platform/loginitem.h"

#include <QSignalBlocker>

namespace morrowleaf {

LoginSwitch::LoginSwitch(LoginItem& item, std::function<void()> beep, QWidget* parent)
    : Switch(QStringLiteral("Open at login"), Size::Regular, parent)
    , item_(item)
    , beep_(std::move(beep)) {
    setChecked(item_.status() == LoginItem::Status::Enabled);
    connect(this, &QAbstractButton::toggled, this, &LoginSwitch::change);
}

void LoginSwitch::change(bool on) {
    if (on ? item_.registerItem() : item_.unregisterItem()) {
        const QSignalBlocker quiet(this);
        setChecked(item_.status() == LoginItem::Status::Enabled);
        beep_();
    }
}

} // namespace morrowleaf
