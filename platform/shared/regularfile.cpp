#include "platform/regularfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace morrowleaf {

int openRegularFile(const QString& path) {
    if (path.isEmpty() || path.contains(QChar(0))) {
        return -1;
    }
    const int fd =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0) {
        return -1;
    }
    struct stat info {};
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        ::close(fd);
        return -1;
    }
    return fd;
}

bool openRegularFile(QFile& file, const QString& path) {
    const int fd = openRegularFile(path);
    if (fd < 0) {
        return false;
    }
    if (!file.open(fd, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        return false;
    }
    return true;
}

} // namespace morrowleaf
