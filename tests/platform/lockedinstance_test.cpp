// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/shared/lockedinstance.h"
#include "platform/shared/socketchannel.h"
#include "tests/platform/carryout.h"

#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

const LaunchRequest toShow{.action = u"show"_s, .activationToken = {}};
constexpr LockedInstance::Patience forAnAnswer{
    .answer = 1min, .acceptance = 1min, .withoutLock = 1min};
constexpr LockedInstance::Patience forNone{.answer = 1ms, .acceptance = 1ms, .withoutLock = 1ms};

LockedInstance instanceIn(const QString& folder, const QString& socketFolder,
                          const LockedInstance::Patience& patience) {
    return {folder,
            [socketFolder] {
                LockedInstance::Senders senders;
                senders.push_back(std::make_unique<SocketSender>(socketFolder));
                return senders;
            },
            patience};
}

// A lock file also excludes a second lock in the same process.
class Launch {
public:
    explicit Launch(const QString& folder, const LockedInstance::Patience& patience = forAnAnswer)
        : instance_(instanceIn(folder, folder, patience))
        , listener_(folder) {
        QObject::connect(&listener_, &RequestListener::requested, &listener_,
                         [this](const LaunchRequest& request) { requests.push_back(request); });
    }
    bool claim(const std::optional<LaunchRequest>& request) {
        const bool isInstance = instance_.claim(request);
        if (isInstance) {
            listener_.listen();
        }
        return isInstance;
    }

    std::vector<LaunchRequest> requests;

private:
    LockedInstance instance_;
    SocketListener listener_;
};

// Another program that holds the lock and greets whoever connects.
class Holder {
public:
    explicit Holder(const QString& folder)
        : lock(folder + "/morrowleaf.lock"_L1) {
        EXPECT_TRUE(lock.tryLock());
        EXPECT_TRUE(server.listen(folder + "/morrowleaf.socket"_L1));
        QObject::connect(&server, &QLocalServer::newConnection, &server, [this] {
            QLocalSocket* client = server.nextPendingConnection();
            client->write("ready\n");
            QObject::connect(client, &QLocalSocket::readyRead, client, [this, client] {
                lines.push_back(client->readLine());
                onLine(*client);
            });
        });
    }

    QLockFile lock;
    QLocalServer server;
    std::vector<QByteArray> lines;
    std::function<void(QLocalSocket&)> onLine;
};

class LockedInstanceTest : public testing::Test {
protected:
    QString socket() const { return dir.filePath(u"morrowleaf.socket"_s); }

    QTemporaryDir dir;
};

TEST_F(LockedInstanceTest, TheSecondHandsItsRequestToTheFirst) {
    Launch first(dir.path());
    EXPECT_TRUE(first.claim(toShow));
    EXPECT_FALSE(Launch(dir.path())
                     .claim(LaunchRequest{.action = u"settings"_s, .activationToken = u"abc d"_s}));
    ASSERT_EQ(first.requests.size(), 1) << "it has the request before the second ends";
    EXPECT_EQ(first.requests.front().action, u"settings"_s);
    EXPECT_EQ(first.requests.front().activationToken, u"abc d"_s);
}

