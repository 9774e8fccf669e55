#pragma once

#include <QByteArray>
#include <QString>

#include <sys/types.h>

#include <ctime>

namespace morrowleaf {

// Larger files are no settings.
inline constexpr qint64 settingsSizeLimit = qint64(16) * 1024 * 1024;

// Tells whether a file is still the one that was read.
struct FileMark {
    bool exists = false;
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    qint64 modified = 0; // nanoseconds, as is the next
    qint64 touched = 0;

    bool operator==(const FileMark&) const = default;
};

struct SettingsRead {
    enum class Kind {
        Missing,    // nothing there, or a link to nothing
        Text,       // a regular file of bounded size
        Unusable,   // something else stands in the place: too large, a folder, a pipe
        Unreadable, // something may be there, but not for us
    };

    Kind kind = Kind::Missing;
    QByteArray text;
    FileMark mark;
};

// All of these follow a link at `path`, wait for no other process (a file
// system that hangs is another matter) and run on any thread.

SettingsRead readSettings(const QString& path);

enum class Replaced { Done, Overtaken, Failed };

// Puts `text` in the place of the file that had `mark` when it was read:
// written beside it, flushed to the disk and renamed over it, so that no
// reader ever sees a part of it. Through a link the file that it names is
// replaced. Keeps the permissions and the owner of what was there; a new file
// is for the user alone. `exclusive` says that a lock keeps others away.
Replaced replaceSettings(const QString& path, const QByteArray& text, const FileMark& mark,
                         bool exclusive);

// Renames whatever stands at `path` to a free name beside it and never over
// anything. False where that is not possible: it still stands there.
bool setSettingsAside(const QString& path);

// Creates the folder of `path`, for the user alone.
bool makeSettingsFolder(const QString& path);

// The file that a write to `path` would replace: `path` itself, or the end of
// a chain of links. Empty where the links form a circle.
QString settingsTarget(const QString& path);

} // namespace morrowleaf
