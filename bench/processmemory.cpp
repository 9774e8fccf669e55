// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "bench/processmemory.h"

#include <QByteArray>
#include <QFile>

#include <malloc.h>

namespace {

qint64 statusKilobytes(const QByteArray& name) {
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith(name + ':')) {
                return line.mid(name.size() + 1).simplified().split(' ').value(0).toLongLong();
            }
        }
    }
    return 0;
}

} // namespace

qint64 residentKilobytes() {
    return statusKilobytes("VmRSS");
}

qint64 peakKilobytes() {
    return statusKilobytes("VmHWM");
}

void forgetPeak() {
    malloc_trim(0);
    QFile refs(QStringLiteral("/proc/self/clear_refs"));
    if (refs.open(QIODevice::WriteOnly)) {
        refs.write("5");
    }
}
