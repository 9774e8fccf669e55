// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace morrowleaf {

// Reports that the desktop has a tray for status items. Qt looks for a tray only once, on
// the main thread and over the message bus, so create a status item only after appeared():
// whoever Qt asks has answered shortly before. Never emitted beside a bus that does not
// answer, not even for a tray that needs no bus. Main thread.
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
