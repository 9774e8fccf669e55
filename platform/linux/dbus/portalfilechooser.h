// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/filechooser.h"

#include <QDBusConnection>

namespace morrowleaf {

// The dialog of the desktop's portal.
class PortalFileChooser : public FileChooser {
public:
    explicit PortalFileChooser(QDBusConnection bus = QDBusConnection::sessionBus());

    FileRequest* ask(QWidget& window, const FileQuestion& question) override;

private:
    QDBusConnection bus_;
};

} // namespace morrowleaf
