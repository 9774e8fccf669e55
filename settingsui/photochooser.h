// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace morrowleaf {

class FileChooser;

// Lets the user pick one picture file, without blocking; `picked` is called
// exactly once, later, with nothing when the user cancels; not at all when
// `window` goes before.
using PhotoChooser =
    std::function<void(QWidget* window, std::function<void(std::optional<QString>)> picked)>;

// The desktop's dialog, or the toolkit's where the desktop has none. `lower`
// runs before it opens and `restore` after it has gone, whichever way.
// `desktop` outlives the chooser.
PhotoChooser photoDialog(FileChooser& desktop, std::function<void()> lower,
                         std::function<void()> restore);

} // namespace morrowleaf
