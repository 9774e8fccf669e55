// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "photos/bgstore.h"

#include "photos/photoimport.h"
#include "platform/files.h"
#include "settings/prefs.h"
#include "settings/settingsstore.h"
#include "settings/settingstable.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUuid>

#include <algorithm>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

// The part after the last dot of a name, unless that dot is its first character.
QString extensionOf(const QString& fileName) {
    const qsizetype point = fileName.lastIndexOf(u'.');
    return point > 0 ? fileName.mid(point + 1) : QString();
}

QString newPhotoName(const QString& source) {
    const QString extension = extensionOf(source.section(u'/', -1));
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper() + u'.' +
           (extension.isEmpty() ? u"png"_s : extension);
}

// Changes neither a folder that the user has put in place of `folder` by a link nor what
// the user has put beside the photos.
void shutOffOthers(const QString& folder, const QStringList& photos) {
    if (QFileInfo(folder).isSymLink()) {
        return;
    }
    constexpr auto file = QFile::ReadOwner | QFile::WriteOwner;
    QFile::setPermissions(folder, file | QFile::ExeOwner);
    for (const QString& photo : photos) {
        const QFileInfo own(photo);
        if (own.absolutePath() == QDir(folder).absolutePath() && own.isFile() && !own.isSymLink()) {
            QFile::setPermissions(photo, file);
        }
    }
}

} // namespace

QString ownPhotoFolder() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (data.isEmpty()) {
        qFatal("There is no folder for application data.");
    }
    return data + u"/Morrowleaf/backgrounds"_s;
}

BGStore::BGStore(SettingsStore& store, QString builtinFolder, QString ownFolder,
                 QThreadPool& workers)
    : store_(store)
    , builtinFolder_(std::move(builtinFolder))
    , ownFolder_(std::move(ownFolder))
    , workers_(workers)
    , import_(std::make_unique<PhotoImport>(readers_)) {
    if (ownFolder_.isEmpty()) {
        qFatal("There is no folder for the user's own photos.");
    }
    workers_.start(
        [folder = ownFolder_, own = Prefs::customBGs(store_)] { shutOffOthers(folder, own); });
}

BGStore::~BGStore() = default;

void BGStore::add(const QString& sourcePath, std::function<void(std::optional<QString>)> done) {
    if (Prefs::customBGs(store_).size() >= limit) {
        QMetaObject::invokeMethod(
            &context_, [done = std::move(done)] { done(std::nullopt); }, Qt::QueuedConnection);
        return;
    }
    const QString destination =
        QDir(ownFolder_).absoluteFilePath(newPhotoName(QFileInfo(sourcePath).fileName()));
    static_cast<void>(makeFolderOf(destination)); // without it the copy fails
    import_->start(sourcePath, destination,
                   [this, destination, done = std::move(done)](bool copied) {
                       const bool listed = copied && list(destination);
                       if (copied && !listed) {
                           QFile::remove(destination);
                       }
                       done(listed ? std::optional(destination) : std::nullopt);
                   });
}

std::shared_ptr<void> BGStore::awaitAdds(std::chrono::milliseconds time) {
    std::shared_ptr<void> awaiting = awaiting_.lock();
    if (!awaiting) {
        import_->keep();
        awaiting.reset(this, [this, time](void*) { import_->cancelAfter(time); });
        awaiting_ = awaiting;
    }
    return awaiting;
}

// The list may have grown during the copy.
bool BGStore::list(const QString& copy) {
    QStringList own = Prefs::customBGs(store_);
    if (own.size() >= limit) {
        return false;
    }
    own.append(copy);
    store_.set(K::customBGs, own);
    return true;
}

void BGStore::remove(const QString& path) {
    if (!path.isEmpty()) {
        import_->remove(path);
    }
    QStringList own = Prefs::customBGs(store_);
    own.removeAll(path);
    store_.set(K::customBGs, own);
    if (Prefs::bgImage(store_) == path) {
        store_.set(K::bgImage, QString());
    }
}

QStringList BGStore::builtins() const {
    if (builtinFolder_.isEmpty()) {
        return {};
    }
    const QDir folder(builtinFolder_);
    QStringList names;
    for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden, QDir::Unsorted)) {
        const QString extension = extensionOf(name).toLower();
        if (extension == "jpg"_L1 || extension == "jpeg"_L1 || extension == "png"_L1) {
            names.append(name);
        }
    }
    // Sorts by code points; UTF-8 has the same order.
    std::sort(names.begin(), names.end(),
              [](const QString& a, const QString& b) { return a.toUtf8() < b.toUtf8(); });
    for (QString& name : names) {
        name = folder.absoluteFilePath(name);
    }
    return names;
}

} // namespace morrowleaf
