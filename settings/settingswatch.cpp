// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/settingswatch.h"

#include <QFileInfo>
#include <QStringList>

#include <chrono>

namespace morrowleaf {

namespace {

constexpr int linkLimit = 40;

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
    connect(&settling_, &QTimer::timeout, this, &SettingsWatch::mayHaveChanged);
    const auto sign = [this] {
        // Not restarted, so that a file that is written continuously is reported too.
        if (!settling_.isActive()) {
            settling_.start();
        }
    };
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, sign);
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, sign);
}

void SettingsWatch::arm() {
    QStringList files;
    QStringList folders;
    QString path = path_;
    for (int links = 0; !path.isEmpty() && links < linkLimit; ++links) {
        folders.append(nearestFolder(path));
        if (QFileInfo(path).isFile()) {
            files.append(path);
        }
        path = QFileInfo(path).symLinkTarget();
    }
    folders.removeAll(QString());

    // A watch stays with the old file when a file is replaced, so watches on files are
    // always renewed.
    QStringList gone = watcher_.files();
    const QStringList watched = watcher_.directories();
    for (const QString& folder : watched) {
        if (folders.removeAll(folder) == 0) {
            gone.append(folder);
        }
    }
    if (!gone.isEmpty()) {
        watcher_.removePaths(gone);
    }
    QStringList wanted = files + folders;
    wanted.removeDuplicates();
    if (!wanted.isEmpty()) {
        watcher_.addPaths(wanted);
    }
}

} // namespace morrowleaf
