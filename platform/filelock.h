// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <chrono>

namespace morrowleaf {

// Keeps other processes of this program from replacing the file at `path`
// meanwhile. The kernel lets go of it when its holder dies, so that it cannot
// become stale; where it cannot be had in time (its holder is stopped, the
// file system knows no locks) the work goes on without it.
class FileLock {
public:
    FileLock(const QString& path, std::chrono::milliseconds patience);
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock();

    bool held() const { return held_; }

private:
    int fd_ = -1;
    bool held_ = false;
};

// The file that is locked, beside the one at `path`. It stays there: to
// remove it would let two holders in.
QString lockPathOf(const QString& path);

} // namespace morrowleaf
