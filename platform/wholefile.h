// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace morrowleaf {

// Files that are read and replaced as a whole. Call these on any thread. None
// waits for another process, but a file system that hangs holds them up.

// Tells whether a file is still the one that was read.
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
        Missing,    // no file, or a link to none
        Bytes,      // a regular file within the limit
        Unusable,   // something else stands in the place: too large, a folder, a pipe
        Unreadable, // something may be there, but may not be read
    };

    Kind kind = Kind::Missing;
    QByteArray bytes;
    FileMark mark;
};

// Reads a file of up to `sizeLimit` bytes, through a link too.
[[nodiscard]] WholeFile readWholeFile(const QString& path, qint64 sizeLimit);

enum class Replaced {
    Done,
    Overtaken, // the file is no longer the one with the mark
    Failed,
};

// Puts `bytes` in the place of the file that had `mark` when it was read:
// written beside it, flushed to the disk and renamed over it, so that no reader
// ever sees a part of it. Through a link the file that it names is replaced.
// Keeps the permissions and the owner; a new file is for the user alone. A file
// whose permissions keep its owner from writing it is left alone.
[[nodiscard]] Replaced replaceWholeFile(const QString& path, const QByteArray& bytes,
                                        const FileMark& mark);

// Renames what stands at `path` to a free name beside it and never over
// anything; of a link the link itself, not what it names. Returns the new path,
// empty where it still stands there: not possible, or a file whose permissions
// keep its owner from writing it.
[[nodiscard]] QString setFileAside(const QString& path);

// Creates the folder that `path` lies in, for the user alone. False where there
// is none afterwards.
[[nodiscard]] bool makeFolderOf(const QString& path);

} // namespace morrowleaf
