// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <functional>
#include <optional>
#include <span>

namespace morrowleaf {

// What a reader program is asked, as seen by that program itself.
struct ReaderTask {
    QByteArray request;
    std::span<char> answer; // shared with the process that asks; zeros
};

// Receives the request from standard input and the memory for the answer, whose descriptor
// is the only argument. std::nullopt if either is not complete.
[[nodiscard]] std::optional<ReaderTask> receiveReaderTask(int argc, char** argv);

// Asks in a process of its own, so that no connection and no thread of what `question` uses
// stays in this one, which is to be confined. The answer is of 4096 bytes at most, and empty
// on failure. Blocks until it is there.
[[nodiscard]] QByteArray askApart(const std::function<QByteArray()>& question);

// Ends the process at once, without destructors, and says whether the answer is complete.
[[noreturn]] void endReader(bool answered);

} // namespace morrowleaf
