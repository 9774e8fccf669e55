// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/portals.h"

#include "platform/linux/dbus/busservice.h"
#include "portal_interface.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <QUuid>
#include <QVariantMap>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

// The portal's filters: a name, and rules of which at least one must match.
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

using Chooser = OrgFreedesktopPortalFileChooserInterface;
using Request = OrgFreedesktopPortalRequestInterface;

const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
constexpr int patience = 8000;      // milliseconds for the portal to start and open its dialog
constexpr int exposePatience = 800; // milliseconds for the owner of the dialog to be drawn
constexpr uint mimeRule = 1;

// The window that the dialog belongs to; null if no window manager knows it or the portal
// has no name for it.
QWindow* ownerOfDialog(const QWidget& window) {
    QWindow* owner = window.windowHandle();
    if (owner != nullptr && owner->transientParent() != nullptr) {
        owner = owner->transientParent();
    }
    const bool isManaged =
        owner != nullptr && !owner->flags().testFlag(Qt::BypassWindowManagerHint);
    return isManaged && QGuiApplication::platformName() == "xcb"_L1 ? owner : nullptr;
}

// Of what QUrl takes for a path: an address may be relative, or have a host.
bool isLocal(const QString& path) {
    return path.startsWith(u'/') && !path.startsWith("//"_L1) && !path.contains(QChar(0));
}

// One question to the portal. It deletes itself once answered, and closes the
// dialog when its parent, the window, goes.
class PortalRequest : public FileRequest {
public:
    PortalRequest(const QDBusConnection& bus, QWidget& window, const QString& title,
                  const QVariantMap& options)
        : FileRequest(&window)
        , bus_(bus)
        , portal_(u"org.freedesktop.portal.Desktop"_s)
        , token_(u"morrowleaf"_s + QUuid::createUuid().toString(QUuid::Id128))
        , owner_(ownerOfDialog(window))
        , title_(title)
        , options_(options) {
        options_.insert(u"handle_token"_s, token_);
        connect(&portal_, &BusService::appeared, this, &PortalRequest::openFileOverOwner);
        connect(&portal_, &BusService::vanished, this,
                [this] { finish({.kind = FileAnswer::Kind::Cancelled, .path = {}}); });
        connect(&portal_, &BusService::activationFailed, this, &PortalRequest::giveUp);
        connect(&timeout_, &QTimer::timeout, this, &PortalRequest::giveUp);
        connect(&exposure_, &QTimer::timeout, this, &PortalRequest::openFile);
        exposure_.setSingleShot(true);
        timeout_.setSingleShot(true);
        timeout_.start(bus_.isConnected() ? patience : 0);
        if (bus_.isConnected()) {
            portal_.follow(bus_);
            portal_.activate();
        }
    }
    ~PortalRequest() override {
        if (!finished_) {
            closeDialog();
        }
    }

    bool eventFilter(QObject* owner, QEvent* event) override {
        if (event->type() == QEvent::Expose && exposure_.isActive()) {
            exposure_.start(0); // after the owner has handled it
        }
        return FileRequest::eventFilter(owner, event);
    }

private:
    // A dialog that is on the screen before its owner may be left without the keyboard.
    void openFileOverOwner() {
        if (owner_ && !owner_->isExposed()) {
            owner_->installEventFilter(this);
            exposure_.start(exposePatience);
        } else {
            openFile();
        }
    }

    void openFile() {
        if (finished_) {
            return; // another portal has taken the place of the one that was asked
        }
        // The path is agreed upon by the token: the answer may be faster than
        // the return of the call.
        const QString sender = bus_.baseService().mid(1).replace('.'_L1, '_'_L1);
        listenAt(portalPath + u"/request/%1/%2"_s.arg(sender, token_));
        const QString window = owner_ ? u"x11:%1"_s.arg(owner_->winId(), 0, 16) : QString();
        Chooser chooser(portal_.owner(), portalPath, bus_);
        whenFinished(this, chooser.OpenFile(window, title_, options_),
                     [this](const QDBusPendingReply<QDBusObjectPath>& reply) {
                         timeout_.stop();
                         if (reply.isError()) {
                             giveUp();
                         } else if (reply.value().path() != path_) {
                             listenAt(reply.value().path());
                         }
                     });
    }

    void listenAt(const QString& path) {
        path_ = path;
        auto* request = new BusSignals<Request>(path, bus_, this);
        connect(request, &Request::Response, this,
                [this, request](uint code, const QVariantMap& results) {
                    if (portal_.sent(*request)) {
                        finish(answerIn(code, results));
                    }
                });
    }

    static FileAnswer answerIn(uint code, const QVariantMap& results) {
        constexpr uint success = 0;
        const QStringList addresses = results.value(u"uris"_s).toStringList();
        const QString path = code == success && !addresses.isEmpty()
                                 ? QUrl(addresses.first(), QUrl::StrictMode).toLocalFile()
                                 : QString();
        if (!isLocal(path)) {
            return {.kind = FileAnswer::Kind::Cancelled, .path = {}};
        }
        return {.kind = FileAnswer::Kind::Chosen, .path = path};
    }

    void giveUp() {
        closeDialog();
        finish({.kind = FileAnswer::Kind::Unavailable, .path = {}});
    }

    void finish(const FileAnswer& answer) {
        if (!std::exchange(finished_, true)) {
            timeout_.stop();
            deleteLater();
            emit answered(answer);
        }
    }

    void closeDialog() {
        if (!portal_.owner().isEmpty()) {
            Request(portal_.owner(), path_, bus_).Close();
        }
    }

    QDBusConnection bus_;
    BusService portal_;
    QString token_;
    QPointer<QWindow> owner_; // null if the portal is told of none
    QString title_;
    QVariantMap options_;
    QString path_; // of the request's object, empty before the call
    QTimer exposure_;
    QTimer timeout_;
    bool finished_ = false;
};

} // namespace

PortalFileChooser::PortalFileChooser(std::shared_ptr<const BusLink> session)
    : session_(std::move(session)) {
    qDBusRegisterMetaType<FileRule>();
    qDBusRegisterMetaType<QList<FileRule>>();
    qDBusRegisterMetaType<FileFilter>();
    qDBusRegisterMetaType<QList<FileFilter>>();
}

FileRequest* PortalFileChooser::ask(QWidget& window, const FileQuestion& question) {
    FileFilter filter{.name = question.kindName, .rules = {}};
    for (const QString& type : question.mimeTypes) {
        filter.rules.append({.kind = mimeRule, .pattern = type});
    }
    const QVariantMap options{
        {u"multiple"_s, false},
        {u"modal"_s, true},
        {u"filters"_s, QVariant::fromValue(QList<FileFilter>{filter})},
    };
    return new PortalRequest(session_->bus(), window, question.title, options);
}

} // namespace morrowleaf
