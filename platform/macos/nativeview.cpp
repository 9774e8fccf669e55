// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/macos/nativeview.h"

#include <QWidget>

namespace morrowleaf {

void* nativeView(const QWidget& window) {
    return reinterpret_cast<void*>(window.winId());
}

} // namespace morrowleaf
