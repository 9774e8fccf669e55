// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace morrowleaf {

// The folder that came with the program, wherever it was put: beside an
// installed binary, or the source tree's for one that was just built. Empty
// when there is none. Call after the application object was made.
QString resourceFolder();

QString fontFolder();
QString backgroundFolder();
QString iconFolder();

} // namespace morrowleaf
