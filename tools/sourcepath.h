// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace morrowleaf {

// The absolute path of a file or folder in the source tree, for tests, benchmarks
// and tools. `relative` is its path from the top folder, for example
// "resources/Fonts".
QString sourcePath(const QString& relative);

} // namespace morrowleaf
