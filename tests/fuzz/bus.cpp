// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/logind.h"
#include "platform/linux/dbus/notifierhost.h"
#include "platform/linux/dbus/overview.h"
#include "platform/linux/dbus/portals.h"
#include "platform/linux/dbus/portalwishes.h"
#include "platform/linux/dbus/screensavers.h"
#include "tests/platform/fakelogind.h"
#include "tests/platform/privatebus.h"

#include <QDBusSignature>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QWidget>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

using namespace morrowleaf;

namespace {

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

constexpr std::array services{u"org.freedesktop.login1",
                              u"org.freedesktop.portal.Desktop",
                              u"org.kde.StatusNotifierWatcher",
                              u"org.freedesktop.ScreenSaver",
                              u"org.gnome.ScreenSaver",
                              u"org.cinnamon.ScreenSaver",
                              u"org.mate.ScreenSaver",
                              u"org.xfce.ScreenSaver",
                              u"org.gnome.Shell"};
constexpr std::array paths{u"/org/freedesktop/login1/session/_37",
                           u"/org/freedesktop/login1/user/_1000",
                           u"/org/freedesktop/portal/desktop/request/1_1/own",
                           u"/org/freedesktop/login1",
                           u"/org/freedesktop/portal/desktop",
                           u"/"};
constexpr std::array texts{u"LockedHint",
                           u"Active",
                           u"uris",
                           u"org.freedesktop.login1.Session",
                           u"org.freedesktop.appearance",
                           u"color-scheme",
                           u"accent-color",
                           u"contrast",
                           u"org.gnome.desktop.interface",
                           u"enable-animations",
                           u"org.kde.kdeglobals.KDE",
                           u"AnimationDurationFactor",
                           u"org.kde.kdeglobals.General",
                           u"AccentColor",
                           u"1,2,300",
                           u"org.gnome.Shell",
                           u"OverviewActive",
                           u"file:///home/me/a%20b.png",
                           u"file:relative.png",
                           u"file://host/a.png",
                           u"https://example.org/a.png",
                           u"/a.png",
                           u""};

// The input, byte by byte; zeros after its end.
class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size)
        : data_(data)
        , left_(size) {}

    bool isEmpty() const { return left_ == 0; }
    std::uint8_t next() {
        if (left_ == 0) {
            return 0;
        }
        --left_;
        return *data_++;
    }
    template <typename Choices>
    QString oneOf(const Choices& choices) {
        return QString::fromUtf16(choices.at(next() % choices.size()));
    }
    QString text() {
        const std::uint8_t length = next();
        if (length >= 32) {
            return oneOf(texts);
        }
        QByteArray bytes;
        for (int i = 0; i < length; ++i) {
            bytes += static_cast<char>(next());
        }
        return QString::fromUtf8(bytes);
    }
    QDBusObjectPath path() { return QDBusObjectPath(oneOf(paths)); }
    QStringList list() {
        QStringList all;
        for (int left = next() % 4; left > 0; --left) {
            all += text();
        }
        return all;
    }
    QVariantMap map(int depth) {
        QVariantMap all;
        for (int left = next() % 4; left > 0; --left) {
            const QString key = text();
            all[key] = value(depth + 1);
        }
        return all;
    }
    QDBusVariant variant(int depth) { return QDBusVariant(value(depth)); }
    // A value of any type.
    QVariant value(int depth) {
        constexpr int deepest = 8;
        switch (depth < deepest ? next() % 15 : 0) {
        case 1:
            return uint{next()} % 4U;
        case 2:
            return -int{next()};
        case 3:
            return double{1e300} * next();
        case 4:
            return text();
        case 5:
            return QVariant::fromValue(path());
        case 6:
            return QVariant::fromValue(variant(depth + 1));
        case 7:
            return list();
        case 8:
            return map(depth);
        case 9:
            return QVariantList{value(depth + 1), value(depth + 1)};
        case 10:
            return text().toUtf8();
        case 11:
            return QVariant::fromValue(NamedPath{text(), path()});
        case 12:
            return QVariant::fromValue(QDBusSignature(u"a{sv}"_s));
        case 13:
            return qulonglong{next()} << 56U;
        case 14:
            return QVariant::fromValue(next());
        default:
            return next() % 2 == 1;
        }
    }

private:
    const std::uint8_t* data_;
    std::size_t left_;
};

// Has every name, and answers every call as the input says.
class Answerer : public QDBusVirtualObject {
public:
    Answerer() {
        qDBusRegisterMetaType<NamedPath>();
        fake.bus.registerVirtualObject(u"/"_s, this, QDBusConnection::SubPath);
        for (const char16_t* name : services) {
            require(fake.bus.registerService(QString::fromUtf16(name)));
        }
    }

    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        asked.insert(call.member());
        if (call.member() == "OpenFile"_L1) {
            request = u"/org/freedesktop/portal/desktop/request/%1/%2"_s.arg(
                call.service().mid(1).replace(u'.', u'_'),
                qdbus_cast<QVariantMap>(call.arguments().value(2))
                    .value(u"handle_token"_s)
                    .toString());
        }
        const std::uint8_t way = input->next();
        if (way % 8 == 0) {
            return bus.send(call.createErrorReply(QDBusError::Failed, input->text()));
        }
        if (way % 8 == 1) {
            return bus.send(call.createReply({input->value(0), input->value(0)}));
        }
        return bus.send(call.createReply(expected(call.member())));
    }

    // Of the type that the caller expects.
    QVariantList expected(const QString& member) {
        if (member == "ReadAll"_L1) {
            return {QVariant::fromValue(
                PortalSettings{{input->text(), input->map(0)}, {input->text(), input->map(0)}})};
        }
        if (member == "Get"_L1) {
            return {QVariant::fromValue(input->variant(0))};
        }
        if (member == "GetAll"_L1) {
            return {input->map(0)};
        }
        if (member == "Close"_L1 || member == "Set"_L1) {
            return {};
        }
        return {QVariant::fromValue(input->path())};
    }

    FakeService fake{{}};
    Bytes* input = nullptr;
    QSet<QString> asked;
    QString request; // the object of the question for a file
};

