// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "photos/photoimport.h"

#include "photos/photo.h"
#include "platform/files.h"

#include <QFile>
#include <QThreadPool>

namespace morrowleaf {
namespace {

constexpr qint64 pieceSize = 1 << 20; // bytes

// Quick to decode, yet it shows whether the file contains pixels.
constexpr QSize trialSize(192, 108);

bool copyBytes(QFile& from, QFile& to, const std::stop_token& stop) {
    QByteArray piece(pieceSize, Qt::Uninitialized);
    while (!stop.stop_requested()) {
        const qint64 read = from.read(piece.data(), pieceSize);
        if (read <= 0) {
            return read == 0 && to.flush();
        }
        for (qint64 done = 0; done < read;) {
            const qint64 written = to.write(piece.constData() + done, read - done);
            if (written <= 0) {
                return false;
            }
            done += written;
        }
    }
    return false;
}

bool isUsable(const QString& path) {
    const auto photo = inspectPhoto(path);
    return photo && !photo->decodeFilling(trialSize).isNull();
}

// Inspects the source before copying it, so that a huge file that is not a picture is not
// copied. The copy decides, because the source may have changed.
bool importPhoto(const QString& source, const QString& destination, std::mutex& copying,
                 const std::stop_token& stop) {
    if (!inspectPhoto(source)) {
        return false;
    }
    {
        const std::scoped_lock lock(copying);
        if (!copyPhotoFile(source, destination, stop)) {
            return false;
        }
    }
    if (!isUsable(destination)) {
        QFile::remove(destination);
        return false;
    }
    return true;
}

} // namespace

PhotoImport::PhotoImport(QThreadPool& workers)
    : workers_(workers) {}

PhotoImport::~PhotoImport() {
    job_ = {};
    // The worker makes no copy once it has seen the request to stop.
    const std::scoped_lock stopped(*copying_);
    if (!requests_.empty()) {
        QFile::remove(requests_.front().destination);
    }
}

void PhotoImport::start(const QString& source, const QString& destination, Done done) {
    requests_.push_back({source, destination, std::move(done)});
    if (requests_.size() == 1) {
        work();
    }
}

void PhotoImport::work() {
    const Request& next = requests_.front();
    job_ = Job(
        workers_,
        [copying = copying_, source = next.source,
         destination = next.destination](const std::stop_token& stop) {
            return importPhoto(source, destination, *copying, stop);
        },
        [this](bool copied) { finish(copied); });
}

void PhotoImport::finish(bool copied) {
    const Done done = std::move(requests_.front().done);
    requests_.pop_front();
    if (!requests_.empty()) {
        work();
    }
    done(copied);
}

bool copyPhotoFile(const QString& source, const QString& destination, const std::stop_token& stop) {
    QFile from;
    QFile to(destination);
    if (stop.stop_requested() || !openRegularFile(from, source) ||
        !to.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)) {
        return false;
    }
    const bool copied = copyBytes(from, to, stop);
    to.close();
    if (!copied || to.error() != QFileDevice::NoError) {
        QFile::remove(destination);
        return false;
    }
    return true;
}

} // namespace morrowleaf
