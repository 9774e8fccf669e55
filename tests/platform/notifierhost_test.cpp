// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/notifierhost.h"

#include "tests/platform/privatebus.h"

#include <QDBusVirtualObject>
#include <QSignalSpy>

#include <atomic>
#include <memory>

namespace morrowleaf {
namespace {

// The watcher of status items, with or without a host.
class FakeWatcher : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)

public:
    explicit FakeWatcher(bool hasHost)
        : hasHost_(hasHost) {
        service_.bus.registerObject(u"/StatusNotifierWatcher"_s, this,
                                    QDBusConnection::ExportAllProperties);
        EXPECT_TRUE(service_.bus.registerService(u"org.kde.StatusNotifierWatcher"_s));
    }

    bool hasHost() const {
        ++timesAsked;
        return hasHost_;
    }
    void registerHost() {
        hasHost_ = true;
        service_.send(u"/StatusNotifierWatcher"_s, u"org.kde.StatusNotifierWatcher"_s,
                      u"StatusNotifierHostRegistered"_s);
    }

    mutable int timesAsked = 0;

private:
    FakeService service_{{}};
    bool hasHost_;
};

// A watcher that takes calls and answers none.
class HangingWatcher : public QDBusVirtualObject {
public:
    HangingWatcher() {
        service_.bus.registerVirtualObject(u"/StatusNotifierWatcher"_s, this);
        EXPECT_TRUE(service_.bus.registerService(u"org.kde.StatusNotifierWatcher"_s));
    }

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& /*message*/,
                       const QDBusConnection& /*connection*/) override {
        wasAsked = true;
        return true;
    }

    std::atomic<bool> wasAsked = false;

private:
    FakeService service_{{}};
};

class NotifierHostTest : public testing::Test {
protected:
    void start() {
        const auto session = sessionLink();
        host = std::make_unique<NotifierHost>(session);
        appearances = std::make_unique<QSignalSpy>(host.get(), &TrayHost::appeared);
        settlements = std::make_unique<QSignalSpy>(host.get(), &NotifierHost::settled);
        session->open();
    }
    bool appears() {
        return becomesTrue([this] { return appearances->size() == 1; });
    }

    bool settles() {
        return becomesTrue([this] { return settlements->size() == 1; });
    }

    PrivateBus daemon;
    std::unique_ptr<FakeWatcher> watcher;
    std::unique_ptr<NotifierHost> host;
    std::unique_ptr<QSignalSpy> appearances;
    std::unique_ptr<QSignalSpy> settlements;
};

TEST_F(NotifierHostTest, IsPresentWhereAHostHasRegistered) {
    watcher = std::make_unique<FakeWatcher>(true);
    start();
    EXPECT_EQ(appearances->size(), 0);
    EXPECT_TRUE(appears());
}

TEST_F(NotifierHostTest, AppearsWithALaterWatcher) {
    start();
    watcher = std::make_unique<FakeWatcher>(true);
    EXPECT_TRUE(appears());
}

TEST_F(NotifierHostTest, AppearsWhenALaterHostRegisters) {
    watcher = std::make_unique<FakeWatcher>(false);
    start();
    EXPECT_TRUE(becomesTrue([this] { return watcher->timesAsked == 1; }));
    EXPECT_EQ(appearances->size(), 0);
    watcher->registerHost();
    EXPECT_TRUE(appears());
}

TEST_F(NotifierHostTest, AppearsOnceMoreOnABusThatComesBack) {
    watcher = std::make_unique<FakeWatcher>(true);
    start();
    EXPECT_TRUE(appears());
    daemon.stop();
    daemon.start();
    watcher = std::make_unique<FakeWatcher>(true);
    EXPECT_TRUE(becomesTrue([this] { return appearances->size() == 2; }));
}

TEST_F(NotifierHostTest, SettlesWhereNobodyHasToBeAskedAgain) {
    start();
    EXPECT_TRUE(settles()) << "without a watcher";
    watcher = std::make_unique<FakeWatcher>(false);
    start();
    EXPECT_TRUE(settles()) << "without a host";
    EXPECT_EQ(watcher->timesAsked, 1);
    watcher->registerHost();
    start();
    EXPECT_TRUE(settles()) << "with a host";
    EXPECT_EQ(appearances->size(), 1);
    daemon.stop();
    start();
    EXPECT_TRUE(settles()) << "without a bus";
}

TEST_F(NotifierHostTest, DoesNotSettleWhileTheWatcherHangs) {
    auto hanging = std::make_unique<HangingWatcher>();
    start();
    EXPECT_TRUE(becomesTrue([&] { return hanging->wasAsked.load(); }));
    EXPECT_EQ(settlements->size(), 0);
    hanging.reset();
    EXPECT_TRUE(settles());
    EXPECT_EQ(appearances->size(), 0);
}

} // namespace
} // namespace morrowleaf

#include "notifierhost_test.moc"
