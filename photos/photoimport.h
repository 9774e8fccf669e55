// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/job.h"

#include <QString>

#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <stop_token>

class QThreadPool;

namespace morrowleaf {

// Copies photos on a thread of a pool, one after the other, and checks that they can be
// decoded. The destructor removes copies that have not been reported; it waits for the
// copying to stop (for one piece of a file at most), but not for a decoder. Main thread.
class PhotoImport {
public:
    using Done = std::function<void(bool)>;

    explicit PhotoImport(QThreadPool& workers);
    ~PhotoImport();
    PhotoImport(const PhotoImport&) = delete;
    PhotoImport& operator=(const PhotoImport&) = delete;

    // Copies `source` to the new file `destination`. Calls `done` later, on this thread;
    // false means that no copy exists.
    void start(const QString& source, const QString& destination, Done done);

private:
    struct Request {
        QString source;
        QString destination;
        Done done;
    };

    void work();
    void finish(bool copied);

    QThreadPool& workers_;
    std::deque<Request> requests_; // the first one is in progress
    std::shared_ptr<std::mutex> copying_ = std::make_shared<std::mutex>(); // held during a copy
    Job job_;
};

// Copies a regular file byte for byte to a new file. Returns false and leaves no copy on
// failure or if `stop` is requested. An existing file at `destination` is a failure and
// stays untouched. Any thread.
[[nodiscard]] bool copyPhotoFile(const QString& source, const QString& destination,
                                 const std::stop_token& stop);

} // namespace morrowleaf
