// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace morrowleaf {

// Where the resources of a program in `programFolder` (absolute) can be, the likeliest
// place first; never in the root folder.
QStringList placesOfResources(const QString& programFolder);

// The folder of the program's resources: beside an installed binary, in its bundle, or in
// the source tree for one that was just built. Empty if there is none. Needs an application object.
QString resourceFolder();

// The folders of typefaces and photos in the folder `resources`; empty without one.
QString fontFolder(const QString& resources = resourceFolder());
QString backgroundFolder(const QString& resources = resourceFolder());

} // namespace morrowleaf
