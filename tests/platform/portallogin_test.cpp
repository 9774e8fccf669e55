// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/portallogin.h"

#include "platform/null/nullplatform.h"
#include "tests/platform/privatebus.h"

#include <QDBusContext>
#include <QDBusObjectPath>
#include <QSignalSpy>

namespace morrowleaf {
namespace {

class FakeBackground : public QObject, public QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Background")

public:
    FakeBackground()
        : service({}) {
        EXPECT_TRUE(service.bus.registerObject(u"/org/freedesktop/portal/desktop"_s, this,
                                               QDBusConnection::ExportAllSlots));
        EXPECT_TRUE(service.bus.registerService(u"org.freedesktop.portal.Desktop"_s));
    }
    void answer(bool isGranted) {
        service.send(request, u"org.freedesktop.portal.Request"_s, u"Response"_s,
                     {isGranted ? 0U : 1U, QVariantMap{{u"autostart"_s, isGranted}}});
    }

    FakeService service;
    int questions = 0;
    QVariantMap options;
    QString request;

public slots:
    // NOLINTNEXTLINE: a name on the bus
    QDBusObjectPath RequestBackground(const QString& /*window*/, const QVariantMap& asked) {
        ++questions;
        options = asked;
        request = u"/org/freedesktop/portal/desktop/request/%1/%2"_s.arg(
            message().service().mid(1).replace('.'_L1, '_'_L1),
            asked.value(u"handle_token"_s).toString());
        return QDBusObjectPath(request);
    }
};

class PortalLoginTest : public testing::Test {
protected:
    PortalLoginTest() {
        QSignalSpy up(session.get(), &BusLink::up);
        session->open();
        EXPECT_TRUE(becomesTrue([&] { return !up.isEmpty(); }));
    }
    void awaitQuestions(int count) {
        ASSERT_TRUE(becomesTrue([&] { return portal.questions == count; }));
    }

    PrivateBus bus;
    FakeBackground portal;
    std::shared_ptr<BusLink> session = sessionLink();
    PortalLoginItem item{session, std::move(makeNullPlatform().loginItem)};
};

TEST_F(PortalLoginTest, AsksThePortalToStartTheProgram) {
    EXPECT_EQ(item.registerItem(), std::nullopt);
    awaitQuestions(1);
    EXPECT_EQ(portal.options.value(u"autostart"_s), true);
    EXPECT_EQ(portal.options.value(u"commandline"_s).toStringList(), QStringList{u"morrowleaf"_s});
    portal.answer(true);
    portal.service.waitForBus();
    QTest::qWait(0);
    EXPECT_EQ(item.status(), LoginItem::Status::Enabled);
}

TEST_F(PortalLoginTest, KnowsThatTheUserHasRefused) {
    EXPECT_EQ(item.registerItem(), std::nullopt);
    awaitQuestions(1);
    portal.answer(false);
    EXPECT_TRUE(becomesTrue([&] { return item.status() == LoginItem::Status::NotRegistered; }));
}

TEST_F(PortalLoginTest, AsksThePortalNotToStartItAnyMore) {
    EXPECT_EQ(item.registerItem(), std::nullopt);
    awaitQuestions(1);
    EXPECT_EQ(item.unregisterItem(), std::nullopt);
    awaitQuestions(2);
    EXPECT_EQ(portal.options.value(u"autostart"_s), false);
    EXPECT_EQ(item.status(), LoginItem::Status::NotRegistered);
}

TEST_F(PortalLoginTest, FailsWithoutABus) {
    PortalLoginItem alone(sessionLink(), std::move(makeNullPlatform().loginItem));
    EXPECT_NE(alone.registerItem(), std::nullopt);
    EXPECT_EQ(alone.status(), LoginItem::Status::NotRegistered);
}

} // namespace
} // namespace morrowleaf

#include "portallogin_test.moc"
