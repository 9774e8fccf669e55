// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/portalfilechooser.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QGuiApplication>
#include <QTimer>
#include <QUrl>
#include <QUuid>
#include <QVariantMap>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace morrowleaf {

// The portal's filters: a name, and rules of which one has to hold.
struct FileRule {
    uint kind; // 1: a MIME type
    QString pattern;
};
struct FileFilter {
    QString name;
    QList<FileRule> rules;
};

QDBusArgument& operator<<(QDBusArgument& to, const FileRule& rule) {
    to.beginStructure();
    to << rule.kind << rule.pattern;
    to.endStructure();
    return to;
}
const QDBusArgument& operator>>(const QDBusArgument& from, FileRule& rule) {
    from.beginStructure();
    from >> rule.kind >> rule.pattern;
    from.endStructure();
    return from;
}
QDBusArgument& operator<<(QDBusArgument& to, const FileFilter& filter) {
    to.beginStructure();
    to << filter.name << filter.rules;
    to.endStructure();
    return to;
}
const QDBusArgument& operator>>(const QDBusArgument& from, FileFilter& filter) {
    from.beginStructure();
    from >> filter.name >> filter.rules;
    from.endStructure();
    return from;
}

namespace {

constexpr QLatin1StringView service{"org.freedesktop.portal.Desktop"};
constexpr QLatin1StringView objectPath{"/org/freedesktop/portal/desktop"};
constexpr QLatin1StringView chooserInterface{"org.freedesktop.portal.FileChooser"};
constexpr QLatin1StringView requestInterface{"org.freedesktop.portal.Request"};
constexpr int patience = 8000; // milliseconds for the portal to start and open its dialog
constexpr uint mimeRule = 1;

// How the portal is told which window the dialog belongs to; nothing for one
// that no window manager knows.
QString handleOf(const QWidget& window) {
    const bool managed = !window.windowFlags().testFlag(Qt::BypassWindowManagerHint);
    return managed && QGuiApplication::platformName() == QLatin1String("xcb") &&
                   window.windowHandle() != nullptr
               ? QStringLiteral("x11:%1").arg(window.windowHandle()->winId(), 0, 16)
               : QString();
}

// One question to the portal. It deletes itself once answered, and closes the
// dialog when its parent, the window, goes.
class PortalRequest : public FileRequest {
    Q_OBJECT

public:
    PortalRequest(const QDBusConnection& bus, QWidget& window);
    ~PortalRequest() override;

    void openFile(const QString& window, const QString& title, QVariantMap options);

private slots:
    void response(uint code, const QVariantMap& results);

private:
    void listenAt(const QString& path);
    void finish(const FileAnswer& answer);
    void closeDialog();

    QDBusConnection bus_;
    QString token_;
    QString path_;
    bool finished_ = false;
};

PortalRequest::PortalRequest(const QDBusConnection& bus, QWidget& window)
    : FileRequest(&window)
    , bus_(bus)
    , token_(QStringLiteral("morrowleaf") + QUuid::createUuid().toString(QUuid::Id128)) {
    auto* watcher =
        new QDBusServiceWatcher(service, bus_, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { finish({.kind = FileAnswer::Kind::Cancelled, .path = {}}); });
}

PortalRequest::~PortalRequest() {
    if (!finished_) {
        closeDialog();
    }
}

void PortalRequest::openFile(const QString& window, const QString& title, QVariantMap options) {
    options.insert(QStringLiteral("handle_token"), token_);
    // The answer may be faster than the call's own return.
    const QString sender = bus_.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
    listenAt(objectPath + QStringLiteral("/request/%1/%2").arg(sender, token_));
    QDBusMessage call = QDBusMessage::createMethodCall(service, objectPath, chooserInterface,
                                                       QStringLiteral("OpenFile"));
    call << window << title << options;
    auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call, patience), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        if (reply.isError()) {
            closeDialog();
            finish({});
        } else if (reply.value().path() != path_) {
            listenAt(reply.value().path());
        }
    });
}

void PortalRequest::listenAt(const QString& path) {
    path_ = path;
    bus_.connect(service, path_, requestInterface, QStringLiteral("Response"), this,
                 SLOT(response(uint, QVariantMap)));
}

void PortalRequest::response(uint code, const QVariantMap& results) {
    const QStringList addresses = results.value(QStringLiteral("uris")).toStringList();
    const QString path = code == 0 && !addresses.isEmpty()
                             ? QUrl(addresses.first(), QUrl::StrictMode).toLocalFile()
                             : QString();
    finish({.kind = path.isEmpty() ? FileAnswer::Kind::Cancelled : FileAnswer::Kind::Chosen,
            .path = path});
}

void PortalRequest::finish(const FileAnswer& answer) {
    if (!std::exchange(finished_, true)) {
        deleteLater();
        emit answered(answer);
    }
}

void PortalRequest::closeDialog() {
    bus_.asyncCall(
        QDBusMessage::createMethodCall(service, path_, requestInterface, QStringLiteral("Close")));
}

} // namespace

PortalFileChooser::PortalFileChooser(QDBusConnection bus)
    : bus_(std::move(bus)) {
    qDBusRegisterMetaType<FileRule>();
    qDBusRegisterMetaType<QList<FileRule>>();
    qDBusRegisterMetaType<FileFilter>();
    qDBusRegisterMetaType<QList<FileFilter>>();
}

FileRequest* PortalFileChooser::ask(QWidget& window, const FileQuestion& question) {
    auto* request = new PortalRequest(bus_, window);
    FileFilter filter{.name = question.kindName, .rules = {}};
    for (const QString& type : question.mimeTypes) {
        filter.rules.append({.kind = mimeRule, .pattern = type});
    }
    request->openFile(
        handleOf(window), question.title,
        {
            {QStringLiteral("multiple"), false},
            {QStringLiteral("modal"), true},
            {QStringLiteral("filters"), QVariant::fromValue(QList<FileFilter>{filter})},
        });
    return request;
}

} // namespace morrowleaf

#include "portalfilechooser.moc"
