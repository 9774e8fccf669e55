// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/timing.h"
#include "base/job.h"

#include <QObject>
#include <QString>

class QThreadPool;

namespace morrowleaf {

class Notifications;
class TrayHost;

// Trays of desktops that have one come within this time after the program.
inline constexpr double trayPatienceSeconds = 30;

// Where the desktop has no tray, tells the user once ever, by a notification, that the
// program runs and how its settings are reached. Main thread.
class Introduction : public QObject {
    Q_OBJECT

public:
    // Remembers by an empty file in `folder`, which it makes, that it has told. All must
    // outlive this.
    Introduction(const TrayHost& tray, Notifications& notifications, Timing& timing,
                 QThreadPool& workers, QString folder);

signals:
    void settingsRequested();

private:
    void introduce();

    Notifications& notifications_;
    QThreadPool& workers_;
    QString folder_;
    Task patience_;
    Job file_;
};

} // namespace morrowleaf