TEST_F(LockedInstanceTest, WithoutARequestNothingIsPassedOn) {
    Launch first(dir.path());
    EXPECT_TRUE(first.claim(toShow));
    EXPECT_FALSE(Launch(dir.path()).claim(std::nullopt));
    EXPECT_FALSE(Launch(dir.path()).claim(toShow));
    EXPECT_EQ(first.requests.size(), 1);
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

TEST_F(LockedInstanceTest, WithoutALockTheProgramRunsAnyway) {
    EXPECT_TRUE(instanceIn(u"/nonexistent/folder"_s, dir.path(), forNone).claim(toShow));
    EXPECT_TRUE(instanceIn(QString(), dir.path(), forNone).claim(toShow));
}

TEST_F(LockedInstanceTest, WithoutALockAnInstanceThatAnswersIsFound) {
    Launch first(dir.path());
    EXPECT_TRUE(first.claim(toShow));
    EXPECT_FALSE(instanceIn(QString(), dir.path(), forAnAnswer).claim(toShow));
    EXPECT_EQ(first.requests.size(), 1);
}

// An instance that is busy may take long to accept a request.
TEST_F(LockedInstanceTest, WithoutALockAnInstanceThatHasAnsweredStaysTheOnlyOne) {
    Holder busy(dir.path());
    busy.onLine = [](QLocalSocket& /*client*/) {};
    auto patience = forAnAnswer;
    patience.withoutLock = 1s;
    EXPECT_FALSE(instanceIn(QString(), dir.path(), patience).claim(toShow));
    EXPECT_EQ(busy.lines.size(), 1);
}

TEST_F(LockedInstanceTest, TakesThePlaceOfAnInstanceThatEndsWithTheRequest) {
    Holder ending(dir.path());
    ending.onLine = [&](QLocalSocket& client) {
        client.abort();
        ending.server.close();
        ending.lock.unlock();
    };
    Launch second(dir.path());
    EXPECT_TRUE(second.claim(toShow));
    EXPECT_FALSE(Launch(dir.path()).claim(toShow));
    EXPECT_EQ(second.requests.size(), 1);
}

TEST_F(LockedInstanceTest, AsksAgainWhereARequestWasNotAccepted) {
    Holder busy(dir.path());
    busy.onLine = [&](QLocalSocket& client) {
        if (busy.lines.size() == 1) {
            client.abort();
        } else {
            client.write("accepted\n");
        }
    };
    EXPECT_FALSE(Launch(dir.path()).claim(toShow));
    EXPECT_EQ(busy.lines, (std::vector<QByteArray>{"show \n", "show \n"}));
}

// One that hangs has the request when it goes on.
TEST_F(LockedInstanceTest, GivesUpOnAnInstanceThatDoesNotAnswer) {
    QLockFile lock(dir.filePath(u"morrowleaf.lock"_s));
    ASSERT_TRUE(lock.tryLock());
    QLocalServer hanging;
    ASSERT_TRUE(hanging.listen(socket()));
    EXPECT_FALSE(Launch(dir.path(), forNone).claim(toShow));
    QLocalSocket* client = hanging.nextPendingConnection();
    ASSERT_NE(client, nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return client->canReadLine(); }));
    EXPECT_EQ(client->readLine().trimmed(), "show");
}

// If it ends before, the next instance gets it.
TEST_F(LockedInstanceTest, AcceptsARequestAfterItHasBeenCarriedOut) {
    auto ending = std::make_unique<SocketListener>(dir.path());
    ending->listen();
    SocketSender later(dir.path());
    QSignalSpy acceptances(&later, &RequestSender::accepted);
    QSignalSpy failures(&later, &RequestSender::failed);
    QObject::connect(&later, &RequestSender::answered, &later,
                     [&later] { EXPECT_TRUE(later.send(toShow)); });
    later.reach();
    endOnceCarriedOut(std::move(ending));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !failures.isEmpty(); }, 30'000));
    EXPECT_EQ(acceptances.size(), 0);
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
    const auto descriptors = [] {
        return QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System).size();
    };
    const qsizetype before = descriptors();
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
    // Both ends of a connection are in this process.
    EXPECT_LE(descriptors() - before, 2 * 64);
    EXPECT_FALSE(Launch(dir.path()).claim(toShow));
    EXPECT_EQ(first.requests.size(), 1);
}

TEST_F(LockedInstanceTest, DropsOneSilentClientAfterAWhile) {
    SocketListener listener(dir.path(), 1ms);
    listener.listen();
    QLocalSocket silent;
    silent.connectToServer(socket());
    ASSERT_TRUE(silent.waitForConnected());
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return silent.state() == QLocalSocket::UnconnectedState; }, 30'000));
}

} // namespace
} // namespace morrowleaf
