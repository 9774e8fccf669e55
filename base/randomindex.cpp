// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "base/randomindex.h"

#include <QRandomGenerator>

namespace morrowleaf {

RandomIndex secureRandomIndex() {
    return [](qsizetype count) -> qsizetype {
        return QRandomGenerator::system()->bounded(qint64{count});
    };
}

} // namespace morrowleaf
