// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/readerside.h"

#include "platform/jail.h"
#include "platform/readers.h"

#include <array>
#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace morrowleaf {

namespace {

constexpr qsizetype longestAnswerApart = 4096;

// Everything up to the end, of at most `limit` bytes and an LF, which shows that nothing is
// missing.
std::optional<QByteArray> readLine(int from, qsizetype limit) {
    QByteArray line;
    std::array<char, 4096> piece{};
    while (line.size() <= limit + 1) {
        const ssize_t got = ::read(from, piece.data(), piece.size());
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got > 0) {
            line.append(piece.data(), got);
            continue;
        }
        if (got < 0 || !line.endsWith('\n')) {
            return std::nullopt;
        }
        line.chop(1);
        return line;
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
    std::optional<QByteArray> request = readLine(STDIN_FILENO, readerRequestLimit);
    if (answer.empty() || !request) {
        return std::nullopt;
    }
    return ReaderTask{*std::move(request), answer};
}

QByteArray askApart(const std::function<QByteArray()>& question) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) {
        return {};
    }
    const auto [readEnd, writeEnd] = ends;
    ::fcntl(writeEnd, F_SETFD, FD_CLOEXEC); // a program that outlives the question
    const pid_t child = ::fork();
    if (child == 0) {
        leaveParent(writeEnd);
        const QByteArray answer = question() + '\n';
        endReader(::write(writeEnd, answer.constData(), static_cast<std::size_t>(answer.size())) ==
                  answer.size());
    }
    ::close(writeEnd);
    const auto answer = child > 0 ? readLine(readEnd, longestAnswerApart) : std::nullopt;
    ::close(readEnd);
    if (child > 0) {
        ::waitpid(child, nullptr, 0);
    }
    return answer.value_or(QByteArray());
}

void endReader(bool answered) {
    ::_exit(answered ? EXIT_SUCCESS : EXIT_FAILURE);
}

} // namespace morrowleaf
