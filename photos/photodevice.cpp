// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "photos/photodevice.h"

#include "platform/regularfile.h"

namespace morrowleaf {

PhotoDevice::PhotoDevice(const QString& path, Bounds bounds)
    : deadline_(bounds.time)
    , bytesLeft_(bounds.bytes) {
    if (openRegularFile(file_, path)) {
        open(QIODevice::ReadOnly);
    }
}

bool PhotoDevice::seek(qint64 pos) {
    return QIODevice::seek(pos) && file_.seek(pos);
}

qint64 PhotoDevice::readData(char* data, qint64 maxSize) {
    if (deadline_.hasExpired() || bytesLeft_ <= 0) {
        exhausted_ = true;
        return -1;
    }
    const qint64 read = file_.read(data, qMin(maxSize, bytesLeft_));
    bytesLeft_ -= qMax<qint64>(read, 0);
    exhausted_ = bytesLeft_ <= 0;
    return read;
}

} // namespace morrowleaf
