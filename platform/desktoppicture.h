// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

class QScreen;

namespace morrowleaf {

// A picture of what a screen shows at this moment.
class DesktopPicture {
public:
    virtual ~DesktopPicture() = default;
    DesktopPicture(const DesktopPicture&) = delete;
    DesktopPicture& operator=(const DesktopPicture&) = delete;

    // The whole screen in device pixels; null where the desktop gives none.
    // Takes some tens of milliseconds.
    virtual QImage capture(QScreen& screen) = 0;

protected:
    DesktopPicture() = default;
};

} // namespace morrowleaf
