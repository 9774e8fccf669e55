// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace morrowleaf {

class SettingsStore;

// Registers the default values of the table with `store`, for the life of the process.
void registerAppDefaults(SettingsStore& store);

// Writes the default value of every setting of the look, in the order of settingsOfReset.
void resetAppearance(SettingsStore& store);

// The generic category of a typeface.
enum class FontDesign { Default, Serif, Rounded, Monospaced };

// Maps exactly "sans", "rounded" and "mono" to their own designs and every other name to
// Serif.
FontDesign fontDesignNamed(const QString& name);

// Typed getters. Each reads the store at every call, and none checks the range that the
// table gives. If a key has neither a stored nor a registered value, numbers are 0, flags
// are false and texts are the fallback of the table. Main thread.
namespace Prefs {
qint64 paletteIndex(const SettingsStore& store);
double textScale(const SettingsStore& store);
bool grain(const SettingsStore& store);
double vignette(const SettingsStore& store);
double dismissSeconds(const SettingsStore& store);
bool showOnWake(const SettingsStore& store);
QString source(const SettingsStore& store);
QString frequency(const SettingsStore& store);
QString bgImage(const SettingsStore& store);
QStringList customBGs(const SettingsStore& store); // empty unless the value is a list of texts
FontDesign fontDesign(const SettingsStore& store);
} // namespace Prefs

} // namespace morrowleaf
