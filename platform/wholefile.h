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
        Missing,    // nothing there, or a link to nothing
        Bytes,      // a regular file within the limit
        Unusable,   // something else stands in the place: too large, a folder, a pipe
        Unreadable, // something may be there, but not for us
    };

    Kind kind = Kind::Missing;
    QByteArray bytes;
    FileMark mark;
};

// Reads a file of up to `sizeLimit` bytes, through a link too.
WholeFile readWholeFile(const QString& path, qint64 sizeLimit);

enum class Replaced { Done, Overtaken, Failed };

// Puts `bytes` in the place of the file that had `mark` when it was read:
// written beside it, flushed to the disk and renamed over it, so that no
// reader ever sees a part of it. Through a link the file that it names is
// replaced. Keeps the permissions and the owner of what was there; a new file
// is for the user alone. `exclusive` says that a lock keeps others away.
Replaced replaceWholeFile(const QString& path, const QByteArray& bytes, const FileMark& mark,
                          bool exclusive);

// Renames what stands at `path` to a free name beside it and never over
// anything: the file that a link leads to, or the link itself where it leads to
// anything but a regular file. False where that is not possible: it still stands there.
bool setFileAside(const QString& path);

// Creates the folder that `path` lies in, for the user alone.
bool makeFolderOf(const QString& path);

// The file that a write to `path` would replace: `path` itself, or the end of
// a chain of links. Empty where the links form a circle.
QString linkTarget(const QString& path);

} // namespace morrowleaf
