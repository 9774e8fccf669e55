// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/macos/macscreens.h"

#include "platform/macos/core/maccore.h"
#include "platform/macos/macparts.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace morrowleaf {

unsigned displayOf(const QScreen& screen) {
    // The toolkit keeps the number for itself, but displays do not overlap.
    const QPoint corner = screen.geometry().topLeft();
    return macDisplayAt(corner.x(), corner.y());
}

namespace {

class MacMainScreen final : public MainScreen {
public:
    QScreen* current() const override {
        const unsigned main = macMainDisplay();
        const auto screens = QGuiApplication::screens();
        const auto found =
            std::find_if(screens.begin(), screens.end(),
                         [main](const QScreen* screen) { return displayOf(*screen) == main; });
        return main != 0 && found != screens.end() ? *found : nullptr;
    }
};

} // namespace

std::unique_ptr<MainScreen> makeMacMainScreen() {
    return std::make_unique<MacMainScreen>();
}

} // namespace morrowleaf
