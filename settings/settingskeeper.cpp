// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/settingskeeper.h"

#include "platform/filelock.h"
#include "settings/settingswatch.h"

#include <QMutexLocker>

#include <algorithm>
#include <thread>

namespace morrowleaf {

using namespace std::chrono_literals;

namespace {

// Files above this size are rejected.
constexpr qint64 sizeLimit = qint64(16) * 1024 * 1024; // bytes
// A slider dragged for a second makes a dozen writes, not sixty.
constexpr auto burst = 70ms;
// Some editors take the old file away before they put the new one there.
constexpr auto patienceWithMissing = 100ms;
// Others write in place, and for a moment there is half a file.
constexpr auto patienceWithBroken = 500ms;
constexpr auto lockPatience = 5000ms;
constexpr auto firstRetry = 1000ms;
constexpr auto lastRetry = 300'000ms;
constexpr int attempts = 5;

void runOnce(QTimer& timer, std::chrono::milliseconds after) {
    timer.setTimerType(Qt::PreciseTimer);
    timer.setSingleShot(true);
    timer.start(after);
}

} // namespace

void SettingsMailbox::put(const SettingsSnapshot& snapshot) {
    const QMutexLocker locker(&mutex_);
    latest_ = snapshot;
}

std::optional<SettingsSnapshot> SettingsMailbox::take() {
    const QMutexLocker locker(&mutex_);
    return std::exchange(latest_, std::nullopt);
}

void SettingsMailbox::setKept(quint64 upTo) {
    const QMutexLocker locker(&mutex_);
    kept_ = upTo;
}

quint64 SettingsMailbox::kept() const {
    const QMutexLocker locker(&mutex_);
    return kept_;
}

SettingsKeeper::SettingsKeeper(QString path, std::shared_ptr<SettingsMailbox> mailbox)
    : path_(std::move(path))
    , mailbox_(std::move(mailbox))
    , writing_(this)
    , settling_(this)
    , retrying_(this)
    , retryAfter_(firstRetry) {
    connect(&writing_, &QTimer::timeout, this, [this] { write(lockPatience); });
    connect(&retrying_, &QTimer::timeout, this, [this] { write(lockPatience); });
    connect(&settling_, &QTimer::timeout, this, &SettingsKeeper::look);
}

SettingsKeeper::~SettingsKeeper() = default;

void SettingsKeeper::start() {
    judge(readWholeFile(path_, sizeLimit));
    tell();
}

void SettingsKeeper::follow() {
    watch_ = std::make_unique<SettingsWatch>(path_);
    connect(watch_.get(), &SettingsWatch::touched, this, &SettingsKeeper::look);
    look();
}

void SettingsKeeper::look() {
    if (watch_) {
        watch_->arm();
    }
    if (!judge(readWholeFile(path_, sizeLimit))) {
        return;
    }
    tell();
    // While a retry is due nothing is hurried: failing leaves its own traces
    // in the folder, and they bring us here.
    if (outstanding_.isEmpty() || retrying_.isActive()) {
        return;
    }
    if (blocked_) {
        failed();
    } else {
        writeSoon();
    }
}

bool SettingsKeeper::judge(const WholeFile& read) {
    std::optional<SettingsDocument> document;
    switch (read.kind) {
    case WholeFile::Kind::Unreadable:
        // Nobody can tell what it holds: go on with what was known.
        believe(known_);
        return true;
    case WholeFile::Kind::Missing:
        if (!known_.values().isEmpty() && doubt(patienceWithMissing)) {
            return false;
        }
        document.emplace();
        break;
    case WholeFile::Kind::Bytes:
        document = SettingsDocument::parse(read.bytes);
        break;
    case WholeFile::Kind::Unusable:
        break;
    }
    if (document) {
        believe(*document);
    } else if (doubt(patienceWithBroken)) {
        return false;
    } else {
        setAside();
    }
    return true;
}

// True while the patience lasts, so at least at the first call.
bool SettingsKeeper::doubt(std::chrono::milliseconds patience) {
    if (!doubt_ || doubt_->patience != patience) {
        doubt_ = Doubt{patience, QDeadlineTimer(patience, Qt::PreciseTimer)};
    }
    if (doubt_->until.hasExpired()) {
        return false;
    }
    runOnce(settling_, std::chrono::milliseconds(doubt_->until.remainingTime() + 1));
    return true;
}

// Under the lock, and only what is still broken there: another process may
// have come first and written a good file since. Never reached from write(),
// which holds the lock itself and leaves at the first doubt.
void SettingsKeeper::setAside() {
    const FileLock lock(path_, lockPatience);
    const WholeFile now = readWholeFile(path_, sizeLimit);
    const bool text = now.kind == WholeFile::Kind::Bytes;
    if (const auto mended = text ? SettingsDocument::parse(now.bytes) : std::nullopt) {
        believe(*mended);
        return;
    }
    const bool missing = now.kind == WholeFile::Kind::Missing;
    believe(SettingsDocument());
    blocked_ = !missing && !setFileAside(path_);
}

void SettingsKeeper::believe(const SettingsDocument& document) {
    doubt_.reset();
    settling_.stop();
    blocked_ = false;
    known_ = document;
}

void SettingsKeeper::tell() {
    QJsonObject values = known_.values();
    for (auto it = outstanding_.begin(); it != outstanding_.end(); ++it) {
        if (it.value().isUndefined()) {
            values.remove(it.key());
        } else {
            values.insert(it.key(), it.value());
        }
    }
    if (told_ == values) {
        return;
    }
    told_ = values;
    mailbox_->put({values, lastChange_});
    emit found();
}

void SettingsKeeper::change(quint64 number, const QString& key, const QJsonValue& value) {
    lastChange_ = number;
    outstanding_.insert(key, value);
    if (told_) {
        if (value.isUndefined()) {
            told_->remove(key);
        } else {
            told_->insert(key, value);
        }
    }
    writeSoon();
}

void SettingsKeeper::writeSoon() {
    if (!writing_.isActive()) {
        runOnce(writing_, burst);
    }
}

bool SettingsKeeper::write(std::chrono::milliseconds patience) {
    writing_.stop();
    retrying_.stop();
    if (outstanding_.isEmpty() || doubt_) {
        return outstanding_.isEmpty(); // after the doubt look() comes back to it
    }
    makeFolderOf(path_);
    const FileLock lock(path_, patience);
    bool again = true;
    for (int attempt = 0; again && attempt < attempts; ++attempt) {
        again = false;
        if (mergeOnce(lock.held(), again)) {
            retryAfter_ = firstRetry;
            tell();
            return true;
        }
    }
    if (!doubt_) {
        tell();
        failed();
    }
    return false;
}

bool SettingsKeeper::mergeOnce(bool exclusive, bool& again) {
    const WholeFile read = readWholeFile(path_, sizeLimit);
    if (read.kind == WholeFile::Kind::Unreadable || !judge(read)) {
        return false;
    }
    SettingsDocument merged = known_;
    QMap<QString, QJsonValue> left;
    for (auto it = outstanding_.begin(); it != outstanding_.end(); ++it) {
        SettingsDocument with = merged;
        with.apply(it.key(), it.value());
        if (with.text().size() > sizeLimit) {
            left.insert(it.key(), it.value());
        } else {
            merged = with;
        }
    }
    if (merged.text() != known_.text()) {
        const Replaced replaced = replaceWholeFile(path_, merged.text(), read.mark, exclusive);
        again = replaced == Replaced::Overtaken;
        if (replaced != Replaced::Done) {
            return false;
        }
    }
    known_ = merged;
    outstanding_ = left;
    if (left.isEmpty()) {
        mailbox_->setKept(lastChange_);
    }
    return left.isEmpty();
}

void SettingsKeeper::failed() {
    runOnce(retrying_, retryAfter_);
    retryAfter_ = std::min(retryAfter_ * 2, std::chrono::milliseconds(lastRetry));
}

bool SettingsKeeper::flush(QDeadlineTimer deadline) {
    using std::chrono::milliseconds;
    if (outstanding_.isEmpty()) {
        return true;
    }
    // Two thirds for the lock, so that there is time to go on without it.
    while (!write(milliseconds(deadline.remainingTime() * 2 / 3))) {
        if (!doubt_ || deadline.hasExpired()) {
            return false;
        }
        const qint64 rest = std::min(doubt_->until.remainingTime(), deadline.remainingTime());
        std::this_thread::sleep_for(milliseconds(rest + 1));
        look();
    }
    return true;
}

} // namespace morrowleaf
