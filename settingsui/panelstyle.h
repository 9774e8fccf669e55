// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>
#include <QLabel>
#include <QPalette>
#include <QString>

namespace morrowleaf {

// The look of the appearance editor: light on a dark veil through which the
// picture shows, so that it can be read over any palette and any photo.
namespace PanelStyle {
inline constexpr int margin = 20;       // points, left and right of the content
inline constexpr int groupSpacing = 20; // points between groups
inline constexpr int titleSpacing = 10; // points between a title and its content
inline constexpr int paletteColumns = 5;
inline constexpr int photoColumns = 3;
inline constexpr int gutter = 8;        // points between swatches
inline constexpr int tileHeight = 38;   // points
inline constexpr double tileRadius = 6; // points
inline constexpr int focusRoom = 3;     // points around a control for its focus ring

QColor veil();              // the panel's own colour, translucent
QColor menuGround();        // opaque, of an open menu
QColor ink(double opacity); // white
QColor focusRing();
QPalette palette();
} // namespace PanelStyle

// A face at a size in points; `tracking` is added after each letter.
QFont panelFont(const QFont& face, double size, QFont::Weight weight = QFont::Normal,
                double tracking = 0);

QLabel* panelLabel(const QString& text, const QFont& font, double opacity, QWidget* parent);

// A horizontal line of one point.
QWidget* panelDivider(double opacity, QWidget* parent);

// Outlines `shape` where `widget` has the keyboard.
void paintFocusRing(QPainter& painter, const QRectF& shape, double radius);

} // namespace morrowleaf
