// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/overview.h"

#include "bus_interface.h"
#include "platform/launch.h"

#include <QDBusVariant>
#include <QEvent>
#include <QWidget>

#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

using Properties = OrgFreedesktopDBusPropertiesInterface;

const QString name = u"org.gnome.Shell"_s; // of the service and of its interface
const QString path = u"/org/gnome/Shell"_s;
const QString overviewActive = u"OverviewActive"_s;

// At login the shell opens its overview later than this program starts. After this time it
// is the user who opens it.
constexpr qint64 openedByShell = 5'000; // milliseconds

} // namespace

Overview::Overview(std::shared_ptr<const BusLink> session)
    : session_(std::move(session))
    , shell_(name)
    , isLeft_(!activationToken().isEmpty()) {
    connect(session_.get(), &BusLink::up, this, &Overview::subscribe);
    connect(&shell_, &BusService::appeared, this, &Overview::read);
    connect(&shell_, &BusService::vanished, this, &Overview::forgetState);
}

void Overview::makeWayFor(QWidget& window) {
    window.installEventFilter(this);
    connect(&window, &QObject::destroyed, this, &Overview::forget);
}

bool Overview::eventFilter(QObject* window, QEvent* event) {
    if (event->type() == QEvent::Show && !windows_.contains(window)) {
        windows_.insert(window);
        sinceShown_.start();
        closeIfOpen();
    }
    return false;
}

void Overview::leave() {
    if (isOpen_.value_or(true)) {
        isLeft_ = true;
        isToReopen_ = false;
    }
}

void Overview::subscribe() {
    forgetState();
    subscription_ = std::make_unique<QObject>();
    auto* properties = new BusSignals<Properties>(path, session_->bus(), subscription_.get());
    connect(properties, &Properties::PropertiesChanged, this,
            [this, properties](const QString& interface, const QVariantMap& changed) {
                const QVariant value = changed.value(overviewActive);
                if (interface == name && value.isValid() && shell_.sent(*properties)) {
                    setKnown(value.toBool());
                }
            });
    shell_.follow(session_->bus());
}

void Overview::read() {
    Properties properties(shell_.owner(), path, session_->bus());
    whenFinished(this, properties.Get(name, overviewActive),
                 [this](const QDBusPendingReply<QDBusVariant>& reply) {
                     if (reply.isValid()) {
                         setKnown(reply.value().variant().toBool());
                     }
                 });
}

void Overview::setKnown(bool isOpen) {
    isOpen_ = isOpen;
    isLeft_ = isLeft_ && isOpen;
    closeIfOpen();
}

void Overview::closeIfOpen() {
    if (!isOpen_.value_or(false) || windows_.isEmpty()) {
        return;
    }
    if (sinceShown_.elapsed() > openedByShell) {
        isToReopen_ = false; // the user has opened it, and closes it
        return;
    }
    isOpen_ = false;
    isToReopen_ = !isLeft_;
    set(false);
}

void Overview::forgetState() {
    isOpen_.reset();
    isToReopen_ = false;
}

void Overview::forget(const QObject* window) {
    windows_.remove(window);
    if (windows_.isEmpty() && std::exchange(isToReopen_, false)) {
        set(true);
    }
}

void Overview::set(bool isOpen) {
    if (!shell_.owner().isEmpty()) {
        Properties(shell_.owner(), path, session_->bus())
            .Set(name, overviewActive, QDBusVariant(isOpen));
    }
}

} // namespace morrowleaf
