// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "tests/fakes/killedreaders.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    const QCoreApplication app(argc, argv);
    const int status = RUN_ALL_TESTS();
    morrowleaf::awaitKilledReaders();
    return status;
}
