// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "photos/photoreaders.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QThreadPool>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace morrowleaf {

class SettingsStore;
class PhotoImport;

// The folder of the user's own photos. Ends the program (qFatal) if the system has no
// folder for application data.
QString ownPhotoFolder();

// The photos that the user can choose: those shipped with the program and up to three of
// the user's own. A photo is identified by its absolute path. Main thread.
class BGStore {
public:
    static constexpr int limit = 3;

    // Shuts others off, by and by, from the listed photos in `ownFolder` that an earlier
    // version has left open. `workers` do this and whatever else is made of pictures, and must
    // outlive the store. The program passes a pool of its own: Qt paints with the global one
    // and would wait.
    BGStore(SettingsStore& store, QString builtinFolder, QString ownFolder,
            QThreadPool& workers = *QThreadPool::globalInstance());
    // Destroys the copy of an unfinished add() and does not call `done`.
    ~BGStore();

    // Copies an image file to the folder of own photos, which only the user may read, and
    // adds it to the list. Calls `done` later, on this thread, with the new path, or with
    // std::nullopt if the list is full, the copy fails or is cancelled, or the file is
    // larger than 512 MB or not an image that can be decoded.
    void add(const QString& sourcePath, std::function<void(std::optional<QString>)> done);
    // Lets add() calls take as long as they need, until the last of the pointers that this
    // has returned is gone. What has not ended after `time` then is cancelled.
    [[nodiscard]] std::shared_ptr<void> awaitAdds(std::chrono::milliseconds time);
    // Removes the photo from the list and, if it is chosen, from the settings, and deletes
    // the file soon. Ignores errors.
    void remove(const QString& path);
    // The built-in photos, sorted by file name. Reads the folder at every call.
    QStringList builtins() const;
    // Reads the photos, which may have been made by anybody.
    PhotoReaders& readers() { return readers_; }
    QThreadPool& workers() const { return workers_; }

private:
    bool list(const QString& copy);

    SettingsStore& store_;
    QString builtinFolder_;
    QString ownFolder_;
    QThreadPool& workers_;
    PhotoReaders readers_;
    std::unique_ptr<PhotoImport> import_;
    std::weak_ptr<void> awaiting_;
    QObject context_; // of queued calls
};

} // namespace morrowleaf
