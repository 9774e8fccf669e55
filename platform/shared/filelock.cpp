// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/filelock.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <thread>

namespace morrowleaf {

QString lockPathOf(const QString& path) {
    const QFileInfo info(path);
    return info.path() + QStringLiteral("/.") + info.fileName() + QStringLiteral(".lock");
}

FileLock::FileLock(const QString& path, std::chrono::milliseconds patience) {
    const QByteArray name = QFile::encodeName(lockPathOf(path));
    // Readable for all who get into the folder: what an administrator's
    // process has created must be lockable by its user too.
    fd_ = ::open(name.constData(), O_RDONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK,
                 S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH);
    if (fd_ < 0) {
        return;
    }
    const QDeadlineTimer deadline(patience);
    for (;;) {
        if (::flock(fd_, LOCK_EX | LOCK_NB) == 0) {
            held_ = true;
            return;
        }
        if ((errno != EWOULDBLOCK && errno != EINTR) || deadline.hasExpired()) {
            return;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(3));
    }
}

FileLock::~FileLock() {
    if (fd_ >= 0) {
        ::close(fd_);
    }
}

} // namespace morrowleaf
