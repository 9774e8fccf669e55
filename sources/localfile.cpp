#include "sources/localfile.h"

#include "platform/regularfile.h"

#include <QScopeGuard>

#include <array>
#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace morrowleaf {

std::optional<QByteArray> readLocalFile(const QString& path, qsizetype limit,
                                        const std::function<bool()>& stopped) {
    const int fd = openRegularFile(path);
    if (fd < 0) {
        return std::nullopt;
    }
    const auto close = qScopeGuard([fd] { ::close(fd); });
    struct stat info {};
    // The size is a hint only: files of the kernel say 0, and a file may grow.
    if (::fstat(fd, &info) != 0 || info.st_size > limit) {
        return std::nullopt;
    }
    QByteArray bytes;
    bytes.reserve(info.st_size);
    std::array<char, 65536> piece{};
    while (!stopped()) {
        const ssize_t got = ::read(fd, piece.data(), piece.size());
        if (got == 0) {
            return bytes;
        }
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0 || bytes.size() + got > limit) {
            return std::nullopt;
        }
        bytes.append(piece.data(), got);
    }
    return std::nullopt;
}

} // namespace morrowleaf
