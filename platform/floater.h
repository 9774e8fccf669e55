// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace morrowleaf {

// Keeps windows above the ordinary windows of all programs. Main thread.
class Floater {
public:
    virtual ~Floater() = default;
    Floater(const Floater&) = delete;
    Floater& operator=(const Floater&) = delete;

    // `window` is a top-level widget. Has an effect before it is first shown and at any
    // time later.
    virtual void setFloating(QWidget& window, bool isFloating) = 0;

protected:
    Floater() = default;
};

} // namespace morrowleaf
