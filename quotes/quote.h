#pragma once

#include <QString>

namespace morrowleaf {

// One quotation. The author may be empty when an outside source gives none.
struct Quote {
    QString text; // without quotation marks
    QString author;
};

} // namespace morrowleaf
