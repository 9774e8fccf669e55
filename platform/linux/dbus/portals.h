// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/colorscheme.h"
#include "platform/filechooser.h"
#include "platform/linux/dbus/busservice.h"

#include <QDBusConnection>

class QDBusVariant;

namespace morrowleaf {

// The dialog of the desktop's portal.
class PortalFileChooser : public FileChooser {
public:
    explicit PortalFileChooser(QDBusConnection bus = QDBusConnection::sessionBus());

    FileRequest* ask(QWidget& window, const FileQuestion& question) override;

private:
    QDBusConnection bus_;
};

// The preference by the desktop portal's settings, which it starts if needed.
// It arrives asynchronously; without a portal it stays None.
class PortalColorScheme : public ColorScheme {
    Q_OBJECT

public:
    explicit PortalColorScheme(const QDBusConnection& bus = QDBusConnection::sessionBus());

    ColorPreference preference() const override { return preference_; }

private:
    void read();
    void apply(const QDBusVariant& value);

    QDBusConnection bus_;
    BusService portal_;
    ColorPreference preference_ = ColorPreference::None;
};

} // namespace morrowleaf
