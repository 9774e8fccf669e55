// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// A second process for the settings tests:
//   settings_writer FILE selftest          sets and removes "quoteFrequency"
//   settings_writer FILE count PREFIX N    sets PREFIX0 to PREFIXN-1, one by one
//   settings_writer FILE hold              takes the lock, says so, waits for its end
//   settings_writer FILE quit              sets "quit" as the event loop ends

#include "platform/filelock.h"
#include "settings/settingsfile.h"
#include "settings/settingsstore.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <cstdio>

using namespace morrowleaf;

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString& path = arguments.at(1);
    const QString& mode = arguments.at(2);
    if (mode == "hold") {
        const FileLock lock(path, std::chrono::seconds(5));
        std::puts(lock.held() ? "held" : "not held");
        std::fflush(stdout);
        std::getchar();
        return 0;
    }
    SettingsStore store;
    SettingsFile file(store, path);
    if (mode == "selftest") {
        store.set("quoteFrequency", "every");
        store.remove("quoteFrequency");
    } else if (mode == "count") {
        const int count = arguments.at(4).toInt();
        for (int i = 0; i < count; ++i) {
            store.set(arguments.at(3) + QString::number(i), i);
            if (i % 5 == 4 && !file.flush()) {
                return 2;
            }
            QCoreApplication::processEvents();
        }
    } else if (mode == "quit") {
        QTimer::singleShot(0, &app, [&] {
            store.set("quit", true);
            QCoreApplication::quit();
        });
        QCoreApplication::exec();
        // As a program that never comes back from its event loop.
        std::_Exit(0);
    }
    return 0;
}
