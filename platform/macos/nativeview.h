// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace morrowleaf {

// The NSView that fills a top-level widget, which is created if there is none yet. Valid
// until the widget's flags change.
void* nativeView(const QWidget& window);

} // namespace morrowleaf
