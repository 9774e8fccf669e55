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

// $XDG_CONFIG_HOME/morrowleaf/settings.json, else below ~/.config.
QString defaultSettingsPath();

// Keeps a store in step with one JSON file, both ways, for as long as it
// lives. Construct it after the store and destroy it before, on its thread.
//
// The file's values are in the store when the constructor returns. What is
// set is in the file within a tenth of a second and at the latest when the
// program ends; what another process or an editor writes is in the store
// within a fifth of a second, and announced by it. Processes that write at
// once keep each other's keys: only what changed is merged into the file.
// Where the folder cannot be read or written the store goes on in memory.
//
// A file that is not a JSON object gets half a second to become one. Then, at
// the start, it is renamed; later the values in effect stay, and it is renamed
// only when something has to be written. It is never overwritten, and the store
// knows the name under which it is kept.
//
// No call waits for the disk beyond a bound, even where it hangs.
class SettingsFile : public QObject {
    Q_OBJECT

public:
    SettingsFile(SettingsStore& store, const QString& path, QObject* parent = nullptr);
    // Flushes first, unless that was tried since the last change.
    ~SettingsFile() override;

    // Waits until everything set so far is in the file, at most for `limit`.
    // False where that could not be done, which is known within a second unless
    // the disk does not answer. Called when the application quits.
    [[nodiscard]] bool flush(std::chrono::milliseconds limit = std::chrono::seconds(3));

private:
    void pass(const QString& key);
    void adopt(const SettingsSnapshot& snapshot);

    SettingsStore& store_;
    // Both outlive this only where the disk hangs: nothing could end them then.
    QThread* thread_;
    SettingsWorker* worker_;

    quint64 lastChange_ = 0;
    quint64 flushed_ = 0;              // the last change when a flush was last tried
    QHash<QString, quint64> underway_; // own changes that no snapshot holds yet
};

} // namespace morrowleaf
