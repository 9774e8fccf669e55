// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

namespace morrowleaf {

// Gives every window a view of the stand-ins; call it with macfakes::reset().
void forgetViews();

} // namespace morrowleaf
