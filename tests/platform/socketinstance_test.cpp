// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/socketinstance.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(SocketInstance, TheSecondHandsItsRequestToTheFirst) {
    QTemporaryDir dir;
    SocketInstance first(dir.path());
    EXPECT_TRUE(first.claim({.action = u"show"_s, .activationToken = {}}));
    QString action;
    QString token;
    QObject::connect(&first, &SingleInstance::requested, &first, [&](const LaunchRequest& r) {
        action = r.action;
        token = r.activationToken;
    });
    // A lock file also excludes a second lock in the same process.
    SocketInstance second(dir.path());
    EXPECT_FALSE(second.claim({.action = u"settings"_s, .activationToken = u"abc"_s}));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !action.isEmpty(); }));
    EXPECT_EQ(action, u"settings"_s);
    EXPECT_EQ(token, u"abc"_s);
}

TEST(SocketInstance, WhatAKilledInstanceLeftDoesNotHinder) {
    QTemporaryDir dir;
    QFile socket(dir.filePath(u"morrowleaf.socket"_s));
    ASSERT_TRUE(socket.open(QIODevice::WriteOnly));
    QFile lock(dir.filePath(u"morrowleaf.lock"_s));
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.write("2147483646\nmorrowleaf\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    lock.close();
    SocketInstance instance(dir.path());
    EXPECT_TRUE(instance.claim({.action = u"show"_s, .activationToken = {}}));
}

TEST(SocketInstance, WithoutAFolderTheProgramRunsAnyway) {
    SocketInstance instance(u"/nonexistent/folder"_s);
    EXPECT_TRUE(instance.claim({.action = u"show"_s, .activationToken = {}}));
}

} // namespace
} // namespace morrowleaf
