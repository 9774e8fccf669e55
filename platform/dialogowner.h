// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;
class QWindow;

namespace morrowleaf {

// The window that dialogs of `window` belong to in the eyes of the window manager: the one
// that was set and still exists, else that of `window`, which may be null. Main thread.
QWindow* dialogOwnerOf(const QWidget& window);
// Null restores the window's own.
void setDialogOwner(QWidget& window, QWindow* owner);

} // namespace morrowleaf
