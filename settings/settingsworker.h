// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/files.h"
#include "settings/settingsdocument.h"

#include <QDeadlineTimer>
#include <QJsonObject>
#include <QJsonValue>
#include <QMap>
#include <QObject>
#include <QString>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <memory>
#include <optional>

class QLockFile;

namespace morrowleaf {

class SettingsWatch;

struct SettingsSnapshot {
    QJsonObject values;   // what the file contains, overlaid with the owner's changes
    quint64 upTo = 0;     // the number of the last of the owner's changes that they contain
    QString keptFileName; // of a file that could not be read; empty if there is none

    bool operator==(const SettingsSnapshot&) const = default;
};

// The path of the lock file, a QLockFile, beside a settings file.
QString lockPathOf(const QString& path);

// Works on one settings file for its owner, a SettingsFile: reads the file, merges the
// owner's changes into it and reports what others change. Lives on a thread of its own;
// every call may block as long as the disk does.
class SettingsWorker : public QObject {
    Q_OBJECT

public:
    explicit SettingsWorker(QString path);
    ~SettingsWorker() override;

    // Reads the file for the first time.
    SettingsSnapshot start();
    // Begins to watch the file for changes by others. Call it after start().
    void watchFile();

    // Takes the owner's change with this number; undefined removes the key.
    void change(quint64 number, const QString& key, const QJsonValue& value);

    // Writes the outstanding changes. Returns whether all of them are in the file.
    [[nodiscard]] bool flush(QDeadlineTimer deadline);
    // Shortens a wait for the lock that is in progress. Call it before flush(), which can
    // only begin after that wait. Any thread.
    void hurry() { hurry_ = true; }

    // The number of the last of the owner's changes that is in the file. Any thread.
    quint64 written() const { return written_; }

signals:
    void found(const morrowleaf::SettingsSnapshot& snapshot);

private:
    enum class State {
        Good,
        Unsettled, // missing or broken, but possibly only while somebody writes it
        Broken,
        Closed, // unreadable
    };
    struct Finding {
        State state;
        FileMark mark;
    };
    struct GracePeriod {
        std::chrono::milliseconds length;
        QDeadlineTimer until;
    };
    enum class Merged { Done, Again, Later, Failed };

    void checkFile();
    Finding readFile();
    bool mayStillSettle(std::chrono::milliseconds length);
    SettingsSnapshot snapshot() const;
    void reportSnapshot();

    void writeSoon();
    void acquire(QLockFile& lock, std::chrono::milliseconds patience) const;
    bool write(std::chrono::milliseconds lockPatience);
    Merged merge();
    void takeOwnership();

    QString path_;
    std::unique_ptr<SettingsWatch> watch_;

    SettingsDocument known_;                   // what the file contained when it was last good
    std::optional<SettingsSnapshot> reported_; // the last snapshot that the owner is known to have
    QMap<QString, QJsonValue> outstanding_;    // the owner's changes not yet in the file
    quint64 lastChange_ = 0;
    std::atomic<quint64> written_ = 0;
    std::atomic<bool> hurry_ = false; // a flush has been requested
    QString keptFileName_;
    bool begun_ = false; // the values of the file, or its absence, are in effect

    std::optional<GracePeriod> grace_; // set while the file is missing or broken
    QTimer settling_;
    QTimer writing_;
    QTimer retrying_;
    std::chrono::milliseconds retryAfter_;
};

} // namespace morrowleaf
