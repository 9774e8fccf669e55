// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/jail.h"

namespace morrowleaf {

Confinement confine(JailKind kind, const QList<QByteArray>& /*readable*/) {
    setReaderLimits(kind);
    return {};
}

void leaveParent(int /*kept*/) {}

} // namespace morrowleaf
