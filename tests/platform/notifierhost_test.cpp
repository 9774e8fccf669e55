// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/notifierhost.h"

#include "tests/platform/privatebus.h"

#include <QSignalSpy>

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

class NotifierHostTest : public testing::Test {
protected:
    void start() {
        const auto session = sessionLink();
        host = std::make_unique<NotifierHost>(session);
        appearances = std::make_unique<QSignalSpy>(host.get(), &TrayHost::appeared);
        session->open();
    }
    bool appears() {
        return becomesTrue([this] { return appearances->size() == 1; });
    }

    PrivateBus daemon;
    std::unique_ptr<FakeWatcher> watcher;
    std::unique_ptr<NotifierHost> host;
    std::unique_ptr<QSignalSpy> appearances;
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

} // namespace
} // namespace morrowleaf

#include "notifierhost_test.moc"
