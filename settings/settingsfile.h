// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QObject>
#include <QString>

#include <chrono>
#include <memory>

class QThread;

namespace morrowleaf {

class SettingsKeeper;
class SettingsMailbox;
class SettingsStore;

// $XDG_CONFIG_HOME/morrowleaf/settings.json, else below ~/.config.
QString defaultSettingsPath();

// Keeps a store in step with one JSON file, both ways, for as long as it
// lives. Construct it after the store and destroy it before.
//
// The file's values are in the store when the constructor returns. What is
// set is in the file within a tenth of a second and at the latest when the
// program ends; what another process or an editor writes is in the store
// within a fifth of a second, and announced by it. Processes that write at
// once keep each other's keys, and so do hands: only what changed is
// exchanged in the text. A file that is not a JSON object gets half a second
// to become one and is then renamed, never overwritten. Where the folder
// cannot be read or written the store goes on in memory.
//
// No call waits for the disk beyond a bound, even where it hangs.
class SettingsFile : public QObject {
    Q_OBJECT

public:
    SettingsFile(SettingsStore& store, const QString& path, QObject* parent = nullptr);
    // Flushes first.
    ~SettingsFile() override;

    // Waits until everything set so far is in the file, at most for `limit`.
    // False where that could not be done. Called when the application quits.
    bool flush(std::chrono::milliseconds limit = std::chrono::seconds(3));

private:
    void pass(const QString& key);
    void adopt();

    SettingsStore& store_;
    std::shared_ptr<SettingsMailbox> mailbox_;
    // Both outlive this only where the disk hangs: nothing could end them then.
    QThread* thread_;
    SettingsKeeper* keeper_;

    bool hangs_ = false; // the last flush was not even answered
    quint64 lastChange_ = 0;
    QHash<QString, quint64> underway_; // own changes that no snapshot holds yet
};

} // namespace morrowleaf
