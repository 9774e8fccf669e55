// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/filechooser.h"
#include "platform/linux/dbus/buslink.h"

#include <memory>

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

} // namespace morrowleaf
