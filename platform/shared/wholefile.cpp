// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/wholefile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <optional>

namespace morrowleaf {

namespace {

constexpr mode_t ownFile = S_IRUSR | S_IWUSR;
constexpr mode_t ownFolder = S_IRWXU;

class Descriptor {
public:
    explicit Descriptor(int fd)
        : fd_(fd) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (fd_ >= 0) {
            ::close(fd_);
        }
    }

    int get() const { return fd_; }
    explicit operator bool() const { return fd_ >= 0; }

private:
    int fd_;
};

template <typename Call>
auto restarted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

Descriptor opened(const QString& path, int flags, mode_t mode = 0) {
    const QByteArray name = QFile::encodeName(path);
    return Descriptor(
        restarted([&] { return ::open(name.constData(), flags | O_CLOEXEC | O_NOCTTY, mode); }));
}

qint64 nanoseconds(const timespec& time) {
    return static_cast<qint64>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

FileMark markOf(const struct stat& found) {
    return {true,
            found.st_dev,
            found.st_ino,
            found.st_size,
            nanoseconds(found.st_mtim),
            nanoseconds(found.st_ctim)};
}

std::optional<QByteArray> readAll(int fd, qint64 sizeLimit) {
    QByteArray bytes;
    QByteArray piece(qsizetype(64) * 1024, Qt::Uninitialized);
    while (bytes.size() <= sizeLimit) {
        const ssize_t count =
            restarted([&] { return ::read(fd, piece.data(), static_cast<size_t>(piece.size())); });
        if (count < 0) {
            return std::nullopt;
        }
        if (count == 0) {
            return bytes;
        }
        bytes.append(piece.constData(), count);
    }
    return bytes;
}

bool writeAll(int fd, const QByteArray& bytes) {
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t count = restarted([&] {
            return ::write(fd, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
        });
        if (count <= 0) {
            return false;
        }
        done += count;
    }
    return restarted([&] { return ::fsync(fd); }) == 0;
}

// A rename is on the disk once its folder is. Where a file system has no such
// thing the rename counts all the same.
void syncFolder(const QString& folder) {
    if (const Descriptor handle = opened(folder, O_RDONLY | O_DIRECTORY)) {
        restarted([&] { return ::fsync(handle.get()); });
    }
}

void removeFile(const QString& path) {
    ::unlink(QFile::encodeName(path).constData());
}

bool renameTo(const QString& from, const QString& to) {
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

// The name that replacing uses beside `target`. Under the lock one fixed name
// is enough, and what a crash left behind is used up by the next write.
QString besideName(const QFileInfo& target, bool exclusive) {
    const QString part = exclusive ? QString() : QStringLiteral(".%1").arg(::getpid());
    return target.path() + QStringLiteral("/.") + target.fileName() + part + QStringLiteral(".new");
}

bool writeBeside(const QString& beside, const QByteArray& bytes, const struct stat* model) {
    removeFile(beside);
    const Descriptor file = opened(beside, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, ownFile);
    if (!file) {
        return false;
    }
    if (model != nullptr) {
        if (model->st_uid != ::geteuid() || model->st_gid != ::getegid()) {
            // Root may give the file back to its owner, others need not try harder.
            [[maybe_unused]] const int given = ::fchown(file.get(), model->st_uid, model->st_gid);
        }
        [[maybe_unused]] const int set = ::fchmod(file.get(), model->st_mode & ALLPERMS);
    }
    return writeAll(file.get(), bytes);
}

// An empty file or folder of a name that nothing had before; empty on failure.
QString reserveBeside(const QFileInfo& victim, bool folder) {
    const QString stem =
        victim.path() + u'/' + victim.completeBaseName() + QStringLiteral(".broken-") +
        QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const QString suffix = victim.suffix().isEmpty() ? QString() : u'.' + victim.suffix();
    for (int attempt = 0; attempt < 1000; ++attempt) {
        const QString number = attempt == 0 ? QString() : QStringLiteral("-%1").arg(attempt + 1);
        QString name = stem + number + suffix;
        const bool made = folder ? ::mkdir(QFile::encodeName(name).constData(), ownFolder) == 0
                                 : bool(opened(name, O_WRONLY | O_CREAT | O_EXCL, ownFile));
        if (made) {
            return name;
        }
        if (errno != EEXIST) {
            return {};
        }
    }
    return {};
}

} // namespace

QString linkTarget(const QString& path) {
    QString target = path;
    for (int links = 0; links < 40; ++links) {
        const QByteArray name = QFile::encodeName(target);
        QByteArray to(4096, '\0');
        const ssize_t length =
            ::readlink(name.constData(), to.data(), static_cast<size_t>(to.size()));
        if (length <= 0 || length >= to.size()) {
            return target;
        }
        const QString next = QFile::decodeName(to.left(length));
        target = QDir::isAbsolutePath(next) ? next : QFileInfo(target).path() + u'/' + next;
    }
    return {};
}

WholeFile readWholeFile(const QString& path, qint64 sizeLimit) {
    using Kind = WholeFile::Kind;
    struct stat found {};
    if (::stat(QFile::encodeName(path).constData(), &found) != 0) {
        if (errno == ENOENT || errno == ENOTDIR) {
            return {};
        }
        return {errno == ELOOP ? Kind::Unusable : Kind::Unreadable, {}, {}};
    }
    if (!S_ISREG(found.st_mode) || found.st_size > sizeLimit) {
        return {Kind::Unusable, {}, markOf(found)};
    }
    // It may have become a pipe since.
    const Descriptor file = opened(path, O_RDONLY | O_NONBLOCK);
    if (!file) {
        return {errno == ENOENT ? Kind::Missing : Kind::Unreadable, {}, {}};
    }
    if (::fstat(file.get(), &found) != 0) {
        return {Kind::Unreadable, {}, {}};
    }
    if (!S_ISREG(found.st_mode)) {
        return {Kind::Unusable, {}, markOf(found)};
    }
    const std::optional<QByteArray> bytes = readAll(file.get(), sizeLimit);
    if (!bytes) {
        return {Kind::Unreadable, {}, markOf(found)};
    }
    if (bytes->size() > sizeLimit) {
        return {Kind::Unusable, {}, markOf(found)};
    }
    return {Kind::Bytes, *bytes, markOf(found)};
}

Replaced replaceWholeFile(const QString& path, const QByteArray& bytes, const FileMark& mark,
                          bool exclusive) {
    const QString target = linkTarget(path);
    if (target.isEmpty()) {
        return Replaced::Failed;
    }
    const QByteArray name = QFile::encodeName(target);
    struct stat now {};
    const bool exists = ::stat(name.constData(), &now) == 0;
    const QString beside = besideName(QFileInfo(target), exclusive);
    if (!writeBeside(beside, bytes, exists ? &now : nullptr)) {
        removeFile(beside);
        return Replaced::Failed;
    }
    // Looked at as late as can be: an editor takes no lock.
    const FileMark last = ::stat(name.constData(), &now) == 0 ? markOf(now) : FileMark{};
    if (last != mark) {
        removeFile(beside);
        return Replaced::Overtaken;
    }
    if (!renameTo(beside, target)) {
        removeFile(beside);
        return Replaced::Failed;
    }
    syncFolder(QFileInfo(target).path());
    return Replaced::Done;
}

bool setFileAside(const QString& path) {
    const QString target = linkTarget(path);
    struct stat found {};
    const bool regular = !target.isEmpty() &&
                         ::stat(QFile::encodeName(target).constData(), &found) == 0 &&
                         S_ISREG(found.st_mode);
    // Of a link to a device, a pipe or a folder only the link is ours to move.
    const QString victim = regular ? target : path;
    if (::lstat(QFile::encodeName(victim).constData(), &found) != 0) {
        return false;
    }
    const QString aside = reserveBeside(QFileInfo(victim), S_ISDIR(found.st_mode));
    if (aside.isEmpty()) {
        return false;
    }
    if (!renameTo(victim, aside)) {
        std::remove(QFile::encodeName(aside).constData());
        return false;
    }
    syncFolder(QFileInfo(victim).path());
    return true;
}

bool makeFolderOf(const QString& path) {
    const QString folder = QFileInfo(path).path();
    if (QFileInfo(folder).isDir()) {
        return true;
    }
    if (folder == path || !makeFolderOf(folder)) {
        return false;
    }
    return ::mkdir(QFile::encodeName(folder).constData(), ownFolder) == 0 || errno == EEXIST;
}

} // namespace morrowleaf
