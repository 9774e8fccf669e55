// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QList>
#include <QStringList>

namespace morrowleaf {

// The pictures side by side in rows, each `cellWidth` pixels wide, with a
// caption beneath.
QImage contactSheet(const QList<QImage>& pictures, const QStringList& captions, int columns,
                    int cellWidth);

} // namespace morrowleaf
