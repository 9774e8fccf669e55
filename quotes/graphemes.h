#pragma once

#include <QStringView>

namespace morrowleaf {

// Whether `text` has more than `limit` user-perceived characters (extended
// grapheme clusters); looks no further than it must.
bool hasMoreGraphemes(QStringView text, int limit);

} // namespace morrowleaf
