// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace morrowleaf {

class SettingsStore;

// The generic category of a typeface, where no concrete face is wanted.
enum class FontDesign { Default, Serif, Rounded, Monospaced };

// "sans", "rounded" and "mono" have a design of their own, compared exactly;
// every other name is serif.
FontDesign fontDesignNamed(const QString& name);

// Typed getters over the store; 0 and false when absent. Each reads afresh, none
// checks a range (the usual one is named): a value's reader tolerates what it gets.
namespace Prefs {
qint64 paletteIndex(const SettingsStore& store); // of Palette::all(); -1: of the day
double textScale(const SettingsStore& store);    // 0.7...1.6
bool grain(const SettingsStore& store);
double vignette(const SettingsStore& store);       // strength, 0...0.85
double dismissSeconds(const SettingsStore& store); // 5...60
bool showOnWake(const SettingsStore& store);
QString source(const SettingsStore& store);        // "" when absent
QString frequency(const SettingsStore& store);     // "24h" when absent
QString bgImage(const SettingsStore& store);       // "" when absent
QStringList customBGs(const SettingsStore& store); // empty unless a list of texts
FontDesign fontDesign(const SettingsStore& store); // serif when absent
} // namespace Prefs

} // namespace morrowleaf
