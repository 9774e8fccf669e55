// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

class QScreen;

namespace morrowleaf {

// The display's number for maccore.h; 0 if the system does not have it any more.
unsigned displayOf(const QScreen& screen);

} // namespace morrowleaf
