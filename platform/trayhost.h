// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace morrowleaf {

// Tells whether a panel shows status items. Qt decides once whether a tray
// exists, so create a status item only after this says so. Main thread.
class TrayHost : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    virtual bool isPresent() const = 0;

signals:
    // A host came up that does not know any item of this program: create it anew.
    void appeared();
};

} // namespace morrowleaf
