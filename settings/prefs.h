// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace morrowleaf {

class SettingsStore;

// Registers the factory values of the table for the life of the process.
void registerAppDefaults(SettingsStore& store);

// Stores the factory value of every setting of the look, in the order that the
// table gives.
void resetAppearance(SettingsStore& store);

// The generic category of a typeface, where no concrete face is wanted.
enum class FontDesign { Default, Serif, Rounded, Monospaced };

// "sans", "rounded" and "mono" have a design of their own, compared exactly;
// every other name is serif.
FontDesign fontDesignNamed(const QString& name);

// Typed getters. Each reads the store afresh and none checks the range that the
// table gives. Without a value, not even a registered one, numbers are zero,
// flags are false and texts are their fallback in the table.
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
QStringList customBGs(const SettingsStore& store); // empty unless a list of texts
FontDesign fontDesign(const SettingsStore& store);
} // namespace Prefs

} // namespace morrowleaf
