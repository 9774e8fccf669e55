// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/overview.h"

#include "platform/launch.h"
#include "tests/platform/privatebus.h"

#include <QDBusContext>
#include <QDBusVariant>
#include <QWidget>

#include <memory>

namespace morrowleaf {
namespace {

const QString shellName = u"org.gnome.Shell"_s;
const QString shellPath = u"/org/gnome/Shell"_s;

// The shell's overview. It announces its changes, as the real one does.
class FakeShell : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.Shell")
    Q_PROPERTY(bool OverviewActive READ isOpen WRITE setOpen)

public:
    explicit FakeShell(bool opened)
        : isOpen_(opened) {
        service.bus.registerObject(shellPath, this, QDBusConnection::ExportAllProperties);
        EXPECT_TRUE(service.bus.registerService(shellName));
    }

    bool isOpen() const { return isOpen_; }
    void setOpen(bool opened) {
        isOpen_ = opened;
        ++changes;
        service.send(shellPath, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s,
                     {shellName, QVariantMap{{u"OverviewActive"_s, opened}}, QStringList()});
    }

    FakeService service{{}};
    int changes = 0;

private:
    bool isOpen_;
};

class OverviewTest : public testing::Test {
protected:
    void openSession() {
        session->open();
        EXPECT_TRUE(becomesTrue([this] { return session->bus().isConnected(); }));
    }
    void show() {
        window = std::make_unique<QWidget>();
        overview.makeWayFor(*window);
        window->show();
    }
    // Returns when everything that the program has sent has reached the shell.
    void settle(FakeShell& shell) {
        session->bus().call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/"_s,
                                                           u"org.freedesktop.DBus"_s, u"GetId"_s));
        shell.service.waitForBus();
        QTest::qWait(50);
    }

    PrivateBus daemon;
    std::shared_ptr<BusLink> session = sessionLink();
    Overview overview{session};
    std::unique_ptr<QWidget> window;
};

TEST_F(OverviewTest, ClosesForAWindowAndOpensAgainAfterIt) {
    FakeShell shell(true);
    openSession();
    show();
    EXPECT_TRUE(becomesTrue([&] { return !shell.isOpen(); }));
    window.reset();
    EXPECT_TRUE(becomesTrue([&] { return shell.isOpen(); }));
    EXPECT_EQ(shell.changes, 2);
}

TEST_F(OverviewTest, ClosesForAWindowThatIsThereBeforeTheBus) {
    FakeShell shell(true);
    show();
    openSession();
    EXPECT_TRUE(becomesTrue([&] { return !shell.isOpen(); }));
}

TEST_F(OverviewTest, ClosesWhatTheShellOpensJustAfterwards) {
    FakeShell shell(false);
    openSession();
    show();
    settle(shell);
    shell.setOpen(true);
    EXPECT_TRUE(becomesTrue([&] { return !shell.isOpen(); }));
    window.reset();
    EXPECT_TRUE(becomesTrue([&] { return shell.isOpen(); }));
}

TEST_F(OverviewTest, StaysClosedIfTheProgramWasStartedFromIt) {
    FakeShell shell(true);
    openSession();
    settle(shell);
    overview.leave();
    show();
    EXPECT_TRUE(becomesTrue([&] { return !shell.isOpen(); }));
    window.reset();
    settle(shell);
    EXPECT_EQ(shell.changes, 1);
}

TEST_F(OverviewTest, StaysClosedIfItBecomesKnownOnlyAfterThat) {
    FakeShell shell(true);
    overview.leave();
    show();
    openSession();
    EXPECT_TRUE(becomesTrue([&] { return !shell.isOpen(); }));
    window.reset();
    settle(shell);
    EXPECT_EQ(shell.changes, 1);
}

TEST_F(OverviewTest, StaysClosedIfTheLaunchHasAToken) {
    FakeShell shell(true);
    setActivationToken(u"token-7"_s);
    Overview launched(session);
    setActivationToken({});
    window = std::make_unique<QWidget>();
    launched.makeWayFor(*window);
    window->show();
    openSession();
    EXPECT_TRUE(becomesTrue([&] { return !shell.isOpen(); }));
    window.reset();
    settle(shell);
    EXPECT_EQ(shell.changes, 1);
}

TEST_F(OverviewTest, OpensAgainIfTheUserHasLeftAnEarlierOne) {
    FakeShell shell(true);
    openSession();
    settle(shell);
    overview.leave();
    shell.setOpen(false);
    settle(shell);
    shell.setOpen(true);
    settle(shell);
    show();
    EXPECT_TRUE(becomesTrue([&] { return !shell.isOpen(); }));
    window.reset();
    EXPECT_TRUE(becomesTrue([&] { return shell.isOpen(); }));
}

TEST_F(OverviewTest, OpensAgainIfTheUserStartsTheProgramOnceItIsClosed) {
    FakeShell shell(true);
    openSession();
    show();
    EXPECT_TRUE(becomesTrue([&] { return !shell.isOpen(); }));
    settle(shell);
    overview.leave();
    window.reset();
    EXPECT_TRUE(becomesTrue([&] { return shell.isOpen(); }));
}

TEST_F(OverviewTest, LeavesAClosedOverviewAlone) {
    FakeShell shell(false);
    openSession();
    show();
    settle(shell);
    window.reset();
    settle(shell);
    EXPECT_EQ(shell.changes, 0);
}

TEST_F(OverviewTest, StaysClosedBetweenTwoWindows) {
    FakeShell shell(true);
    openSession();
    show();
    EXPECT_TRUE(becomesTrue([&] { return !shell.isOpen(); }));
    QWidget next;
    overview.makeWayFor(next);
    next.show();
    window.reset();
    settle(shell);
    EXPECT_FALSE(shell.isOpen());
    EXPECT_EQ(shell.changes, 1);
}

TEST_F(OverviewTest, DoesNothingWithoutAShell) {
    openSession();
    show();
    window.reset();
    auto shell = std::make_unique<FakeShell>(true);
    settle(*shell);
    EXPECT_EQ(shell->changes, 0);
}

} // namespace
} // namespace morrowleaf

#include "overview_test.moc"
