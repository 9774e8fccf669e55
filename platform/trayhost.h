// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace morrowleaf {

// Whether a panel is there that shows status items.
class TrayHost : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    virtual bool isPresent() const = 0;

signals:
    void appeared(); // present from now on, with no item of ours
};

} // namespace morrowleaf
