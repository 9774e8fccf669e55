// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/readerside.h"

#include "platform/jail.h"
#include "platform/readers.h"

#include <array>
#include <cerrno>
#include <cstdlib>

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace morrowleaf {

namespace {

std::optional<QByteArray> readRequest() {
    QByteArray request;
    std::array<char, 4096> piece{};
    while (request.size() <= readerRequestLimit + 1) {
        const ssize_t got = ::read(STDIN_FILENO, piece.data(), piece.size());
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got > 0) {
            request.append(piece.data(), got);
            continue;
        }
        // The last byte shows that nothing is missing.
        if (got < 0 || !request.endsWith('\n')) {
            return std::nullopt;
        }
        request.chop(1);
        return request;
    }
    return std::nullopt;
}

std::span<char> mapAnswer(int descriptor) {
    struct stat info {};
    if (::fstat(descriptor, &info) != 0 || !S_ISREG(info.st_mode) || info.st_size <= 0) {
        return {};
    }
    const auto size = static_cast<std::size_t>(info.st_size);
    void* const mapped = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    if (mapped == MAP_FAILED) {
        return {};
    }
    return {static_cast<char*>(mapped), size};
}

} // namespace

std::optional<ReaderTask> receiveReaderTask(int argc, char** argv) {
    if (argc != 2) {
        return std::nullopt;
    }
    const int descriptor = std::atoi(argv[1]);
    leaveParent(descriptor);
    const std::span<char> answer = mapAnswer(descriptor);
    std::optional<QByteArray> request = readRequest();
    if (answer.empty() || !request) {
        return std::nullopt;
    }
    return ReaderTask{*std::move(request), answer};
}

void endReader(bool answered) {
    ::_exit(answered ? EXIT_SUCCESS : EXIT_FAILURE);
}

} // namespace morrowleaf
