// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/portalfilechooser.h"

#include "platform/linux/dbus/portalrequest.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QGuiApplication>
#include <QTimer>
#include <QVariantMap>
#include <QWidget>
#include <QWindow>

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

} // namespace

PortalFileChooser::PortalFileChooser(QDBusConnection bus)
    : bus_(std::move(bus)) {
    qDBusRegisterMetaType<FileRule>();
    qDBusRegisterMetaType<QList<FileRule>>();
    qDBusRegisterMetaType<FileFilter>();
    qDBusRegisterMetaType<QList<FileFilter>>();
}

void PortalFileChooser::ask(QWidget& window, const FileQuestion& question,
                            std::function<void(const FileAnswer&)> done) {
    if (!bus_.isConnected()) {
        QTimer::singleShot(0, &window, [done = std::move(done)] { done({}); });
        return;
    }
    FileFilter filter{.name = question.kindName, .rules = {}};
    for (const QString& type : question.mimeTypes) {
        filter.rules.append({.kind = mimeRule, .pattern = type});
    }
    const QVariantMap options{
        {QStringLiteral("multiple"), false},
        {QStringLiteral("modal"), true},
        {QStringLiteral("filters"), QVariant::fromValue(QList<FileFilter>{filter})},
    };
    auto* request = new PortalRequest(bus_, &window, std::move(done));
    request->openFile(handleOf(window), question.title, options);
}

} // namespace morrowleaf
