// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/job.h"
#include "base/stoptoken.h"
#include "platform/readers.h"

#include <QString>
#include <QTimer>

#include <chrono>
#include <functional>
#include <list>
#include <memory>

class QThreadPool;

namespace morrowleaf {

class PhotoReaders;

// Copies a regular file of up to 512 MB byte for byte to a new file that only the user
// may read. Returns false and leaves no copy on failure or if `stop` is requested. An
// existing file at `destination` is a failure and stays untouched. Any thread.
[[nodiscard]] bool copyPhotoFile(const QString& source, const QString& destination,
                                 const StopToken& stop);

// Copies photos, checks that they can be decoded, and removes them. The copies run beside
// each other, so that one from a slow disk does not hold up the others.
//
// The destructor removes copies that have not been reported. It takes up to 200 ms and
// abandons threads that a file system still blocks then. Main thread.
class PhotoImport {
public:
    using Done = std::function<void(bool)>;
    // As copyPhotoFile().
    using Copy = std::function<bool(const QString& source, const QString& destination,
                                    const StopToken& stop)>;

    // `readers` look at the photos and must outlive the import. Several threads call `copy`.
    explicit PhotoImport(PhotoReaders& readers, Copy copy = copyPhotoFile);
    ~PhotoImport();
    PhotoImport(const PhotoImport&) = delete;
    PhotoImport& operator=(const PhotoImport&) = delete;

    // Copies `source` to the new file `destination`. Calls `done` later, on this thread;
    // false means that no copy exists.
    void start(const QString& source, const QString& destination, Done done);
    // Deletes a file, later and on another thread. Ignores errors.
    void remove(const QString& path);
    // Cancels what has been started so far and has not ended after `time`, unless keep()
    // is called before. Calls `done` with false.
    void cancelAfter(std::chrono::milliseconds time);
    void keep() { cancelTimer_.stop(); }

private:
    struct Request {
        int number;
        QString destination;
        Done done;
        Reading reading;
        Job copying;
    };
    using Requests = std::list<Request>;

    void copy(Requests::iterator request, const QString& source);
    void check(Requests::iterator request);
    void finish(Requests::iterator request, bool usable);
    void cancel();

    PhotoReaders& readers_;
    Copy copy_;
    std::unique_ptr<QThreadPool> copiers_;
    Requests requests_; // in progress
    int lastNumber_ = 0;
    int lastToCancel_ = 0;
    QTimer cancelTimer_;
};

} // namespace morrowleaf