// One signal, with the arguments of its interface or with any.
void sendSignal(Answerer& from) {
    Bytes& input = *from.input;
    const std::uint8_t which = input.next();
    const bool wrong = input.next() % 8 == 0;
    const auto send = [&](const QString& path, const QString& interface, const QString& name,
                          const QVariantList& arguments) {
        from.fake.send(path, interface, name, wrong ? QVariantList{input.value(0)} : arguments);
    };
    const QString session = u"org.freedesktop.login1.Session"_s;
    switch (which % 11) {
    case 0:
        send(u"/org/freedesktop/login1"_s, u"org.freedesktop.login1.Manager"_s,
             u"PrepareForSleep"_s, {input.next() % 2 == 1});
        break;
    case 1:
        send(input.oneOf(paths), session, u"Lock"_s, {});
        break;
    case 2:
        send(input.oneOf(paths), session, u"Unlock"_s, {});
        break;
    case 3:
        send(input.oneOf(paths), u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s,
             {input.next() % 2 == 1 ? session : input.text(), input.map(0), input.list()});
        break;
    case 4: {
        const QString name = QString::fromUtf16(services.at(3 + input.next() % 5));
        send(u'/' + QString(name).replace(u'.', u'/'), name, u"ActiveChanged"_s,
             {input.next() % 2 == 1});
        break;
    }
    case 5:
        send(u"/org/freedesktop/portal/desktop"_s, u"org.freedesktop.portal.Settings"_s,
             u"SettingChanged"_s,
             {input.text(), input.text(), QVariant::fromValue(input.variant(0))});
        break;
    case 6:
        send(from.request, u"org.freedesktop.portal.Request"_s, u"Response"_s,
             {uint{input.next()} % 4, input.map(0)});
        break;
    case 7:
        send(u"/StatusNotifierWatcher"_s, u"org.kde.StatusNotifierWatcher"_s,
             u"StatusNotifierHostRegistered"_s, {});
        break;
    case 8:
        send(u"/org/freedesktop/ScreenSaver"_s, u"org.kde.screensaver"_s, u"AboutToLock"_s, {});
        break;
    case 9:
        send(u"/org/gnome/Shell"_s, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s,
             {input.text(), input.map(0), input.list()});
        break;
    default: {
        const QString name = input.oneOf(services);
        from.fake.bus.unregisterService(name);
        from.fake.bus.registerService(name);
    }
    }
}

void checkAnswer(const FileAnswer& answer) {
    const bool chosen = answer.kind == FileAnswer::Kind::Chosen;
    require(chosen ? answer.path.startsWith(u'/') && !answer.path.startsWith("//"_L1) &&
                         !answer.path.contains(QChar(0))
                   : answer.path.isEmpty());
}

// The bus with the answerer; both end with the application, or with the process where the
// application stays until then.
Answerer& theAnswerer() {
    static auto bus = std::make_unique<PrivateBus>();
    static auto answerer = std::make_unique<Answerer>();
    static const bool ends = [] {
        qAddPostRoutine([] {
            answerer.reset();
            bus.reset();
        });
        return true;
    }();
    static_cast<void>(ends);
    return *answerer;
}

} // namespace

// Whatever services on the buses answer and announce, the program goes on, and a file that
// the portal names is a local one. The input is first what calls are answered with, in
// their order, and then the signals.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Answerer& answerer = theAnswerer();
    Bytes input(data, size);
    answerer.input = &input;
    answerer.asked.clear();
    {
        SessionGate gate;
        const Logind logind(gate);
        const auto session = sessionLink();
        const ScreenSavers savers(gate, session);
        const NotifierHost host(session);
        const PortalWishes wishes(session);
        PortalFileChooser chooser(session);
        Overview overview(session);
        QWidget window;
        overview.makeWayFor(window);
        QEvent shown(QEvent::Show);
        QCoreApplication::sendEvent(&window, &shown);
        session->open();
        require(becomesTrue([&] { return session->bus().isConnected(); }));
        int answers = 0;
        const FileRequest* request = chooser.ask(window, {u"Add"_s, u"Images"_s, {u"image/png"_s}});
        QObject::connect(request, &FileRequest::answered, [&answers](const FileAnswer& answer) {
            checkAnswer(answer);
            require(++answers == 1);
        });
        require(becomesTrue([&answerer] {
            return answerer.asked.contains({u"GetSessionByPID"_s, u"ReadAll"_s, u"OpenFile"_s});
        }));
        const auto settle = [&] {
            answerer.fake.waitForBus();
            session->bus().call(QDBusMessage::createMethodCall(
                u"org.freedesktop.DBus"_s, u"/"_s, u"org.freedesktop.DBus"_s, u"GetId"_s));
            QCoreApplication::processEvents();
        };
        settle();
        while (!input.isEmpty()) {
            sendSignal(answerer);
        }
        settle();
        settle();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    return 0;
}
