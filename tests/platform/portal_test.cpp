// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/portals.h"

#include "tests/platform/privatebus.h"

#include <QDBusAbstractAdaptor>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QWidget>

#include <memory>
#include <optional>

namespace morrowleaf {
namespace {

const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString requestInterface = u"org.freedesktop.portal.Request"_s;

// One dialog, by its request object.
class FakeDialog : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Request")

public:
    QString path;
    QString title;
    QVariantMap options;
    bool closed = false;

public slots:
    void Close() { closed = true; } // NOLINT: a name on the bus
};

// The portal's file chooser.
class FakePortal : public QObject, public QDBusContext {
    Q_OBJECT

public:
    FakePortal();

    void registerName() {
        EXPECT_TRUE(service.bus.registerService(u"org.freedesktop.portal.Desktop"_s));
    }
    void respond(uint code, const QStringList& addresses) {
        service.send(dialog.path, requestInterface, u"Response"_s,
                     {code, QVariantMap{{u"uris"_s, addresses}}});
    }
    FakeService service{{}};
    FakeDialog dialog;
    bool refuses = false;
    bool choosesPath = false; // as an old portal did
};

class FakeChooser : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")

public:
    explicit FakeChooser(FakePortal& portal)
        : QDBusAbstractAdaptor(&portal)
        , portal_(portal) {}

public slots:
    // NOLINTNEXTLINE: a name on the bus
    QDBusObjectPath OpenFile(const QString& /*window*/, const QString& title,
                             const QVariantMap& options) {
        if (portal_.refuses) {
            portal_.sendErrorReply(QDBusError::Failed);
            return QDBusObjectPath(u"/"_s);
        }
        QString sender = portal_.message().service().mid(1);
        sender.replace('.'_L1, '_'_L1);
        const QString token =
            portal_.choosesPath ? u"own"_s : options[u"handle_token"_s].toString();
        FakeDialog& dialog = portal_.dialog;
        dialog.path = portalPath + u"/request/%1/%2"_s.arg(sender, token);
        dialog.title = title;
        dialog.options = options;
        portal_.service.bus.registerObject(dialog.path, &dialog, QDBusConnection::ExportAllSlots);
        return QDBusObjectPath(dialog.path);
    }

private:
    FakePortal& portal_;
};

FakePortal::FakePortal() {
    new FakeChooser(*this);
    service.bus.registerObject(portalPath, this);
}

class PortalTest : public testing::Test {
protected:
    void ask() {
        const FileQuestion question{.title = u"Add a Photo"_s,
                                    .kindName = u"Images"_s,
                                    .mimeTypes = {u"image/png"_s, u"image/jpeg"_s}};
        FileRequest* request = chooser.ask(*window, question);
        QObject::connect(request, &FileRequest::answered, request, [this](const FileAnswer& given) {
            EXPECT_FALSE(answer) << "answered twice";
            answer = given;
        });
        EXPECT_FALSE(answer);
    }
    bool dialogOpens() {
        return becomesTrue([this] { return !portal->dialog.path.isEmpty(); });
    }
    bool isAnswered(FileAnswer::Kind kind) {
        return becomesTrue([this] { return answer.has_value(); }) && answer->kind == kind;
    }

    void openSession() {
        session->open();
        EXPECT_TRUE(becomesTrue([this] { return session->bus().isConnected(); }));
    }
    PrivateBus daemon;
    std::shared_ptr<BusLink> session = sessionLink();
    std::unique_ptr<FakePortal> portal = std::make_unique<FakePortal>();
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    PortalFileChooser chooser{session};
    std::optional<FileAnswer> answer;
};

TEST_F(PortalTest, AsksForOneFileOfTheGivenTypes) {
    openSession();
    portal->registerName();
    ask();
    ASSERT_TRUE(dialogOpens());
    EXPECT_EQ(portal->dialog.title, u"Add a Photo"_s);
    EXPECT_EQ(portal->dialog.options[u"multiple"_s], false);
    EXPECT_EQ(portal->dialog.options[u"modal"_s], true);
    const auto filters = portal->dialog.options[u"filters"_s].value<QDBusArgument>();
    EXPECT_EQ(filters.currentSignature(), "a(sa(us))"_L1);
}

