// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace morrowleaf {

// Reports whether the desktop has a tray for status items. Qt looks for a tray only once,
// so create a status item only after isPresent() or appeared(). Main thread.
class TrayHost : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    virtual bool isPresent() const = 0;

signals:
    // A new host does not know the items of this program: create them again.
    void appeared();
};

} // namespace morrowleaf
