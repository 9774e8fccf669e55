// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include <QCoreApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    const QCoreApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
