#pragma once

#include <QString>

#include <chrono>

namespace morrowleaf {

// Keeps other processes of this program from replacing the settings file at
// `path` meanwhile. The kernel lets go of it when its holder dies, so that it
// cannot become stale; where it cannot be had in time (its holder is stopped,
// the file system knows no locks) the work goes on without it.
class SettingsLock {
public:
    SettingsLock(const QString& path, std::chrono::milliseconds patience);
    SettingsLock(const SettingsLock&) = delete;
    SettingsLock& operator=(const SettingsLock&) = delete;
    ~SettingsLock();

    bool held() const { return held_; }

private:
    int fd_ = -1;
    bool held_ = false;
};

// The file that is locked, beside the settings file. It stays there: to
// remove it would let two holders in.
QString settingsLockPath(const QString& path);

} // namespace morrowleaf
