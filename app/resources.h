// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace morrowleaf {

// The folder of the program's resources: beside an installed binary, or in the source
// tree for one that was just built. Empty if there is none. Needs an application object.
QString resourceFolder();

QString fontFolder();
QString backgroundFolder();
QString iconFolder();

} // namespace morrowleaf
