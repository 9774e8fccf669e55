// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/settingsworker.h"

#include "settings/settingswatch.h"

#include <QFileInfo>
#include <QLockFile>

#include <algorithm>
#include <thread>
#include <tuple>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using std::chrono::milliseconds;

namespace {

// Files above this size are rejected.
constexpr qint64 sizeLimit = qint64(16) * 1024 * 1024; // bytes
// A slider dragged for a second makes a dozen writes, not sixty.
constexpr auto burst = 70ms;
// Some editors remove the old file before they create the new one.
constexpr auto patienceWithMissing = 100ms;
// Others write in place, so the file is incomplete for a moment.
constexpr auto patienceWithBroken = 500ms;
constexpr milliseconds lockPatience = 5000ms;
constexpr milliseconds lockPatienceAtEnd = 400ms;
// An empty lock file counts as stale after this time.
constexpr auto lockIsStale = 3000ms;
constexpr milliseconds firstRetry = 1000ms;
constexpr milliseconds lastRetry = 300'000ms;
constexpr int attempts = 5;

void runOnce(QTimer& timer, milliseconds after) {
    timer.setTimerType(Qt::PreciseTimer);
    timer.setSingleShot(true);
    timer.start(after);
}

} // namespace

QString lockPathOf(const QString& path) {
    const QFileInfo info(path);
    return info.path() + "/."_L1 + info.fileName() + ".lock"_L1;
}

SettingsWorker::SettingsWorker(QString path)
    : path_(std::move(path))
    , settling_(this)
    , writing_(this)
    , retrying_(this)
    , retryAfter_(firstRetry) {
    connect(&settling_, &QTimer::timeout, this, &SettingsWorker::checkFile);
    connect(&writing_, &QTimer::timeout, this, [this] { write(lockPatience); });
    connect(&retrying_, &QTimer::timeout, this, [this] { write(lockPatience); });
}

SettingsWorker::~SettingsWorker() = default;

SettingsSnapshot SettingsWorker::start() {
    readFile();
    reportSnapshot();
    return snapshot();
}

void SettingsWorker::watchFile() {
    watch_ = std::make_unique<SettingsWatch>(path_);
    connect(watch_.get(), &SettingsWatch::mayHaveChanged, this, &SettingsWorker::checkFile);
    checkFile();
}

void SettingsWorker::checkFile() {
    if (watch_) {
        watch_->arm();
    }
    const State state = readFile().state;
    if (state == State::Unsettled) {
        return;
    }
    if (state == State::Broken) {
        if (!begun_) {
            write(lockPatience); // sets it aside, since its values were never in effect
        } else {
            keptFileName_ = QFileInfo(path_).fileName();
        }
    }
    begun_ = true;
    reportSnapshot();
    // Failed writing leaves traces in the folder, which lead here. Waiting for a due retry
    // keeps them from causing another attempt at once.
    if (!outstanding_.isEmpty() && !retrying_.isActive()) {
        writeSoon();
    }
}

// Adopts the content of the file if it is good.
SettingsWorker::Finding SettingsWorker::readFile() {
    const WholeFile file = readWholeFile(path_, sizeLimit);
    std::optional<SettingsDocument> document;
    if (file.kind == WholeFile::Kind::Bytes) {
        document = SettingsDocument::parse(file.bytes);
    } else if (file.kind == WholeFile::Kind::Missing) {
        if (!known_.values().isEmpty() && mayStillSettle(patienceWithMissing)) {
            return {State::Unsettled, file.mark};
        }
        document.emplace();
    }
    if (!document && file.kind != WholeFile::Kind::Unreadable) {
        return {mayStillSettle(patienceWithBroken) ? State::Unsettled : State::Broken, file.mark};
    }
    grace_.reset();
    settling_.stop();
    if (!document) {
        return {State::Closed, file.mark};
    }
    known_ = *document;
    begun_ = true;
    if (keptFileName_ == QFileInfo(path_).fileName()) {
        keptFileName_.clear();
    }
    return {State::Good, file.mark};
}

// True until the patience ends, so always at the first call.
bool SettingsWorker::mayStillSettle(milliseconds length) {
    if (!grace_ || grace_->length != length) {
        grace_ = GracePeriod{length, QDeadlineTimer(length, Qt::PreciseTimer)};
    }
    if (grace_->until.hasExpired()) {
        return false;
    }
    runOnce(settling_, milliseconds(grace_->until.remainingTime() + 1));
    return true;
}

SettingsSnapshot SettingsWorker::snapshot() const {
    QJsonObject values = known_.values();
    for (auto it = outstanding_.begin(); it != outstanding_.end(); ++it) {
        if (it.value().isUndefined()) {
            values.remove(it.key());
        } else {
            values.insert(it.key(), it.value());
        }
    }
    return {values, lastChange_, keptFileName_};
}

