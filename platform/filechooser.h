// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>

class QWidget;

namespace morrowleaf {

struct FileQuestion {
    QString title;         // of the dialog
    QString kindName;      // of the files to choose from, for example "Images"
    QStringList mimeTypes; // of these files
};

struct FileAnswer {
    enum class Kind {
        Chosen,      // `path` is an absolute local path
        Cancelled,   // by the user, or because the program with the dialog ended
        Unavailable, // no dialog was shown; show one of Qt's own instead
    };
    Kind kind = Kind::Unavailable;
    QString path;
};

// A question that has not been answered yet. Deletes itself after the answer.
class FileRequest : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    // Emitted once, never from within FileChooser::ask().
    void answered(const morrowleaf::FileAnswer& answer);
};

// Lets the user choose one file in the desktop's own dialog. Main thread.
class FileChooser {
public:
    virtual ~FileChooser() = default;
    FileChooser(const FileChooser&) = delete;
    FileChooser& operator=(const FileChooser&) = delete;

    // Opens a dialog that belongs to `window` and returns at once. Destroying `window`
    // closes the dialog without an answer. Returns the request, never null.
    virtual FileRequest* ask(QWidget& window, const FileQuestion& question) = 0;

protected:
    FileChooser() = default;
};

} // namespace morrowleaf
