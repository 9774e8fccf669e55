// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/introduction.h"

#include "platform/notifications.h"
#include "platform/trayhost.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <utility>

namespace morrowleaf {

namespace {

using namespace Qt::Literals::StringLiterals;

QString markIn(const QString& folder) {
    return folder + u"/introduced"_s;
}

// Whether the mark was not there and is now.
bool makeMark(const QString& folder) {
    QDir().mkpath(folder);
    return QFile(markIn(folder)).open(QIODevice::WriteOnly | QIODevice::NewOnly);
}

} // namespace

Introduction::Introduction(const TrayHost& tray, Notifications& notifications, Timing& timing,
                           QThreadPool& workers, QString folder)
    : notifications_(notifications)
    , workers_(workers)
    , folder_(std::move(folder))
    , patience_(timing.after(trayPatienceSeconds, [this] { introduce(); })) {
    connect(&tray, &TrayHost::appeared, this, [this] { patience_.reset(); });
    connect(&notifications, &Notifications::clicked, this, &Introduction::settingsRequested);
}

void Introduction::introduce() {
    file_ = Job(
        workers_, [folder = folder_](const StopToken&) { return makeMark(folder); },
        [this](bool isFirst) {
            if (!isFirst) {
                return;
            }
            const QString settings = QCoreApplication::translate("MenuActions", "Settings…");
            notifications_.show(
                {.title = tr("Morrowleaf is running"),
                 //: %1 is "Settings…"; %2 is a command
                 .text = tr("This desktop has no tray for its icon. For the settings, "
                            "right-click Morrowleaf in the menu of programs and choose “%1”, "
                            "or run %2.")
                             .arg(settings, u"morrowleaf --settings"_s),
                 .button = settings},
                [this](bool isTaken) {
                    if (!isTaken) {
                        // Next time, then.
                        file_ = Job(
                            workers_,
                            [folder = folder_](const StopToken&) {
                                return QFile::remove(markIn(folder));
                            },
                            [](bool) {});
                    }
                });
        });
}

} // namespace morrowleaf
