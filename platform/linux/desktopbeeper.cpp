// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/desktopbeeper.h"

#include <QApplication>

namespace morrowleaf {

namespace {

class DesktopBeeper final : public Beeper {
public:
    void beep() override { QApplication::beep(); }
};

} // namespace

std::unique_ptr<Beeper> makeDesktopBeeper() {
    return std::make_unique<DesktopBeeper>();
}

} // namespace morrowleaf
