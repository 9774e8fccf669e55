// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

namespace morrowleaf {

// Reports that a file may have been written in place, replaced, removed or created.
// Reports too often rather than too rarely, once per burst, 40 ms after the first event.
//
// Replacing a file ends the watch on it, so call arm() before each reading of the file.
// If the folder is missing, the nearest existing one above it is watched; if the file is
// a link, its targets are watched too.
class SettingsWatch : public QObject {
    Q_OBJECT

public:
    explicit SettingsWatch(QString path, QObject* parent = nullptr);

    void arm();

signals:
    void mayHaveChanged();

private:
    QString path_;
    QFileSystemWatcher watcher_;
    QTimer settling_;
};

} // namespace morrowleaf
