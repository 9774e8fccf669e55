#include "base/randomindex.h"

#include <QRandomGenerator>

namespace morrowleaf {

RandomIndex secureRandomIndex() {
    return [](qsizetype count) -> qsizetype {
        return QRandomGenerator::system()->bounded(qint64{count});
    };
}

} // namespace morrowleaf
