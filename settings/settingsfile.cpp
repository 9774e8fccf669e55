// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/settingsfile.h"

#include "platform/system.h"
#include "settings/settingsstore.h"
#include "settings/settingsworker.h"

#include <QCoreApplication>
#include <QThread>

#include <future>
#include <memory>
#include <tuple>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto startLimit = 1000ms;
constexpr auto endLimit = 500ms;

// Queues a call on the worker's thread and returns a future of its result.
template <typename Call>
auto ask(SettingsWorker* worker, Call call) {
    const auto task =
        std::make_shared<std::packaged_task<std::invoke_result_t<Call>()>>(std::move(call));
    QMetaObject::invokeMethod(
        worker, [task] { (*task)(); }, Qt::QueuedConnection);
    return task->get_future();
}

} // namespace

QString defaultSettingsPath() {
    return settingsFolder() + "/settings.json"_L1;
}

SettingsFile::SettingsFile(SettingsStore& store, const QString& path, QObject* parent)
    : QObject(parent)
    , store_(store)
    , thread_(new QThread)
    , worker_(new SettingsWorker(path)) {
    thread_->setObjectName(u"settings"_s);
    worker_->moveToThread(thread_);
    connect(thread_, &QThread::finished, worker_, &QObject::deleteLater);
    connect(worker_, &SettingsWorker::found, this, &SettingsFile::adopt);
    connect(&store_, &SettingsStore::written, this, &SettingsFile::forwardChange);
    if (QCoreApplication* app = QCoreApplication::instance()) {
        connect(app, &QCoreApplication::aboutToQuit, this, [this] { std::ignore = flush(); });
    }
    thread_->start();

    auto first = ask(worker_, [worker = worker_] { return worker->start(); });
    ask(worker_, [worker = worker_] { worker->watchFile(); });
    // If the disk does not answer in time, the values arrive later as a change.
    if (first.wait_for(startLimit) == std::future_status::ready) {
        adopt(first.get());
    }
}

SettingsFile::~SettingsFile() {
    store_.disconnect(this);
    if (flushed_ != lastChange_) {
        std::ignore = flush();
    }
    worker_->disconnect(this);
    thread_->quit();
    if (thread_->wait(QDeadlineTimer(endLimit))) {
        delete thread_;
    }
}

bool SettingsFile::flush(std::chrono::milliseconds limit) {
    flushed_ = lastChange_;
    if (worker_->written() == lastChange_) {
        return true;
    }
    const QDeadlineTimer deadline(limit);
    worker_->hurry();
    auto flushed = ask(worker_, [worker = worker_, deadline] { return worker->flush(deadline); });
    return flushed.wait_for(limit + 100ms) == std::future_status::ready && flushed.get();
}

void SettingsFile::forwardChange(const QString& key) {
    const quint64 number = ++lastChange_;
    pending_.insert(key, number);
    ask(worker_, [worker = worker_, number, key, value = store_.stored().value(key)] {
        worker->change(number, key, value);
    });
}

void SettingsFile::adopt(const SettingsSnapshot& snapshot) {
    QJsonObject values = snapshot.values;
    pending_.removeIf([&snapshot](const auto& own) { return own.value() <= snapshot.upTo; });
    for (auto own = pending_.begin(); own != pending_.end(); ++own) {
        const QJsonValue value = store_.stored().value(own.key());
        if (value.isUndefined()) {
            values.remove(own.key());
        } else {
            values.insert(own.key(), value);
        }
    }
    store_.replaceStored(values);
    store_.setKeptFileName(snapshot.keptFileName);
}

} // namespace morrowleaf
