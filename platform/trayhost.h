// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace morrowleaf {

// Reports that the desktop has a tray for status items. Qt looks for a tray only once, and
// waits for the message bus then, so create a status item only after appeared(). Main
// thread.
class TrayHost : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    // Not emitted before the event loop runs. A new host does not know the items of this
    // program: create them again.
    void appeared();
};

} // namespace morrowleaf
