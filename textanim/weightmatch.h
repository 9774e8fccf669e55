// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainterPath>
#include <QRawFont>

namespace morrowleaf {

// By how much the edges of the letters of `face` have to be moved, as a fraction of the
// font size, for strokes like those of `requested`, for which it stands in. Positive
// makes letters heavier.
double weightCorrection(const QRawFont& face, const QRawFont& requested);

// The outline with its edges moved outwards by `distance`, in its own units; with a
// negative one, inwards.
QPainterPath withMovedEdges(const QPainterPath& outline, double distance);

} // namespace morrowleaf
