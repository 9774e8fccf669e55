// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/colorscheme.h"
#include "platform/filechooser.h"
#include "platform/linux/dbus/buslink.h"
#include "platform/linux/dbus/busservice.h"

#include <memory>

class QDBusVariant;

namespace morrowleaf {

// The dialog of the desktop's portal.
class PortalFileChooser : public FileChooser {
public:
    // `session` is opened by whoever created it.
    explicit PortalFileChooser(std::shared_ptr<const BusLink> session);

    FileRequest* ask(QWidget& window, const FileQuestion& question) override;

private:
    std::shared_ptr<const BusLink> session_;
};

// The preference by the desktop portal's settings, which it starts if needed.
// It arrives asynchronously, and again from every bus that comes back; without a portal
// it stays None.
class PortalColorScheme : public ColorScheme {
    Q_OBJECT

public:
    // `session` is opened afterwards by whoever created it.
    explicit PortalColorScheme(std::shared_ptr<const BusLink> session);

    ColorPreference preference() const override { return preference_; }

private:
    void subscribe();
    void read();
    void apply(const QDBusVariant& value);

    std::shared_ptr<const BusLink> session_;
    BusService portal_;
    std::unique_ptr<QObject> subscription_; // of the present connection
    ColorPreference preference_ = ColorPreference::None;
};

} // namespace morrowleaf
