// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "photos/photocopy.h"

#include "platform/regularfile.h"

#include <QByteArray>
#include <QFile>

namespace morrowleaf {
namespace {

constexpr qint64 chunkSize = 1 << 20; // bytes

bool copyBytes(QFile& from, QFile& to, const std::atomic<bool>& cancelled) {
    QByteArray chunk(chunkSize, Qt::Uninitialized);
    while (!cancelled) {
        const qint64 read = from.read(chunk.data(), chunkSize);
        if (read <= 0) {
            return read == 0 && to.flush();
        }
        for (qint64 done = 0; done < read;) {
            const qint64 written = to.write(chunk.constData() + done, read - done);
            if (written <= 0) {
                return false;
            }
            done += written;
        }
    }
    return false;
}

} // namespace

bool copyPhotoFile(const QString& source, const QString& destination,
                   const std::atomic<bool>& cancelled) {
    QFile from;
    QFile to(destination);
    if (!openRegularFile(from, source) ||
        !to.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)) {
        return false;
    }
    const bool copied = copyBytes(from, to, cancelled);
    to.close();
    if (!copied || to.error() != QFileDevice::NoError) {
        QFile::remove(destination);
        return false;
    }
    return true;
}

} // namespace morrowleaf