void SettingsWorker::reportSnapshot() {
    const SettingsSnapshot now = snapshot();
    if (reported_ != now) {
        reported_ = now;
        emit found(now);
    }
}

void SettingsWorker::change(quint64 number, const QString& key, const QJsonValue& value) {
    const bool upToDate = reported_ == snapshot();
    lastChange_ = number;
    outstanding_.insert(key, value);
    if (upToDate) {
        reported_ = snapshot(); // the owner has it already
    }
    writeSoon();
}

void SettingsWorker::writeSoon() {
    if (!writing_.isActive()) {
        runOnce(writing_, burst);
    }
}

// Tries to take the lock until the deadline. The caller goes on without it if that fails:
// the holder may be stopped, or the folder may not support locks.
void SettingsWorker::acquire(QLockFile& lock, milliseconds patience) const {
    lock.setStaleLockTime(int(lockIsStale.count()));
    QDeadlineTimer deadline(patience);
    while (!lock.tryLock(0) && lock.error() == QLockFile::LockFailedError &&
           !deadline.hasExpired()) {
        if (hurry_ && deadline.remainingTime() > lockPatienceAtEnd.count()) {
            deadline.setRemainingTime(lockPatienceAtEnd);
        }
        std::this_thread::sleep_for(3ms);
    }
}

bool SettingsWorker::write(milliseconds patience) {
    writing_.stop();
    retrying_.stop();
    if (!outstanding_.isEmpty()) {
        std::ignore = makeFolderOf(path_);
    }
    QLockFile lock(lockPathOf(path_));
    acquire(lock, patience);
    Merged merged = Merged::Again;
    for (int attempt = 0; merged == Merged::Again && attempt < attempts; ++attempt) {
        merged = merge();
    }
    if (merged == Merged::Later) {
        return false; // checkFile() retries when the file has settled
    }
    reportSnapshot();
    if (merged == Merged::Done) {
        retryAfter_ = firstRetry;
    } else if (!outstanding_.isEmpty()) {
        runOnce(retrying_, retryAfter_);
        retryAfter_ = std::min(retryAfter_ * 2, lastRetry);
    }
    return merged == Merged::Done;
}

// One attempt. Reads the file again first, because another process may have written it.
SettingsWorker::Merged SettingsWorker::merge() {
    Finding file = readFile();
    if (file.state == State::Unsettled) {
        return Merged::Later;
    }
    if (file.state == State::Closed) {
        return Merged::Failed;
    }
    if (file.state == State::Broken) {
        const QString aside = setFileAside(path_);
        keptFileName_ = QFileInfo(aside.isEmpty() ? path_ : aside).fileName();
        if (aside.isEmpty()) {
            return Merged::Failed;
        }
        grace_.reset();
        file.mark = {};
    }
    const bool gone = file.state == State::Broken;
    SettingsDocument merged = known_;
    QMap<QString, QJsonValue> tooLarge;
    for (auto it = outstanding_.begin(); it != outstanding_.end(); ++it) {
        SettingsDocument with = merged;
        with.set(it.key(), it.value());
        if (with.text().size() > sizeLimit) {
            tooLarge.insert(it.key(), it.value());
        } else {
            merged = with;
        }
    }
    if (merged != (gone ? SettingsDocument() : known_)) {
        const Replaced replaced = replaceWholeFile(path_, merged.text(), file.mark);
        if (gone && replaced != Replaced::Done) {
            takeOwnership();
        }
        if (replaced != Replaced::Done) {
            return replaced == Replaced::Overtaken ? Merged::Again : Merged::Failed;
        }
    }
    known_ = merged;
    outstanding_ = tooLarge;
    if (!outstanding_.isEmpty()) {
        return Merged::Failed;
    }
    written_ = lastChange_;
    return Merged::Done;
}

// The file with the values in effect is gone. Makes them changes of the owner, so that
// they stay in effect and are written.
void SettingsWorker::takeOwnership() {
    const QJsonObject values = known_.values();
    for (auto it = values.begin(); it != values.end(); ++it) {
        if (!outstanding_.contains(it.key())) {
            outstanding_.insert(it.key(), it.value());
        }
    }
}

bool SettingsWorker::flush(QDeadlineTimer deadline) {
    hurry_ = false;
    while (!outstanding_.isEmpty() &&
           !write(std::min(lockPatienceAtEnd, milliseconds(deadline.remainingTime() * 2 / 3)))) {
        if (!grace_ || grace_->until.hasExpired() || deadline.hasExpired()) {
            return false;
        }
        const qint64 rest = std::min(grace_->until.remainingTime(), deadline.remainingTime());
        std::this_thread::sleep_for(milliseconds(rest + 1));
    }
    return true;
}

} // namespace morrowleaf
