// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "photos/photo.h"

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <optional>

namespace morrowleaf {

class SettingsStore;
class PhotoImport;

// Where the user's own photos are kept. A system that has no place for the
// data of programs is a fatal error.
QString ownPhotoFolder();

// The photos that can be chosen: those shipped with the program and up to
// three of the user's own. A photo is named by its absolute path. Lives on the
// main thread.
class BGStore {
public:
    static constexpr int limit = 3;

    // `workers` copy and decode. The global pool is the toolkit's own too: it
    // paints with it, and would wait for a photo.
    BGStore(SettingsStore& store, QString builtinFolder, QString ownFolder,
            QThreadPool& workers = *QThreadPool::globalInstance());
    ~BGStore(); // an unfinished add leaves nothing behind, and is not reported

    // Copies an image file into the own photos and lists it; the new path, or
    // nothing when the list is full, the copy fails or it is no usable image.
    // The copying runs in a worker; `done` is called later, on the main thread.
    void add(const QString& sourcePath, std::function<void(std::optional<QString>)> done);
    // Deletes the file, forgets the photo and, if it was chosen, the choice.
    void remove(const QString& path);
    QStringList builtins() const; // listed afresh, by file name
    // The same object on every call while it is readable; null otherwise.
    std::shared_ptr<const Photo> image(const QString& path);
    // A decode failed: the photo no longer counts as readable, until another
    // file stands at its path.
    void markUnreadable(const QString& path);
    // For what decodes photos.
    QThreadPool& workers() const { return workers_; }

private:
    struct FileStamp {
        qint64 size = -1;
        QDateTime changed;
        bool operator==(const FileStamp&) const = default;
    };
    static FileStamp stampOf(const QString& path);
    bool list(const QString& copy);

    SettingsStore& store_;
    QString builtinFolder_;
    QString ownFolder_;
    QThreadPool& workers_;
    QHash<QString, std::shared_ptr<const Photo>> cache_;
    QHash<QString, FileStamp> unreadable_;
    std::unique_ptr<PhotoImport> import_;
    QObject context_; // of refusals, which are posted
};

} // namespace morrowleaf
