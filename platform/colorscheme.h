// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace morrowleaf {

enum class ColorPreference { None, Light, Dark };

// The user's preference for light or dark colours. Main thread.
class ColorScheme : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // None before the desktop has answered, and if it has no preference.
    virtual ColorPreference preference() const = 0;

signals:
    void changed(morrowleaf::ColorPreference preference);
};

} // namespace morrowleaf
