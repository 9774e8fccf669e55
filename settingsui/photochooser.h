#pragma once

#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace morrowleaf {

// Lets the user pick one picture file, without blocking; `picked` is called
// exactly once, later, with nothing when the user cancels.
using PhotoChooser =
    std::function<void(QWidget* window, std::function<void(std::optional<QString>)> picked)>;

// The toolkit's dialog, native where the desktop offers one. `lower` runs
// before it opens and `restore` after it has gone, whichever way.
PhotoChooser photoDialog(std::function<void()> lower, std::function<void()> restore);

} // namespace morrowleaf
