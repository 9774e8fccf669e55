// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QObject>
#include <QString>

#include <chrono>

class QThread;

namespace morrowleaf {

class SettingsStore;
class SettingsWorker;
struct SettingsSnapshot;

// Linux: $XDG_CONFIG_HOME/morrowleaf/settings.json; without that variable, below ~/.config.
// macOS: ~/Library/Application Support/Morrowleaf/settings.json.
QString defaultSettingsPath();

// Keeps a store and one JSON file in step, in both directions. Construct it after the
// store and destroy it before the store, on the store's thread.
//
// The constructor reads the values of the file into the store. A value that is set
// reaches the file within 0.1 s, and at the latest when the program ends; what another
// process or an editor writes reaches the store, which announces it, within 0.2 s.
// Processes that write at the same time keep each other's keys: only changed keys are
// merged into the file. If the folder cannot be read or written, the store works in
// memory only.
//
// A file that is not a JSON object gets 0.5 s to become one. After that, at the start, it
// is renamed; later, the values in effect stay, and it is renamed only when something has
// to be written. It is never overwritten, and keptFileName() of the store gives the name
// under which it is kept.
//
// No call waits for the disk without a time limit, even if the disk does not answer.
class SettingsFile : public QObject {
    Q_OBJECT

public:
    SettingsFile(SettingsStore& store, const QString& path, QObject* parent = nullptr);
    // Flushes first, unless a flush was already tried since the last change.
    ~SettingsFile() override;

    // Waits up to `limit` until everything set so far is in the file. Returns false if that
    // fails, within a second unless the disk does not answer. Called when the application
    // quits.
    [[nodiscard]] bool flush(std::chrono::milliseconds limit = std::chrono::seconds(3));

private:
    void forwardChange(const QString& key);
    void adopt(const SettingsSnapshot& snapshot);

    SettingsStore& store_;
    // Both outlive this object if the disk does not answer, because then nothing can end
    // them.
    QThread* thread_;
    SettingsWorker* worker_;

    quint64 lastChange_ = 0;
    quint64 flushed_ = 0;             // the last change at the time of the last flush
    QHash<QString, quint64> pending_; // own changes that no snapshot contains yet
};

} // namespace morrowleaf
