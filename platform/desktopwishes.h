// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QObject>

namespace morrowleaf {

enum class ColorPreference { None, Light, Dark };

// What the user has asked of all programs. The defaults are those of a user without wishes.
struct Wishes {
    ColorPreference colors = ColorPreference::None;
    QColor accent{}; // invalid: that of the style
    bool reducedMotion = false;
    bool highContrast = false;

    bool operator==(const Wishes&) const = default;
};

// The wishes that the user has told the desktop. Main thread.
class DesktopWishes : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // Without wishes before the desktop has answered.
    virtual Wishes current() const = 0;

signals:
    void changed(const morrowleaf::Wishes& wishes);
};

} // namespace morrowleaf
