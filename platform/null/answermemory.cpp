// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/answermemory.h"

#include <QTemporaryFile>

namespace morrowleaf {

// A file without a name. It could shrink at any time, so it is read and never mapped here.
struct AnswerMemory::File {
    QTemporaryFile file;
    qsizetype size = 0;
};

AnswerMemory::AnswerMemory(std::unique_ptr<File> file)
    : file_(std::move(file)) {}
AnswerMemory::AnswerMemory(AnswerMemory&& other) noexcept = default;
AnswerMemory& AnswerMemory::operator=(AnswerMemory&& other) noexcept = default;
AnswerMemory::~AnswerMemory() = default;

std::optional<AnswerMemory> AnswerMemory::make(qsizetype bytes) {
    auto made = std::make_unique<File>();
    made->size = bytes;
    if (!made->file.open() || !made->file.resize(bytes)) {
        return std::nullopt;
    }
    made->file.remove();
    return AnswerMemory(std::move(made));
}

int AnswerMemory::descriptor() const {
    return file_->file.handle();
}

AnswerBytes AnswerMemory::take() {
    const auto bytes = std::make_shared<QByteArray>(file_->size, Qt::Uninitialized);
    if (!file_->file.seek(0) || file_->file.read(bytes->data(), file_->size) != file_->size) {
        return {};
    }
    return {std::shared_ptr<const char>(bytes, bytes->constData()), file_->size};
}

} // namespace morrowleaf
