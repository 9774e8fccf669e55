// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wholefile.h"
#include "settings/settingsdocument.h"

#include <QDeadlineTimer>
#include <QJsonObject>
#include <QJsonValue>
#include <QMap>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>

namespace morrowleaf {

class SettingsWatch;

// What the file holds with the owner's changes up to the `upTo`th laid over it.
struct SettingsSnapshot {
    QJsonObject values;
    quint64 upTo = 0;
};

// All that the thread of the store and the thread of the keeper share.
class SettingsMailbox {
public:
    void put(const SettingsSnapshot& snapshot);
    std::optional<SettingsSnapshot> take();

    // The changes up to this one are in the file.
    void setKept(quint64 upTo);
    quint64 kept() const;

private:
    mutable QMutex mutex_;
    std::optional<SettingsSnapshot> latest_;
    quint64 kept_ = 0;
};

// Keeps one settings file: reads it, writes the owner's changes into it and
// tells what others did to it. Lives on a thread of its own; every slot may
// take as long as the disk does.
class SettingsKeeper : public QObject {
    Q_OBJECT

public:
    SettingsKeeper(QString path, std::shared_ptr<SettingsMailbox> mailbox);
    ~SettingsKeeper() override;

    // Reads the file for the first time and puts a snapshot in the mailbox.
    void start();

    // Begins to follow what others do to the file.
    void follow();

    // The owner's `number`th change; undefined removes the key.
    void change(quint64 number, const QString& key, const QJsonValue& value);

    // Writes what is outstanding. True when all of it is in the file.
    bool flush(QDeadlineTimer deadline);

signals:
    // There is a new snapshot in the mailbox.
    void found();

private:
    // A file that is missing or broken may only be in the making.
    struct Doubt {
        std::chrono::milliseconds patience;
        QDeadlineTimer until;
    };

    void look();
    // Takes what was read as the truth, or doubts it for a while. True when
    // there is no doubt.
    bool judge(const WholeFile& read);
    bool doubt(std::chrono::milliseconds patience);
    void setAside();
    void believe(const SettingsDocument& document);
    void tell();

    void writeSoon();
    bool write(std::chrono::milliseconds lockPatience);
    bool mergeOnce(bool exclusive, bool& again);
    void failed();

    QString path_;
    std::shared_ptr<SettingsMailbox> mailbox_;
    std::unique_ptr<SettingsWatch> watch_;

    SettingsDocument known_;                // what the file held when last believed
    std::optional<QJsonObject> told_;       // what the owner has, as far as we know
    QMap<QString, QJsonValue> outstanding_; // the owner's changes not yet in the file
    quint64 lastChange_ = 0;
    std::optional<Doubt> doubt_;
    bool blocked_ = false; // something broken stands there and cannot be moved

    QTimer writing_;
    QTimer settling_;
    QTimer retrying_;
    std::chrono::milliseconds retryAfter_;
};

} // namespace morrowleaf
