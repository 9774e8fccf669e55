// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// The program that reads one photo that anybody may have made. It gets a path and a size
// and answers with the pixels of that size, or with the size of the picture.

#include "photos/photo.h"
#include "photos/photorequest.h"
#include "platform/files.h"
#include "platform/jail.h"
#include "platform/readerside.h"

#include <QFile>
#include <QLibraryInfo>

#include <algorithm>
#include <array>
#include <cstring>

using namespace morrowleaf;

namespace {

bool answerSize(QFile& file, std::span<char> answer) {
    const QSize size = readPhotoSize(file);
    const std::array<qint32, 2> numbers{size.width(), size.height()};
    if (size.isEmpty() || answer.size() != photoSizeBytes) {
        return false;
    }
    std::memcpy(answer.data(), numbers.data(), photoSizeBytes);
    return true;
}

bool answerPixels(QFile& file, const QSize& size, std::span<char> answer) {
    const QImage image = decodePhoto(file, size);
    if (image.isNull() || answer.size() != static_cast<std::size_t>(image.sizeInBytes())) {
        return false;
    }
    // What a decoder leaves in the fourth byte of a pixel without alpha is its own affair.
    const auto* const from = reinterpret_cast<const quint32*>(image.constBits());
    std::transform(from, from + answer.size() / photoPixelBytes,
                   reinterpret_cast<quint32*>(answer.data()),
                   [](quint32 pixel) { return pixel | 0xff000000; });
    return true;
}

} // namespace

int main(int argc, char** argv) {
    const auto task = receiveReaderTask(argc, argv);
    const auto request = task ? parsePhotoRequest(task->request) : std::nullopt;
    QFile file;
    if (!request || !openRegularFile(file, request->path)) {
        endReader(false);
    }
    // Before this line everything is the user's or the system's, and after it a stranger's.
    confine(JailKind::Photo, {QFile::encodeName(QLibraryInfo::path(QLibraryInfo::PluginsPath))});
    endReader(request->size.isNull() ? answerSize(file, task->answer)
                                     : answerPixels(file, request->size, task->answer));
}
