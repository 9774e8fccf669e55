// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/busnotifications.h"

#include "tests/platform/privatebus.h"

#include <QDBusContext>
#include <QSignalSpy>

#include <optional>

namespace morrowleaf {
namespace {

constexpr uint givenId = 7;
const QString servicePath = u"/org/freedesktop/Notifications"_s;
const QString serviceName = u"org.freedesktop.Notifications"_s;

// The desktop's service and the portal's, on one connection.
class FakeServer : public QObject, public QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    FakeServer()
        : service({}) {
        EXPECT_TRUE(service.bus.registerObject(servicePath, this, QDBusConnection::ExportAllSlots));
    }
    void registerName() { EXPECT_TRUE(service.bus.registerService(serviceName)); }
    void click(uint id) {
        service.send(servicePath, serviceName, u"ActionInvoked"_s, {id, u"default"_s});
    }

    FakeService service;
    bool refuses = false;
    QString title;
    QString text;
    QStringList buttons;

public slots:
    // NOLINTNEXTLINE: a name on the bus
    uint Notify(const QString& /*program*/, uint /*replaced*/, const QString& /*icon*/,
                const QString& summary, const QString& body, const QStringList& actions,
                const QVariantMap& /*hints*/, int /*timeout*/) {
        if (refuses) {
            sendErrorReply(QDBusError::Failed);
            return 0;
        }
        title = summary;
        text = body;
        buttons = actions;
        return givenId;
    }
};

class FakeNotificationPortal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Notification")

public:
    FakeNotificationPortal()
        : service({}) {
        EXPECT_TRUE(service.bus.registerObject(u"/org/freedesktop/portal/desktop"_s, this,
                                               QDBusConnection::ExportAllSlots));
        EXPECT_TRUE(service.bus.registerService(u"org.freedesktop.portal.Desktop"_s));
    }

    FakeService service;
    QVariantMap shown;

public slots:
    // NOLINTNEXTLINE: a name on the bus
    void AddNotification(const QString& /*id*/, const QVariantMap& notification) {
        shown = notification;
    }
};

const Notification message{.title = u"Title"_s, .text = u"Text"_s, .button = u"Button"_s};

class BusNotificationsTest : public testing::Test {
protected:
    void connect(bool isSandboxed) {
        notifications.emplace(session, isSandboxed);
        QSignalSpy up(session.get(), &BusLink::up);
        session->open();
        ASSERT_TRUE(becomesTrue([&] { return !up.isEmpty(); }));
    }
    // Whether the desktop has taken the message.
    bool isTaken() {
        std::optional<bool> answer;
        notifications->show(message, [&answer](bool taken) { answer = taken; });
        EXPECT_FALSE(answer) << "before the event loop ran";
        EXPECT_TRUE(becomesTrue([&] { return answer.has_value(); }));
        return answer.value_or(false);
    }

    PrivateBus bus;
    std::shared_ptr<BusLink> session = sessionLink();
    std::optional<BusNotifications> notifications;
};

TEST_F(BusNotificationsTest, ShowTheMessage) {
    FakeServer server;
    server.registerName();
    connect(false);
    EXPECT_TRUE(isTaken());
    EXPECT_EQ(server.title, message.title);
    EXPECT_EQ(server.text, message.text);
    EXPECT_EQ(server.buttons, QStringList({u"default"_s, u"Button"_s, u"settings"_s, u"Button"_s}));
}

TEST_F(BusNotificationsTest, ReportAClickOnTheirOwnMessageOnly) {
    FakeServer server;
    server.registerName();
    connect(false);
    ASSERT_TRUE(isTaken());
    QSignalSpy clicks(&*notifications, &Notifications::clicked);
    server.click(givenId + 1);
    server.click(givenId);
    ASSERT_TRUE(becomesTrue([&] { return !clicks.isEmpty(); }));
    EXPECT_EQ(clicks.size(), 1);
}

TEST_F(BusNotificationsTest, AreNotTakenByAServiceThatRefuses) {
    FakeServer server;
    server.refuses = true;
    server.registerName();
    connect(false);
    EXPECT_FALSE(isTaken());
}

TEST_F(BusNotificationsTest, AreNotTakenWithoutABus) {
    bus.stop();
    notifications.emplace(session, false);
    EXPECT_FALSE(isTaken());
}

TEST_F(BusNotificationsTest, GoThroughThePortalInASandbox) {
    FakeNotificationPortal portal;
    connect(true);
    EXPECT_TRUE(isTaken());
    EXPECT_EQ(portal.shown.value(u"title"_s), message.title);
    EXPECT_EQ(portal.shown.value(u"body"_s), message.text);
    EXPECT_EQ(portal.shown.value(u"default-action"_s), u"app.settings"_s);
}

} // namespace
} // namespace morrowleaf

#include "busnotifications_test.moc"
