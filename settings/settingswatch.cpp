// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/settingswatch.h"

#include "platform/wholefile.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <chrono>

namespace morrowleaf {

namespace {

QString nearestFolder(const QString& path) {
    QString folder = QFileInfo(path).path();
    while (!QFileInfo(folder).isDir()) {
        const QString above = QFileInfo(folder).path();
        if (above == folder) {
            return {};
        }
        folder = above;
    }
    return folder;
}

} // namespace

SettingsWatch::SettingsWatch(QString path, QObject* parent)
    : QObject(parent)
    , path_(std::move(path))
    , watcher_(this)
    , settling_(this) {
    settling_.setSingleShot(true);
    settling_.setInterval(std::chrono::milliseconds(40));
    connect(&settling_, &QTimer::timeout, this, &SettingsWatch::touched);
    const auto sign = [this] {
        // Not restarted: a file that is written all the time is looked at too.
        if (!settling_.isActive()) {
            settling_.start();
        }
    };
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, sign);
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, sign);
}

void SettingsWatch::arm() {
    QStringList wanted{nearestFolder(path_)};
    const QString target = linkTarget(path_);
    if (target != path_ && !target.isEmpty()) {
        wanted.append(nearestFolder(target));
    }
    for (const QString& file : {path_, target}) {
        if (QFileInfo(file).isFile()) {
            wanted.append(file);
        }
    }
    wanted.removeAll(QString());
    wanted.removeDuplicates();

    // A watch on a file that was replaced goes on watching the old one, so
    // files are always taken up anew.
    QStringList gone = watcher_.files();
    for (const QString& folder : watcher_.directories()) {
        if (!wanted.contains(folder)) {
            gone.append(folder);
        }
    }
    if (!gone.isEmpty()) {
        watcher_.removePaths(gone);
    }
    for (const QString& folder : watcher_.directories()) {
        wanted.removeAll(folder);
    }
    if (!wanted.isEmpty()) {
        watcher_.addPaths(wanted);
    }
}

} // namespace morrowleaf
