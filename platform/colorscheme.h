// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace morrowleaf {

enum class ColorPreference { None, Light, Dark };

// Whether the user wants programs to look dark or light.
class ColorScheme : public QObject {
    Q_OBJECT

public:
    // None until the desktop has answered, and where it knows no preference.
    virtual ColorPreference preference() const = 0;

signals:
    void changed(morrowleaf::ColorPreference preference);
};

} // namespace morrowleaf
