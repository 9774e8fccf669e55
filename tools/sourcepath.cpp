// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "tools/sourcepath.h"

namespace morrowleaf {

QString sourcePath(const QString& relative) {
    return QLatin1StringView(MORROWLEAF_SOURCE_DIR "/") + relative;
}

} // namespace morrowleaf
