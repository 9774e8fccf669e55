// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

namespace morrowleaf {

// The whole program: one of its modes, chosen by the arguments. Gives the
// exit status, 0 in every mode.
int runApplication(int argc, char** argv);

} // namespace morrowleaf
