// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/socketinstance.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

TEST(SocketInstance, TheSecondHandsItsRequestToTheFirst) {
    QTemporaryDir dir;
    SocketInstance first(dir.path());
    EXPECT_TRUE(first.claim({.action = "show", .activationToken = {}}));
    QString action;
    QString token;
    QObject::connect(&first, &SingleInstance::requested, &first, [&](const LaunchRequest& r) {
        action = r.action;
        token = r.activationToken;
    });
    // A lock of another process cannot be had within this one: the file's own
    // rules stop a second lock even here.
    SocketInstance second(dir.path());
    EXPECT_FALSE(second.claim({.action = "settings", .activationToken = "abc"}));
    for (int i = 0; i < 100 && action.isEmpty(); ++i) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents);
    }
    EXPECT_EQ(action, "settings");
    EXPECT_EQ(token, "abc");
}

TEST(SocketInstance, WhatAKilledInstanceLeftIsNoHindrance) {
    QTemporaryDir dir;
    QFile socket(dir.filePath("morrowleaf.socket"));
    ASSERT_TRUE(socket.open(QIODevice::WriteOnly));
    QFile lock(dir.filePath("morrowleaf.lock"));
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.write("2147483646\nmorrowleaf\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    lock.close();
    SocketInstance instance(dir.path());
    EXPECT_TRUE(instance.claim({.action = "show", .activationToken = {}}));
}

TEST(SocketInstance, WithoutAFolderTheProgramRunsAnyway) {
    SocketInstance instance("/nonexistent/folder");
    EXPECT_TRUE(instance.claim({.action = "show", .activationToken = {}}));
}

} // namespace
} // namespace morrowleaf
