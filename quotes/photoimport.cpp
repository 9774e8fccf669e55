#include "quotes/photoimport.h"

#include "quotes/photo.h"
#include "quotes/photocopy.h"

#include <QFile>

namespace morrowleaf {
namespace {

// Small and quick, yet it shows whether there are pixels behind the header.
constexpr QSize trialSize(192, 108);

bool isUsable(const QString& path) {
    const auto photo = inspectPhoto(path);
    return photo && !photo->decodeFilling(trialSize).isNull();
}

// The source is looked at before the copy, so that a huge file that is no
// picture is not copied first; the copy counts.
std::shared_ptr<PendingFile> importPhoto(const QString& source, const QString& destination,
                                         const std::atomic<bool>& cancelled) {
    if (!inspectPhoto(source) || !copyPhotoFile(source, destination, cancelled)) {
        return nullptr;
    }
    auto copy = std::make_shared<PendingFile>(destination);
    return isUsable(destination) ? copy : nullptr;
}

} // namespace

PendingFile::~PendingFile() {
    if (!kept_) {
        QFile::remove(path_);
    }
}

PhotoImport::PhotoImport() {
    worker_.setMaxThreadCount(1);
}

PhotoImport::~PhotoImport() {
    cancelled_ = true;
    worker_.clear();
    worker_.waitForDone();
}

void PhotoImport::start(const QString& source, const QString& destination, Done done) {
    const int number = ++last_;
    waiting_.insert(number, std::move(done));
    worker_.start([this, number, source, destination] {
        auto copy = importPhoto(source, destination, cancelled_);
        QMetaObject::invokeMethod(
            this, [this, number, copy = std::move(copy)] { finish(number, copy); },
            Qt::QueuedConnection);
    });
}

void PhotoImport::finish(int number, const std::shared_ptr<PendingFile>& copy) {
    const Done done = waiting_.take(number);
    done(copy);
}

} // namespace morrowleaf
