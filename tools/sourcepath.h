// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace morrowleaf {

// The absolute path of a file or folder in the source tree that the program
// was built from, for what runs there: tests, benchmarks, the tools.
// `relative` is its path from the top, "resources/Fonts" for one.
QString sourcePath(const QString& relative);

} // namespace morrowleaf
