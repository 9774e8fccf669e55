// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/files.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QString>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr mode_t ownFile = S_IRUSR | S_IWUSR;
constexpr mode_t ownFolder = S_IRWXU;

// Wraps around after the year 2262; the values are only compared for equality.
qint64 nanoseconds(const timespec& time) {
    return static_cast<qint64>(static_cast<quint64>(time.tv_sec) * 1'000'000'000 +
                               static_cast<quint64>(time.tv_nsec));
}

#ifdef __APPLE__
const timespec& modifiedAt(const struct stat& found) {
    return found.st_mtimespec;
}
const timespec& touchedAt(const struct stat& found) {
    return found.st_ctimespec;
}
#else
const timespec& modifiedAt(const struct stat& found) {
    return found.st_mtim;
}
const timespec& touchedAt(const struct stat& found) {
    return found.st_ctim;
}
#endif

FileMark markOf(const struct stat& found) {
    return {true,
            static_cast<quint64>(found.st_dev), // signed on macOS
            found.st_ino,
            found.st_size,
            nanoseconds(modifiedAt(found)),
            nanoseconds(touchedAt(found))};
}

bool find(const QString& path, struct stat& found) {
    return ::stat(QFile::encodeName(path).constData(), &found) == 0;
}

bool ownerMayWrite(const struct stat& file) {
    return (file.st_mode & S_IWUSR) != 0;
}

// The path at the end of a chain of links; empty if the links form a circle.
QString endOfLinks(QString path) {
    for (int links = 0; links < 40; ++links) {
        const QString next = QFileInfo(path).symLinkTarget();
        if (next.isEmpty()) {
            return path;
        }
        path = next;
    }
    return {};
}

// Gives the new file the owner, group and permissions of the old one. Returns false if
// the owner cannot be kept.
bool copyOwnership(const struct stat& old, int handle) {
    struct stat made {};
    if (::fstat(handle, &made) != 0) {
        return false;
    }
    if (made.st_uid != old.st_uid && ::fchown(handle, old.st_uid, old.st_gid) != 0) {
        return false;
    }
    if (made.st_gid != old.st_gid) {
        // Only root may set any group; failing to set it does not matter.
        [[maybe_unused]] const int given = ::fchown(handle, old.st_uid, old.st_gid);
    }
    return ::fchmod(handle, old.st_mode & ALLPERMS) == 0;
}

// A rename is on the disk once its folder is flushed. Errors are ignored, because some
// file systems cannot flush folders.
void syncFolderOf(const QString& path) {
    const int folder = ::open(QFile::encodeName(QFileInfo(path).path()).constData(),
                              O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        ::fsync(folder);
        ::close(folder);
    }
}

// Creates an empty file or folder with a free name beside `victim` and returns its path;
// empty on failure.
QString reserveBeside(const QFileInfo& victim, bool folder) {
    const QString stem = victim.path() + u'/' + victim.completeBaseName() + ".broken-"_L1 +
                         QDateTime::currentDateTimeUtc().toString(u"yyyyMMdd-HHmmss"_s);
    const QString suffix = victim.suffix().isEmpty() ? QString() : u'.' + victim.suffix();
    for (int attempt = 1; attempt <= 1000; ++attempt) {
        const QString number = attempt == 1 ? QString() : u'-' + QString::number(attempt);
        QString free = stem + number + suffix;
        const QByteArray name = QFile::encodeName(free);
        const int made = folder ? ::mkdir(name.constData(), ownFolder)
                                : ::open(name.constData(), O_CREAT | O_EXCL | O_CLOEXEC, ownFile);
        if (made >= 0) {
            if (!folder) {
                ::close(made);
            }
            return free;
        }
        if (errno != EEXIST) {
            break;
        }
    }
    return {};
}

} // namespace

WholeFile readWholeFile(const QString& path, qint64 sizeLimit) {
    using Kind = WholeFile::Kind;
    struct stat found {};
    if (!find(path, found)) {
        const bool missing = errno == ENOENT || errno == ENOTDIR;
        return {missing          ? Kind::Missing
                : errno == ELOOP ? Kind::Unusable
                                 : Kind::Unreadable,
                {},
                {}};
    }
    if (!S_ISREG(found.st_mode) || found.st_size > sizeLimit) {
        return {Kind::Unusable, {}, markOf(found)};
    }
    QFile file;
    if (!openRegularFile(file, path) || ::fstat(file.handle(), &found) != 0) {
        return {Kind::Unreadable, {}, {}};
    }
    QByteArray bytes = file.read(sizeLimit + 1);
    if (file.error() != QFileDevice::NoError) {
        return {Kind::Unreadable, {}, markOf(found)};
    }
    if (bytes.size() > sizeLimit) {
        return {Kind::Unusable, {}, markOf(found)};
    }
    return {Kind::Bytes, std::move(bytes), markOf(found)};
}

Replaced replaceWholeFile(const QString& path, const QByteArray& bytes, const FileMark& mark) {
    const QString target = endOfLinks(path);
    struct stat found {};
    const bool exists = find(target, found);
    if (target.isEmpty() || (exists && !ownerMayWrite(found))) {
        return Replaced::Failed;
    }
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
        !(exists ? copyOwnership(found, file.handle()) : ::fchmod(file.handle(), ownFile) == 0) ||
        ::fsync(file.handle()) != 0) {
        return Replaced::Failed;
    }
    // Checked as late as possible, because editors take no lock.
    if ((find(target, found) ? markOf(found) : FileMark{}) != mark) {
        return Replaced::Overtaken;
    }
    if (!file.commit()) {
        return Replaced::Failed;
    }
    syncFolderOf(target);
    return Replaced::Done;
}

QString setFileAside(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    struct stat found {};
    if (::lstat(name.constData(), &found) != 0 ||
        (S_ISREG(found.st_mode) && !ownerMayWrite(found))) {
        return {};
    }
    QString aside = reserveBeside(QFileInfo(path), S_ISDIR(found.st_mode));
    if (aside.isEmpty()) {
        return {};
    }
    if (std::rename(name.constData(), QFile::encodeName(aside).constData()) != 0) {
        std::remove(QFile::encodeName(aside).constData());
        return {};
    }
    syncFolderOf(path);
    return aside;
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
