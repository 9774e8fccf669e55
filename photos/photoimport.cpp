// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "photos/photoimport.h"

#include "photos/photoreaders.h"
#include "platform/files.h"

#include <QFile>
#include <QThreadPool>

#include <iterator>

namespace morrowleaf {
namespace {

constexpr int shutdownTimeout = 200;                 // milliseconds
constexpr int copyLimit = 8;                         // at the same time, stuck ones included
constexpr qint64 pieceSize = 1 << 20;                // bytes
constexpr qint64 largestFile = Q_INT64_C(512) << 20; // bytes

// Quick to decode, yet it shows whether the file contains pixels.
constexpr QSize trialSize(192, 108);

bool copyBytes(QFile& from, QFile& to, const StopToken& stop) {
    QByteArray piece(pieceSize, Qt::Uninitialized);
    qint64 copied = 0;
    while (!stop.isRequested()) {
        const qint64 read = from.read(piece.data(), pieceSize);
        if (read <= 0) {
            return read == 0 && to.flush();
        }
        copied += read;
        if (copied > largestFile) {
            return false; // the file is growing
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

} // namespace

PhotoImport::PhotoImport(PhotoReaders& readers, Copy copy)
    : readers_(readers)
    , copy_(std::move(copy))
    , copiers_(std::make_unique<QThreadPool>()) {
    copiers_->setMaxThreadCount(copyLimit);
    copiers_->setExpiryTimeout(0); // an idle program keeps no threads
    cancelTimer_.setSingleShot(true);
    cancelTimer_.callOnTimeout([this] { cancel(); });
}

PhotoImport::~PhotoImport() {
    for (Request& request : requests_) {
        request.copying = {};
    }
    if (!copiers_->waitForDone(shutdownTimeout)) {
        static_cast<void>(copiers_.release()); // its destructor would wait
    }
    for (const Request& request : requests_) {
        QFile::remove(request.destination);
    }
}

// Inspects the source before copying it, so that a huge file that is not a picture is not
// copied. The copy decides, because the source may have changed.
void PhotoImport::start(const QString& source, const QString& destination, Done done) {
    requests_.push_back({++lastNumber_, destination, std::move(done), {}, {}});
    const auto request = std::prev(requests_.end());
    request->reading = readers_.inspect(source, [this, request, source](const QSize& size) {
        size.isEmpty() ? finish(request, false) : copy(request, source);
    });
}

void PhotoImport::copy(Requests::iterator request, const QString& source) {
    request->copying = Job(
        *copiers_,
        [source, destination = request->destination, copy = copy_](const StopToken& stop) {
            return copy(source, destination, stop);
        },
        [this, request](bool copied) { copied ? check(request) : finish(request, false); });
}

void PhotoImport::check(Requests::iterator request) {
    request->reading =
        readers_.decode(request->destination, trialSize, [this, request](const QImage& picture) {
            if (picture.isNull()) {
                QFile::remove(request->destination);
            }
            finish(request, !picture.isNull());
        });
}

void PhotoImport::remove(const QString& path) {
    copiers_->start([path] { QFile::remove(path); });
}

void PhotoImport::finish(Requests::iterator request, bool usable) {
    const Done done = std::move(request->done);
    requests_.erase(request);
    done(usable);
}

void PhotoImport::cancelAfter(std::chrono::milliseconds time) {
    if (!requests_.empty()) {
        lastToCancel_ = lastNumber_;
        cancelTimer_.start(time);
    }
}

void PhotoImport::cancel() {
    Requests cancelled;
    while (!requests_.empty() && requests_.front().number <= lastToCancel_) {
        cancelled.splice(cancelled.end(), requests_, requests_.begin());
    }
    for (Request& request : cancelled) {
        request.reading = {};
        request.copying = {};
        QFile::remove(request.destination); // the copying may take a while to notice
        request.done(false);
    }
}

bool copyPhotoFile(const QString& source, const QString& destination, const StopToken& stop) {
    QFile from;
    QFile to(destination);
    if (!openRegularFile(from, source) || from.size() > largestFile || stop.isRequested() ||
        !to.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered,
                 QFileDevice::ReadOwner | QFileDevice::WriteOwner)) {
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
