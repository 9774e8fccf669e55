// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

class QFile;
class QString;

namespace morrowleaf {

// Reading and replacing files as a whole. Any thread. No function waits for another
// process, but each blocks as long as the file system does.

// Identifies the version of a file, to detect that another one has replaced it.
struct FileMark {
    bool exists = false;
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;     // bytes
    qint64 modified = 0; // contents, nanoseconds since 1970
    qint64 touched = 0;  // contents or attributes, nanoseconds since 1970

    bool operator==(const FileMark&) const = default;
};

struct WholeFile {
    enum class Kind {
        Missing,    // no file, or a link to a missing file
        Bytes,      // a regular file within the limit
        Unusable,   // not a regular file, or above the limit
        Unreadable, // may exist, but may not be read
    };

    Kind kind = Kind::Missing;
    QByteArray bytes;
    FileMark mark;
};

// Reads a regular file of up to `sizeLimit` bytes. Follows links.
[[nodiscard]] WholeFile readWholeFile(const QString& path, qint64 sizeLimit);

enum class Replaced {
    Done,
    Overtaken, // the file no longer has the mark
    Failed,
};

// Replaces the content of the file that had `mark` when it was read: writes a new file
// beside it, flushes it to the disk and renames it over the old one, so that no reader
// sees a partial file. Follows links and replaces their target. Keeps permissions and
// owner; a new file is accessible to the user only. Fails on a file that its owner may
// not write.
[[nodiscard]] Replaced replaceWholeFile(const QString& path, const QByteArray& bytes,
                                        const FileMark& mark);

// Renames the file, link or folder at `path` to a free name beside it, without ever
// overwriting anything; of a link, the link itself and not its target. Returns the new
// path, or an empty string if that fails or if the owner may not write the file.
[[nodiscard]] QString setFileAside(const QString& path);

// Creates the folder of `path` and missing folders above it, accessible to the user only.
// Returns whether the folder exists afterwards.
[[nodiscard]] bool makeFolderOf(const QString& path);

// Opens the regular file at `path` for reading into `file`, unbuffered. Returns false if
// there is no such file or it may not be read. Rejects pipes, devices, sockets and
// folders without blocking, which QFile::open() does not guarantee. Any thread.
[[nodiscard]] bool openRegularFile(QFile& file, const QString& path);

} // namespace morrowleaf
