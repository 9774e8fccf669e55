// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/regularfile.h"

#include <QFile>
#include <QString>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace morrowleaf {

bool openRegularFile(QFile& file, const QString& path) {
    if (path.isEmpty() || path.contains(QChar(0))) {
        return false;
    }
    const int fd =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0) {
        return false;
    }
    struct stat info {};
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode) ||
        !file.open(fd, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        return false;
    }
    return true;
}

} // namespace morrowleaf
