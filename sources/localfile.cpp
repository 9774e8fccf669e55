// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "sources/localfile.h"

#include "platform/regularfile.h"

#include <QFile>

#include <array>

namespace morrowleaf {

std::optional<QByteArray> readLocalFile(const QString& path, qsizetype limit,
                                        const std::function<bool()>& stopped) {
    QFile file;
    // The size is a hint only: files of the kernel say 0, and a file may grow.
    if (!openRegularFile(file, path) || file.size() > limit) {
        return std::nullopt;
    }
    QByteArray bytes;
    bytes.reserve(file.size());
    std::array<char, 65536> piece{};
    while (!stopped()) {
        const qint64 got = file.read(piece.data(), piece.size());
        if (got == 0) {
            return bytes;
        }
        if (got < 0 || bytes.size() + got > limit) {
            return std::nullopt;
        }
        bytes.append(piece.data(), got);
    }
    return std::nullopt;
}

} // namespace morrowleaf
