// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/answermemory.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace morrowleaf {

struct AnswerMemory::File {
    int descriptor;
    qsizetype size;

    File(int opened, qsizetype bytes)
        : descriptor(opened)
        , size(bytes) {}
    ~File() { ::close(descriptor); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
};

AnswerMemory::AnswerMemory(std::unique_ptr<File> file)
    : file_(std::move(file)) {}
AnswerMemory::AnswerMemory(AnswerMemory&& other) noexcept = default;
AnswerMemory& AnswerMemory::operator=(AnswerMemory&& other) noexcept = default;
AnswerMemory::~AnswerMemory() = default;

std::optional<AnswerMemory> AnswerMemory::make(qsizetype bytes) {
    const int descriptor = ::memfd_create("morrowleaf-answer", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    if (descriptor < 0) {
        return std::nullopt;
    }
    auto file = std::make_unique<File>(descriptor, bytes);
    // A file that shrinks would end this process when it reads what is mapped.
    if (::ftruncate(descriptor, bytes) != 0 ||
        ::fcntl(descriptor, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW) != 0) {
        return std::nullopt;
    }
    return AnswerMemory(std::move(file));
}

int AnswerMemory::descriptor() const {
    return file_->descriptor;
}

AnswerBytes AnswerMemory::take() {
    // Fails while the file is mapped for writing anywhere.
    if (::fcntl(file_->descriptor, F_ADD_SEALS, F_SEAL_WRITE) != 0) {
        return {};
    }
    const auto size = static_cast<std::size_t>(file_->size);
    void* const mapped = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file_->descriptor, 0);
    if (mapped == MAP_FAILED) {
        return {};
    }
    const auto unmap = [size](const char* data) { ::munmap(const_cast<char*>(data), size); };
    return {{static_cast<const char*>(mapped), unmap}, file_->size};
}

} // namespace morrowleaf
