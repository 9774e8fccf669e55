// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArrayView>

#include <memory>
#include <optional>

namespace morrowleaf {

// What a reader program has answered. Nobody can change it any more.
struct AnswerBytes {
    std::shared_ptr<const char> data; // null if there is no answer
    qsizetype size = 0;

    explicit operator bool() const { return data != nullptr; }
    QByteArrayView view() const { return {data.get(), size}; }
};

// Memory of a fixed size for the answer of another process, which gets its descriptor. The
// size belongs to the process that asks: however much the other one writes, it fills this
// and no more. Any thread, one at a time.
class AnswerMemory {
public:
    // Zeros; `bytes` is above 0. std::nullopt if the system gives none.
    [[nodiscard]] static std::optional<AnswerMemory> make(qsizetype bytes);

    AnswerMemory(AnswerMemory&& other) noexcept;
    AnswerMemory& operator=(AnswerMemory&& other) noexcept;
    ~AnswerMemory();

    // Of a file that can be mapped and written; closed when a program is started.
    int descriptor() const;

    // Ends all writing and returns the bytes, which outlive this object. Without data if
    // some process could still write, or on failure.
    [[nodiscard]] AnswerBytes take();

private:
    struct File;
    explicit AnswerMemory(std::unique_ptr<File> file);

    std::unique_ptr<File> file_;
};

} // namespace morrowleaf
