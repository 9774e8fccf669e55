// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/settingsfile.h"

#include "settings/settingskeeper.h"
#include "settings/settingsstore.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <QStandardPaths>
#include <QThread>

#include <atomic>

namespace morrowleaf {

using namespace std::chrono_literals;

namespace {

constexpr auto startLimit = 1000ms;
constexpr auto endLimit = 500ms;

struct Ticket {
    QSemaphore done;
    std::atomic<bool> kept = false;

    bool wait(std::chrono::milliseconds limit) {
        return done.tryAcquire(1, static_cast<int>(limit.count()));
    }
};

} // namespace

QString defaultSettingsPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/morrowleaf/settings.json");
}

SettingsFile::SettingsFile(SettingsStore& store, const QString& path, QObject* parent)
    : QObject(parent)
    , store_(store)
    , mailbox_(std::make_shared<SettingsMailbox>())
    , thread_(new QThread)
    , keeper_(new SettingsKeeper(path, mailbox_)) {
    thread_->setObjectName(QStringLiteral("settings"));
    keeper_->moveToThread(thread_);
    connect(thread_, &QThread::finished, keeper_, &QObject::deleteLater);
    connect(keeper_, &SettingsKeeper::found, this, &SettingsFile::adopt);
    connect(&store_, &SettingsStore::written, this, &SettingsFile::pass);
    if (QCoreApplication* app = QCoreApplication::instance()) {
        connect(app, &QCoreApplication::aboutToQuit, this, [this] { flush(); });
    }
    thread_->start();

    const auto ready = std::make_shared<Ticket>();
    QMetaObject::invokeMethod(
        keeper_,
        [keeper = keeper_, ready] {
            keeper->start();
            ready->done.release();
            keeper->follow();
        },
        Qt::QueuedConnection);
    // A disk that does not answer gives its values later, as a change.
    ready->wait(startLimit);
    adopt();
}

SettingsFile::~SettingsFile() {
    store_.disconnect(this);
    flush(hangs_ ? endLimit : std::chrono::milliseconds(3s));
    keeper_->disconnect(this);
    thread_->quit();
    if (thread_->wait(QDeadlineTimer(endLimit))) {
        delete thread_;
    }
}

bool SettingsFile::flush(std::chrono::milliseconds limit) {
    if (mailbox_->kept() == lastChange_) {
        return true;
    }
    const auto ticket = std::make_shared<Ticket>();
    const QDeadlineTimer deadline(limit);
    QMetaObject::invokeMethod(
        keeper_,
        [keeper = keeper_, ticket, deadline] {
            ticket->kept = keeper->flush(deadline);
            ticket->done.release();
        },
        Qt::QueuedConnection);
    hangs_ = !ticket->wait(limit + 100ms);
    return !hangs_ && ticket->kept;
}

void SettingsFile::pass(const QString& key) {
    const quint64 number = ++lastChange_;
    underway_.insert(key, number);
    QMetaObject::invokeMethod(
        keeper_,
        [keeper = keeper_, number, key, value = store_.stored().value(key)] {
            keeper->change(number, key, value);
        },
        Qt::QueuedConnection);
}

void SettingsFile::adopt() {
    const std::optional<SettingsSnapshot> snapshot = mailbox_->take();
    if (!snapshot) {
        return;
    }
    QJsonObject values = snapshot->values;
    underway_.removeIf([&snapshot](const auto& own) { return own.value() <= snapshot->upTo; });
    for (auto own = underway_.begin(); own != underway_.end(); ++own) {
        const QJsonValue value = store_.stored().value(own.key());
        if (value.isUndefined()) {
            values.remove(own.key());
        } else {
            values.insert(own.key(), value);
        }
    }
    store_.replaceStored(values);
}

} // namespace morrowleaf
