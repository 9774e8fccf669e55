// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wholefile.h"
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

namespace morrowleaf {

class SettingsWatch;

struct SettingsSnapshot {
    QJsonObject values;   // what the file holds, with the owner's changes laid over it
    quint64 upTo = 0;     // the last of the owner's changes that is among them
    QString keptFileName; // of a file that could not be read; empty without one

    bool operator==(const SettingsSnapshot&) const = default;
};

// The lock file beside a settings file, in the form of QLockFile.
QString lockPathOf(const QString& path);

// Works on one settings file: reads it, merges the owner's changes into it and
// tells what others did to it. Lives on a thread of its own; every call may
// take as long as the disk does.
class SettingsWorker : public QObject {
    Q_OBJECT

public:
    explicit SettingsWorker(QString path);
    ~SettingsWorker() override;

    // Reads the file for the first time.
    SettingsSnapshot start();
    // Begins to follow what others do to the file. Call it after start().
    void follow();

    // The owner's `number`th change; undefined removes the key.
    void change(quint64 number, const QString& key, const QJsonValue& value);

    // Writes what is outstanding. True when all of it is in the file.
    [[nodiscard]] bool flush(QDeadlineTimer deadline);

    // The owner's changes up to this one are in the file. Call it on any thread.
    quint64 written() const { return written_; }

signals:
    void found(const morrowleaf::SettingsSnapshot& snapshot);

private:
    enum class State {
        Good,
        InTheMaking, // missing or broken, but perhaps only for a moment
        Broken,
        Closed, // may not be read
    };
    struct Finding {
        State state;
        FileMark mark;
    };
    struct Doubt {
        std::chrono::milliseconds patience;
        QDeadlineTimer until;
    };
    enum class Merged { Done, Again, Later, Failed };

    void look();
    Finding examine();
    bool mayBeInTheMaking(std::chrono::milliseconds patience);
    SettingsSnapshot snapshot() const;
    void tell();

    void writeSoon();
    bool write(std::chrono::milliseconds lockPatience);
    Merged merge();
    void takeOwnership();

    QString path_;
    std::unique_ptr<SettingsWatch> watch_;

    SettingsDocument known_;                // what the file held when it was last good
    std::optional<SettingsSnapshot> told_;  // what the owner has, as far as is known
    QMap<QString, QJsonValue> outstanding_; // the owner's changes not yet in the file
    quint64 lastChange_ = 0;
    std::atomic<quint64> written_ = 0;
    QString keptFileName_;
    bool begun_ = false; // values of the file, or their absence, are in effect

    std::optional<Doubt> doubt_; // about a file that is missing or broken
    QTimer settling_;
    QTimer writing_;
    QTimer retrying_;
    std::chrono::milliseconds retryAfter_;
};

} // namespace morrowleaf
