// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QtGlobal>

class QPainter;

namespace morrowleaf {

struct TextOutline;

// All draw with the origin of the text at the painter's origin.
void paintOutline(QPainter& painter, const TextOutline& text, const QColor& color);
// The first characters only, each where it stands in the whole text.
void paintTyped(QPainter& painter, const TextOutline& text, qsizetype characters,
                const QColor& color);

} // namespace morrowleaf
