// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>
#include <QLabel>
#include <QPalette>
#include <QString>

namespace morrowleaf {

// The look of the appearance editor: light text on a dark, translucent panel that is
// legible over any palette and any photo.
namespace PanelStyle {
inline constexpr int margin = 20;       // points to the left and right of the content
inline constexpr int groupSpacing = 20; // points between groups
inline constexpr int titleSpacing = 10; // points between a title and its group
inline constexpr int paletteColumns = 5;
inline constexpr int photoColumns = 3;
inline constexpr int gutter = 8;        // points between swatches
inline constexpr int tileHeight = 38;   // points
inline constexpr double tileRadius = 6; // points
inline constexpr int focusRoom = 3;     // points around a control, for its focus ring

QColor veil();              // the panel's background, translucent
QColor menuGround();        // the background of an open menu, opaque
QColor ink(double opacity); // white; the opacity is from 0 to 1
QColor focusRing();
QPalette palette();
} // namespace PanelStyle

// `face` at `size` points, with `tracking` points added after each letter where the script
// of the language allows it.
QFont panelFont(const QFont& face, double size, QFont::Weight weight = QFont::Normal,
                double tracking = 0);

QLabel* panelLabel(const QString& text, const QFont& font, double opacity, QWidget* parent);

// A horizontal line, one point high; the opacity is from 0 to 1.
QWidget* panelDivider(double opacity, QWidget* parent);

// Draws a ring around a focused control of this shape; the radius is in points.
void paintFocusRing(QPainter& painter, const QRectF& shape, double radius);

} // namespace morrowleaf
