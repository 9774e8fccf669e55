// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace morrowleaf {

// The user's settings: stored values above registered defaults. Reads never
// touch the disk; a write changes memory and is announced at once, whoever
// keeps the values (see settingsfile.h) follows the announcements.
//
// Lives on the main thread. Without a keeper it is a plain in-memory store.
class SettingsStore : public QObject {
    Q_OBJECT

public:
    explicit SettingsStore(QObject* parent = nullptr);

    // Defaults lie beneath the stored values, for this process only. Those of
    // a second call are added to, or replace, those of the first.
    void registerDefaults(const QJsonObject& defaults);

    // The stored value, else the registered default, else nothing. A stored
    // null counts as absent.
    std::optional<QJsonValue> value(const QString& key) const;

    // Conversions of whatever value() gives (see settingsvalue.h); the zero
    // value where nothing convertible is there.
    qint64 integer(const QString& key) const;
    double real(const QString& key) const;
    bool flag(const QString& key) const;

    // Texts and lists of texts convert from nothing else: absent otherwise.
    std::optional<QString> text(const QString& key) const;
    std::optional<QStringList> textList(const QString& key) const;

    // Null and undefined remove; a number that is not finite is ignored.
    void set(const QString& key, const QJsonValue& value);
    void remove(const QString& key);

    // The stored values alone, without the defaults.
    const QJsonObject& stored() const { return stored_; }

    // Exchanges all stored values for those that the keeper found. Announced
    // by changed() alone, after all of them are in place.
    void replaceStored(const QJsonObject& stored);

signals:
    // The effective value of `key` is another one now; not emitted when a
    // value is set that was in effect already.
    void changed(const QString& key);

    // set() or remove() was called, whether or not that changed anything:
    // the news for whoever keeps the values. Emitted before changed().
    void written(const QString& key);

private:
    QJsonValue effective(const QString& key) const;
    void announceChanges(const QJsonObject& oldStored, const QJsonObject& oldDefaults);

    QJsonObject stored_;
    QJsonObject defaults_;
};

} // namespace morrowleaf
