// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/settingstable.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QObject>
#include <QString>
#include <QStringList>

#include <concepts>
#include <optional>

namespace morrowleaf {

// The user's settings: stored values above registered defaults. Reads never
// touch the disk; a write changes memory and is announced at once, and whoever
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

    // A setting as views and controls read it: the stored value, else the
    // registered one, else the fallback of the table. A stored value of another
    // type is converted as below; a text that is none gives the fallback, a
    // list that is none is empty.
    qint64 get(const IntegerSetting& setting) const;
    double get(const RealSetting& setting) const;
    bool get(const FlagSetting& setting) const;
    QString get(const TextSetting& setting) const;
    QStringList get(const TextListSetting& setting) const;

    // Stores a setting; a value of another type does not compile.
    template <typename Setting, std::convertible_to<typename Setting::Value> Value>
    void set(const Setting& setting, const Value& value) {
        set(QString(setting.key), asJson(static_cast<typename Setting::Value>(value)));
    }
    template <typename Setting, typename Value>
    requires(!std::convertible_to<Value, typename Setting::Value>) void set(
        const Setting& setting, const Value& value) = delete;

    // The stored value, else the registered default, else std::nullopt. A stored
    // null counts as absent.
    std::optional<QJsonValue> value(const QString& key) const;

    // Conversions of whatever value() gives, independent of the locale; zero
    // where nothing convertible is there.
    //
    // Reals are truncated and clamped to the range; a text gives its leading
    // decimal integer ("12.7 px" is 12); true is 1.
    qint64 integer(const QString& key) const;
    // Always finite. A text gives its leading decimal number ("1.5e2 px" is
    // 150), clamped to the range; true is 1.
    double real(const QString& key) const;
    // Numbers are true when not zero; of the texts, "yes", "true" and "1" in
    // either case are, without blanks around them.
    bool flag(const QString& key) const;
    // Converted from nothing else: std::nullopt for other types.
    std::optional<QString> text(const QString& key) const;
    // Only of a list whose every element is a text; the empty list is one.
    std::optional<QStringList> textList(const QString& key) const;

    // Null and undefined remove; a number that is not finite is ignored.
    void set(const QString& key, const QJsonValue& value);
    void remove(const QString& key);

    // The stored values alone, without the defaults.
    const QJsonObject& stored() const { return stored_; }

    // The present name, without its folder, of a file of settings that could not
    // be read and is kept; empty without one. The keeper sets it.
    const QString& keptFileName() const { return keptFileName_; }
    void setKeptFileName(const QString& name);

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

    void keptFileNameChanged();

private:
    static QJsonValue asJson(const QStringList& value) { return QJsonArray::fromStringList(value); }
    static QJsonValue asJson(const auto& value) { return value; }

    QJsonValue effective(const QString& key) const;
    void announceChanges(const QJsonObject& oldStored, const QJsonObject& oldDefaults);

    QJsonObject stored_;
    QJsonObject defaults_;
    QString keptFileName_;
};

} // namespace morrowleaf
