// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/network.h"

namespace morrowleaf {

// The library of the system keeps the certificates itself.
QByteArray certificateFolder() {
    return {};
}

} // namespace morrowleaf