TEST_F(PortalTest, GivesTheChosenFile) {
    openSession();
    portal->registerName();
    ask();
    ASSERT_TRUE(dialogOpens());
    portal->respond(0, {u"file:///home/me/a%20b.png"_s});
    EXPECT_TRUE(isAnswered(FileAnswer::Kind::Chosen));
    EXPECT_EQ(answer->path, u"/home/me/a b.png"_s);
    EXPECT_FALSE(portal->dialog.closed);
}

TEST_F(PortalTest, FollowsAPortalThatChoosesThePathItself) {
    openSession();
    portal->choosesPath = true;
    portal->registerName();
    ask();
    ASSERT_TRUE(dialogOpens());
    // Until the reply of OpenFile has arrived the answer would be missed.
    ASSERT_TRUE(becomesTrue([this] {
        portal->respond(0, {u"file:///a.png"_s});
        return answer.has_value();
    }));
    EXPECT_EQ(answer->path, u"/a.png"_s);
}

TEST_F(PortalTest, CancelledByTheUserOrWithoutALocalFile) {
    openSession();
    portal->registerName();
    ask();
    ASSERT_TRUE(dialogOpens());
    portal->respond(1, {});
    EXPECT_TRUE(isAnswered(FileAnswer::Kind::Cancelled));
    for (const QString& address : {u"https://example.org/a.png"_s, u"file:a.png"_s,
                                   u"file://elsewhere/a.png"_s, u"file:///a%00.png"_s}) {
        answer.reset();
        portal->dialog.path.clear();
        ask();
        ASSERT_TRUE(dialogOpens());
        portal->respond(0, {address});
        EXPECT_TRUE(isAnswered(FileAnswer::Kind::Cancelled)) << address.toStdString();
    }
}

TEST_F(PortalTest, CancelledWhenThePortalVanishes) {
    openSession();
    portal->registerName();
    ask();
    ASSERT_TRUE(dialogOpens());
    portal.reset();
    EXPECT_TRUE(isAnswered(FileAnswer::Kind::Cancelled));
}

TEST_F(PortalTest, AsksNoPortalThatReplacesTheOneAsked) {
    openSession();
    const QString name = u"org.freedesktop.portal.Desktop"_s;
    using Names = QDBusConnectionInterface;
    ASSERT_TRUE(portal->service.bus.interface()
                    ->registerService(name, Names::DontQueueService, Names::AllowReplacement)
                    .isValid());
    ask();
    ASSERT_TRUE(dialogOpens());
    FakePortal next;
    ASSERT_TRUE(next.service.bus.interface()
                    ->registerService(name, Names::ReplaceExistingService)
                    .isValid());
    EXPECT_TRUE(isAnswered(FileAnswer::Kind::Cancelled));
    // A call to the next portal would be on its way by now; both replies come after it.
    session->bus().call(QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/"_s,
                                                       u"org.freedesktop.DBus"_s, u"GetId"_s));
    next.service.waitForBus();
    QCoreApplication::processEvents();
    EXPECT_EQ(next.dialog.path, QString());
}

TEST_F(PortalTest, UnavailableWithoutAPortal) {
    openSession();
    ask();
    EXPECT_TRUE(isAnswered(FileAnswer::Kind::Unavailable));
}

TEST_F(PortalTest, UnavailableWhereThePortalRefuses) {
    openSession();
    portal->refuses = true;
    portal->registerName();
    ask();
    EXPECT_TRUE(isAnswered(FileAnswer::Kind::Unavailable));
}

TEST_F(PortalTest, UnavailableWithoutABus) {
    openSession();
    daemon.stop();
    EXPECT_TRUE(becomesTrue([this] { return !session->bus().isConnected(); }));
    ask();
    EXPECT_TRUE(isAnswered(FileAnswer::Kind::Unavailable));
}

TEST_F(PortalTest, ClosesTheDialogWithItsWindow) {
    openSession();
    portal->registerName();
    ask();
    ASSERT_TRUE(dialogOpens());
    window.reset();
    EXPECT_TRUE(becomesTrue([this] { return portal->dialog.closed; }));
    EXPECT_FALSE(answer);
}

} // namespace
} // namespace morrowleaf

#include "portal_test.moc"
