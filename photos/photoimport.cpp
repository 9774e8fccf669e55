// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "photos/photoimport.h"

#include "photos/photo.h"
#include "photos/photocopy.h"

#include <QCoreApplication>
#include <QFile>
#include <QThreadPool>

#include <mutex>

namespace morrowleaf {

struct PhotoImport::Copying {
    std::mutex busy;
    std::atomic<bool> cancelled = false;
};

namespace {

// Small and quick, yet it shows whether there are pixels behind the header.
constexpr QSize trialSize(192, 108);

bool isUsable(const QString& path) {
    const auto photo = inspectPhoto(path);
    return photo && !photo->decodeFilling(trialSize).isNull();
}

} // namespace

PendingFile::~PendingFile() {
    if (!kept_) {
        QFile::remove(path_);
    }
}

PhotoImport::PhotoImport(QThreadPool& workers)
    : workers_(workers)
    , copying_(std::make_shared<Copying>()) {}

PhotoImport::~PhotoImport() {
    copying_->cancelled = true;
    // A copy stops at once. A decoder would not, and is not waited for.
    const std::scoped_lock stopped(copying_->busy);
    for (const Job& job : jobs_) {
        QFile::remove(job.destination);
    }
}

void PhotoImport::start(const QString& source, const QString& destination, Done done) {
    jobs_.push_back({source, destination, std::move(done)});
    if (jobs_.size() == 1) {
        work();
    }
}

// The source is looked at before the copy, so that a huge file that is no
// picture is not copied first; the copy counts.
std::shared_ptr<PendingFile> PhotoImport::copied(const QString& source, const QString& destination,
                                                 Copying& copying) {
    if (!inspectPhoto(source)) {
        return nullptr;
    }
    std::shared_ptr<PendingFile> copy;
    {
        const std::scoped_lock busy(copying.busy);
        if (!copyPhotoFile(source, destination, copying.cancelled)) {
            return nullptr;
        }
        copy = std::make_shared<PendingFile>(destination);
    }
    return isUsable(destination) ? copy : nullptr;
}

void PhotoImport::work() {
    const Job& job = jobs_.front();
    workers_.start([this, copying = copying_, source = job.source, destination = job.destination] {
        auto copy = copied(source, destination, *copying);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [this, copying, copy = std::move(copy)] {
                if (!copying->cancelled) {
                    finish(copy);
                }
            },
            Qt::QueuedConnection);
    });
}

void PhotoImport::finish(const std::shared_ptr<PendingFile>& copy) {
    const Done done = std::move(jobs_.front().done);
    jobs_.pop_front();
    if (!jobs_.empty()) {
        work();
    }
    done(copy);
}

} // namespace morrowleaf
