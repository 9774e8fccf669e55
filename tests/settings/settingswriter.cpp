// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// A second process for the settings tests:
//   settings_writer FILE selftest          sets and removes "quoteFrequency"
//   settings_writer FILE count PREFIX N    sets PREFIX0 to PREFIXN-1, one by one
//   settings_writer FILE confirm PREFIX    sets PREFIX0, PREFIX1, ... and prints each
//                                          number once it is in the file, for ever
//   settings_writer FILE hold              takes the lock, says so, waits for its end
//   settings_writer FILE quit              sets "quit" as the event loop ends

#include "settings/settingsfile.h"
#include "settings/settingsstore.h"
#include "settings/settingsworker.h"

#include <QCoreApplication>
#include <QLockFile>
#include <QTimer>

#include <cstdio>

using namespace morrowleaf;

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString& path = arguments.at(1);
    const QString& mode = arguments.at(2);
    if (mode == "hold") {
        QLockFile lock(lockPathOf(path));
        std::puts(lock.tryLock(5000) ? "held" : "not held");
        std::fflush(stdout);
        std::getchar();
        return 0;
    }
    constexpr auto patience = std::chrono::seconds(20);
    SettingsStore store;
    SettingsFile file(store, path);
    if (mode == "selftest") {
        store.set("quoteFrequency", "every");
        store.remove("quoteFrequency");
    } else if (mode == "count") {
        const int count = arguments.at(4).toInt();
        for (int i = 0; i < count; ++i) {
            store.set(arguments.at(3) + QString::number(i), i);
            if (i % 5 == 4 && !file.flush(patience)) {
                return 2;
            }
            QCoreApplication::processEvents();
        }
    } else if (mode == "confirm") {
        for (int i = 0;; ++i) {
            store.set(arguments.at(3) + QString::number(i), i);
            if (!file.flush(patience)) {
                return 2;
            }
            std::printf("%d\n", i);
            std::fflush(stdout);
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
