// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/dialogowner.h"

#include <QPointer>
#include <QVariant>
#include <QWidget>
#include <QWindow>

namespace morrowleaf {

namespace {
constexpr auto property = "morrowleafDialogOwner";
}

QWindow* dialogOwnerOf(const QWidget& window) {
    const auto owner = window.property(property).value<QPointer<QWindow>>();
    return owner ? owner.data() : window.windowHandle();
}

void setDialogOwner(QWidget& window, QWindow* owner) {
    window.setProperty(property, QVariant::fromValue(QPointer(owner)));
}

} // namespace morrowleaf
