// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

namespace morrowleaf {

// Tells that something may have happened to a file: written in place,
// replaced, removed, created. Says so too often rather than too seldom, 40 ms
// after the first sign, once for a burst.
//
// A watch is lost whenever the file is replaced, so arm() again before each
// look at the file. Where its folder is missing the nearest one above is
// watched, where the file is a link also what it names.
class SettingsWatch : public QObject {
    Q_OBJECT

public:
    explicit SettingsWatch(QString path, QObject* parent = nullptr);

    void arm();

signals:
    void touched();

private:
    QString path_;
    QFileSystemWatcher watcher_;
    QTimer settling_;
};

} // namespace morrowleaf
