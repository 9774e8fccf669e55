// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace morrowleaf {

// Characters worth laying out on a view of that height (points), with the
// quotation set in `quoteSize` points (above 0) unless it has to shrink, and
// `perLine` of them in a line. More lie beyond the bottom; 2000...20000.
qsizetype seenCharacters(double viewHeight, double quoteSize, int perLine);

// The beginning of `text`: all of it if it has no more than `limit` (above 0)
// user-perceived characters of an ordinary length, else as many whole ones. Of
// a first character beyond all bounds, only its beginning. Looks no further
// into the text than it must.
QString beginningOf(const QString& text, qsizetype limit);

} // namespace morrowleaf
