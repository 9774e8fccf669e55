// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

namespace morrowleaf {

struct FileQuestion {
    QString title;
    QString kindName; // what the files are, such as "Images"
    QStringList mimeTypes;
};

struct FileAnswer {
    enum class Kind {
        Chosen,      // `path` is an absolute local path
        Cancelled,   // by the user, or by the end of the dialog's program
        Unavailable, // no dialog was shown; the toolkit's own may be
    };
    Kind kind = Kind::Unavailable;
    QString path;
};

// Lets the user choose one file in the desktop's own dialog.
class FileChooser {
public:
    virtual ~FileChooser() = default;
    FileChooser(const FileChooser&) = delete;
    FileChooser& operator=(const FileChooser&) = delete;

    // Returns at once; `done` is called once, later, unless `window` goes
    // first, which closes the dialog.
    virtual void ask(QWidget& window, const FileQuestion& question,
                     std::function<void(const FileAnswer&)> done) = 0;

protected:
    FileChooser() = default;
};

} // namespace morrowleaf
