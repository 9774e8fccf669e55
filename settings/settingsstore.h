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

// The user's settings: stored values above registered defaults. Reads never touch the
// disk; a write changes memory and is announced at once, so that a keeper (see
// settingsfile.h) can store it.
//
// Main thread. Without a keeper this is a plain in-memory store.
class SettingsStore : public QObject {
    Q_OBJECT

public:
    explicit SettingsStore(QObject* parent = nullptr);

    // Registers defaults beneath the stored values, for this process only. A second call
    // adds to the defaults of the first and replaces those with the same key.
    void registerDefaults(const QJsonObject& defaults);

    // A setting as views and controls read it: the stored value, else the registered one,
    // else the fallback of the table. A stored value of another type is converted as
    // described below; what is not a text gives the fallback, and what is not a list of
    // texts gives an empty list.
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

    // Conversions of value(), independent of the locale. They return zero if there is no
    // value or no conversion.
    //
    // Reals are truncated and clamped to the range; a text gives its leading decimal
    // integer ("12.7 px" gives 12); true gives 1.
    qint64 integer(const QString& key) const;
    // Always finite. A text gives its leading decimal number ("1.5e2 px" is
    // 150), clamped to the range; true is 1.
    double real(const QString& key) const;
    // A number other than 0 is true; so are the texts "yes", "true" and "1", in any case
    // and without surrounding blanks.
    bool flag(const QString& key) const;
    // std::nullopt for values of another type.
    std::optional<QString> text(const QString& key) const;
    // std::nullopt unless the value is a list whose every element is a text; an empty list
    // is valid.
    std::optional<QStringList> textList(const QString& key) const;

    // Null and undefined remove the key; NaN and infinite numbers are ignored.
    void set(const QString& key, const QJsonValue& value);
    void remove(const QString& key);

    // The stored values alone, without the defaults.
    const QJsonObject& stored() const { return stored_; }

    // The current name, without its folder, of a settings file that could not be read and
    // is kept; empty if there is none. Set by the keeper.
    const QString& keptFileName() const { return keptFileName_; }
    void setKeptFileName(const QString& name);

    // Replaces all stored values by those that the keeper has read. Emits changed() after
    // all of them are in place, and never written().
    void replaceStored(const QJsonObject& stored);

signals:
    // The effective value of `key` has changed. Not emitted when the value that is already
    // in effect is set again.
    void changed(const QString& key);

    // set() or remove() was called, whether or not that changed the effective value. For
    // the keeper. Emitted before changed().
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
