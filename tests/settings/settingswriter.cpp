// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// A second process for the settings tests:
//   settings_writer FILE selftest          sets and removes "quoteFrequency"
//   settings_writer FILE count PREFIX N    sets PREFIX0 to PREFIXN-1, one by one
//   settings_writer FILE confirm PREFIX    sets PREFIX0, PREFIX1, ... and prints each
//                                          number once it is in the file, for ever
//   settings_writer FILE hold              takes the lock, prints a line, waits for its end
//   settings_writer FILE quit              sets "quit" as the event loop ends

#include "settings/settingsfile.h"
#include "settings/settingsstore.h"
#include "settings/settingsworker.h"

#include <QCoreApplication>
#include <QLockFile>
#include <QTimer>

#include <cstdio>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString& path = arguments.at(1);
    const QString& mode = arguments.at(2);
    if (mode == "hold"_L1) {
        QLockFile lock(lockPathOf(path));
        std::puts(lock.tryLock(5000) ? "held" : "not held");
        std::fflush(stdout);
        std::getchar();
        return 0;
    }
    constexpr auto patience = std::chrono::seconds(20);
    SettingsStore store;
    SettingsFile file(store, path);
    if (mode == "selftest"_L1) {
        store.set(u"quoteFrequency"_s, u"every"_s);
        store.remove(u"quoteFrequency"_s);
    } else if (mode == "count"_L1) {
        const int count = arguments.at(4).toInt();
        for (int i = 0; i < count; ++i) {
            store.set(arguments.at(3) + QString::number(i), i);
            if (i % 5 == 4 && !file.flush(patience)) {
                return 2;
            }
            QCoreApplication::processEvents();
        }
    } else if (mode == "confirm"_L1) {
        for (int i = 0;; ++i) {
            store.set(arguments.at(3) + QString::number(i), i);
            if (!file.flush(patience)) {
                return 2;
            }
            std::printf("%d\n", i);
            std::fflush(stdout);
        }
    } else if (mode == "quit"_L1) {
        QTimer::singleShot(0, &app, [&] {
            store.set(u"quit"_s, true);
            QCoreApplication::quit();
        });
        QCoreApplication::exec();
        // Exits like a program that never returns from its event loop.
        std::_Exit(0);
    }
    return 0;
}
