// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/introduction.h"
#include "platform/notifications.h"
#include "platform/trayhost.h"
#include "tests/fakes/faketiming.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThreadPool>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

class FakeNotifications final : public Notifications {
public:
    void show(const Notification& notification, std::function<void(bool)> done) override {
        shown.push_back(notification);
        done(takes);
    }

    bool takes = true;
    std::vector<Notification> shown;
};

class IntroductionTest : public testing::Test {
protected:
    // One run of the program, until everything that it began is done.
    void run(double seconds, bool hasTray = false) {
        Introduction introduction(tray, notifications, timing, workers, folder());
        QSignalSpy requests(&introduction, &Introduction::settingsRequested);
        timing.pass(seconds / 2);
        if (hasTray) {
            emit tray.appeared();
        }
        timing.pass(seconds / 2);
        for (int i = 0; i < 3; ++i) { // the mark, the message, the mark again
            workers.waitForDone();
            QTest::qWait(0);
        }
        emit notifications.clicked();
        settingsRequests += static_cast<int>(requests.size());
    }
    QString folder() const { return home.filePath(u"state/morrowleaf"_s); }
    bool isMarked() const { return QFile::exists(folder() + u"/introduced"_s); }

    QTemporaryDir home;
    QThreadPool workers;
    FakeTiming timing;
    TrayHost tray;
    FakeNotifications notifications;
    int settingsRequests = 0;
};

constexpr double longEnough = trayPatienceSeconds + 1;

TEST_F(IntroductionTest, TellsOnceEverHowTheSettingsAreReached) {
    run(longEnough);
    ASSERT_EQ(notifications.shown.size(), 1U);
    EXPECT_TRUE(notifications.shown[0].text.contains(u"morrowleaf --settings"_s));
    EXPECT_TRUE(notifications.shown[0].text.contains(u"Settings…"_s));
    EXPECT_EQ(QFile(folder() + u"/introduced"_s).size(), 0);
    EXPECT_TRUE(isMarked());
    run(longEnough);
    EXPECT_EQ(notifications.shown.size(), 1U);
}

TEST_F(IntroductionTest, SaysNothingWhereThereIsATray) {
    run(longEnough, true);
    EXPECT_TRUE(notifications.shown.empty());
    EXPECT_FALSE(isMarked());
}

TEST_F(IntroductionTest, WaitsForALateTray) {
    run(trayPatienceSeconds - 1);
    EXPECT_TRUE(notifications.shown.empty());
}

TEST_F(IntroductionTest, TriesAgainIfTheDesktopHasNotTakenIt) {
    notifications.takes = false;
    run(longEnough);
    EXPECT_FALSE(isMarked());
    notifications.takes = true;
    run(longEnough);
    EXPECT_EQ(notifications.shown.size(), 2U);
    EXPECT_TRUE(isMarked());
}

TEST_F(IntroductionTest, IsSilentWhereNothingCanBeRemembered) {
    ASSERT_TRUE(QFile(home.filePath(u"state"_s)).open(QIODevice::WriteOnly)); // in the way
    run(longEnough);
    EXPECT_TRUE(notifications.shown.empty());
}

TEST_F(IntroductionTest, OpensTheSettingsOnAClick) {
    run(longEnough);
    EXPECT_EQ(settingsRequests, 1);
}

} // namespace
