// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/lockedinstance.h"
#include "platform/shared/socketchannel.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;

const LaunchRequest toShow{.action = u"show"_s, .activationToken = {}};

// A lock file also excludes a second lock in the same process.
class Launch : public LockedInstance {
public:
    explicit Launch(const QString& folder)
        : LockedInstance(folder, channelsIn(folder)) {
        connect(this, &SingleInstance::requested, this,
                [this](const LaunchRequest& request) { requests.push_back(request); });
    }

    std::vector<LaunchRequest> requests;

private:
    static Channels channelsIn(const QString& folder) {
        Channels channels;
        channels.push_back(std::make_unique<SocketChannel>(folder));
        return channels;
    }
};

class LockedInstanceTest : public testing::Test {
protected:
    QString socket() const { return dir.filePath(u"morrowleaf.socket"_s); }

    QTemporaryDir dir;
};

TEST_F(LockedInstanceTest, TheSecondHandsItsRequestToTheFirst) {
    Launch first(dir.path());
    EXPECT_TRUE(first.claim(toShow));
    EXPECT_FALSE(Launch(dir.path()).claim({.action = u"settings"_s, .activationToken = u"abc"_s}));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !first.requests.empty(); }));
    EXPECT_EQ(first.requests.front().action, u"settings"_s);
    EXPECT_EQ(first.requests.front().activationToken, u"abc"_s);
}

TEST_F(LockedInstanceTest, WhatAKilledInstanceLeftDoesNotHinder) {
    QFile left(socket());
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    QFile lock(dir.filePath(u"morrowleaf.lock"_s));
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.write("2147483646\nmorrowleaf\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    lock.close();
    EXPECT_TRUE(Launch(dir.path()).claim(toShow));
}

TEST_F(LockedInstanceTest, WithoutAFolderTheProgramRunsAnyway) {
    EXPECT_TRUE(Launch(u"/nonexistent/folder"_s).claim(toShow));
    EXPECT_TRUE(Launch(QString()).claim(toShow));
}

TEST_F(LockedInstanceTest, TakesThePlaceOfAnInstanceThatEnds) {
    auto first = std::make_unique<Launch>(dir.path());
    EXPECT_TRUE(first->claim(toShow));
    QTimer::singleShot(0, first.get(), [&first] { first.release()->deleteLater(); });
    Launch second(dir.path());
    EXPECT_TRUE(second.claim(toShow));
    EXPECT_FALSE(Launch(dir.path()).claim(toShow));
    EXPECT_TRUE(QTest::qWaitFor([&] { return second.requests.size() == 1; }));
}

// One that hangs has the request when it goes on.
TEST_F(LockedInstanceTest, GivesUpOnAnInstanceThatDoesNotAnswer) {
    QLockFile lock(dir.filePath(u"morrowleaf.lock"_s));
    ASSERT_TRUE(lock.tryLock());
    QLocalServer hanging;
    ASSERT_TRUE(hanging.listen(socket()));
    QElapsedTimer waited;
    waited.start();
    EXPECT_FALSE(Launch(dir.path()).claim(toShow));
    EXPECT_LT(waited.elapsed(), 5'000);
    QLocalSocket* client = hanging.nextPendingConnection();
    ASSERT_NE(client, nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return client->canReadLine(); }));
    EXPECT_EQ(client->readLine().trimmed(), "show");
}

TEST_F(LockedInstanceTest, ReadsARequestOfALaunchThatIsGone) {
    Launch first(dir.path());
    EXPECT_TRUE(first.claim(toShow));
    {
        QLocalSocket gone;
        gone.connectToServer(socket());
        gone.write("edit-appearance \n");
        EXPECT_TRUE(gone.waitForBytesWritten());
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return first.requests.size() == 1; }));
    EXPECT_EQ(first.requests.front().action, u"edit-appearance"_s);
}

TEST_F(LockedInstanceTest, DropsManySilentClients) {
    Launch first(dir.path());
    EXPECT_TRUE(first.claim(toShow));
    std::vector<std::unique_ptr<QLocalSocket>> silent;
    for (int i = 0; i < 200; ++i) {
        silent.push_back(std::make_unique<QLocalSocket>());
        silent.back()->connectToServer(socket());
        QCoreApplication::processEvents();
    }
    const auto connected = [&] {
        return std::count_if(silent.begin(), silent.end(), [](const auto& client) {
            return client->state() == QLocalSocket::ConnectedState;
        });
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return connected() <= 64; }));
    EXPECT_FALSE(Launch(dir.path()).claim(toShow));
    EXPECT_TRUE(QTest::qWaitFor([&] { return first.requests.size() == 1; }));
}

TEST_F(LockedInstanceTest, DropsOneSilentClientAfterAWhile) {
    Launch first(dir.path());
    EXPECT_TRUE(first.claim(toShow));
    QLocalSocket silent;
    silent.connectToServer(socket());
    ASSERT_TRUE(silent.waitForConnected());
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return silent.state() == QLocalSocket::UnconnectedState; }, 30'000));
}

} // namespace
} // namespace morrowleaf
