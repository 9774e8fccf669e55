// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QMap>

#include <memory>

namespace morrowleaf {

class DesktopWishes;

// The settings of the type integer by their names, in the value of the property
// _XSETTINGS_SETTINGS; empty if it is malformed.
QMap<QByteArray, int> integersInXSettings(const QByteArray& property);

// The wishes among the settings that desktops share on an X server: whether programs may
// move things. Main thread; needs an application object of Qt's xcb plugin.
std::unique_ptr<DesktopWishes> makeXSettingsWishes();

} // namespace morrowleaf
