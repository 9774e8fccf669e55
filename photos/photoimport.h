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

// Copies photos on a thread of a pool, one after the other, and checks that
// they can be decoded. Destroying it removes what has not been reported; that
// waits for the copying to stop (at most for one piece of a file), not for a
// decoder.
class PhotoImport {
public:
    using Done = std::function<void(bool)>;

    explicit PhotoImport(QThreadPool& workers);
    ~PhotoImport();
    PhotoImport(const PhotoImport&) = delete;
    PhotoImport& operator=(const PhotoImport&) = delete;

    // Copies `source` to the new file `destination`. `done` is called later, on
    // this thread; on false there is no copy.
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
    std::deque<Request> requests_; // the first is being worked on
    std::shared_ptr<std::mutex> copying_ = std::make_shared<std::mutex>(); // held by the worker
    Job job_;
};

// Copies a regular file byte for byte to a new file. On failure, and where
// `stop` is requested on the way, returns false and leaves no copy. Where
// something exists at `destination` already, that is a failure and it is left
// alone. Any thread.
[[nodiscard]] bool copyPhotoFile(const QString& source, const QString& destination,
                                 const std::stop_token& stop);

} // namespace morrowleaf
