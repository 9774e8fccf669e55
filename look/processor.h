// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

namespace morrowleaf {

// Whether the processor has AVX2 and this build contains code for it.
bool hasAvx2();

} // namespace morrowleaf
