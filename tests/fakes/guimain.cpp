// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "tests/fakes/killedreaders.h"

#include <QApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QStandardPaths::setTestModeEnabled(true);
    QApplication::setAttribute(Qt::AA_Use96Dpi);
    const QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const int status = RUN_ALL_TESTS();
    morrowleaf::awaitKilledReaders();
    return status;
}
