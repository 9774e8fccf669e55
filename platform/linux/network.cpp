// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/network.h"

#include <QDirIterator>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

QByteArray certificateFolder() {
    // Some systems keep only one large file there.
    const auto folder = u"/etc/ssl/certs"_s;
    return QDirIterator(folder, {u"????????.0"_s}).hasNext() ? QFile::encodeName(folder)
                                                             : QByteArray();
}

} // namespace morrowleaf
