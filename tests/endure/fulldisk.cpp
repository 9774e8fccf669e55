// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// A library for LD_PRELOAD with which the disk is full from the write number FULL_FROM on,
// counted from 1 over everything that needs space below the home folder. The file named by
// FULL_COUNT receives one byte for each of them.
#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

bool isAtHome(const char* path) {
    const char* const home = std::getenv("HOME");
    return home != nullptr && std::strncmp(path, home, std::strlen(home)) == 0;
}

bool isAtHome(int file) {
    std::array<char, 32> link{};
    std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", file);
    std::array<char, 4096> path{};
    return ::readlink(link.data(), path.data(), path.size() - 1) > 0 && isAtHome(path.data());
}

// Counts something that needs space. Returns whether there is none.
bool isFull() {
    static std::atomic<long> writes = 0;
    static const char* const from = std::getenv("FULL_FROM");
    static const char* const count = std::getenv("FULL_COUNT");
    if (from == nullptr || count == nullptr) {
        return false;
    }
    const int log = static_cast<int>(
        ::syscall(SYS_openat, AT_FDCWD, count, O_WRONLY | O_CREAT | O_APPEND, 0600));
    ::syscall(SYS_write, log, ".", 1);
    ::syscall(SYS_close, log);
    if (++writes < std::atol(from)) {
        return false;
    }
    errno = ENOSPC;
    return true;
}

bool isFullFor(const char* path, int flags) {
    return (flags & O_CREAT) != 0 && isAtHome(path) && ::access(path, F_OK) != 0 && isFull();
}

// `mode` only counts where a file may be made.
int openBelow(int folder, const char* path, int flags, va_list more) {
    const auto mode =
        static_cast<mode_t>((flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(more, int) : 0);
    if (isFullFor(path, flags)) {
        return -1;
    }
    return static_cast<int>(::syscall(SYS_openat, folder, path, flags, mode));
}

} // namespace

extern "C" {

ssize_t write(int file, const void* bytes, size_t count) {
    return isAtHome(file) && isFull() ? -1 : ::syscall(SYS_write, file, bytes, count);
}
ssize_t pwrite64(int file, const void* bytes, size_t count, off64_t at) {
    return isAtHome(file) && isFull() ? -1 : ::syscall(SYS_pwrite64, file, bytes, count, at);
}
int fsync(int file) {
    return isAtHome(file) && isFull() ? -1 : static_cast<int>(::syscall(SYS_fsync, file));
}
int fdatasync(int file) {
    return isAtHome(file) && isFull() ? -1 : static_cast<int>(::syscall(SYS_fdatasync, file));
}
int mkdir(const char* path, mode_t mode) noexcept {
    return isAtHome(path) && isFull() ? -1 : static_cast<int>(::syscall(SYS_mkdir, path, mode));
}
int open(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const int file = openBelow(AT_FDCWD, path, flags, more);
    va_end(more);
    return file;
}
int open64(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const int file = openBelow(AT_FDCWD, path, flags, more);
    va_end(more);
    return file;
}
int openat(int folder, const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const int file = openBelow(folder, path, flags, more);
    va_end(more);
    return file;
}
int openat64(int folder, const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const int file = openBelow(folder, path, flags, more);
    va_end(more);
    return file;
}
int rename(const char* from, const char* to) noexcept {
    return isAtHome(to) && isFull()
               ? -1
               : static_cast<int>(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}
int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
    return isAtHome(to) && isFull()
               ? -1
               : static_cast<int>(::syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}
int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
    return isAtHome(to) && isFull()
               ? -1
               : static_cast<int>(::syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

} // extern "C"
