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

    // Defaults lie beneath the stored values, for this process only.
    void registerDefaults(const QJsonObject& defaults);

    // The stored value, else the registered default, else nothing.
    std::optional<QJsonValue> value(const QString& key) const;

    // Conversions of whatever value() gives; the zero value where nothing
    // convertible is there. A real becomes an integer by truncation, a number
    // is true when not zero, a text becomes a number by its numeric prefix,
    // the texts "yes", "true" and "1" are true; lists and objects give zero.
    qint64 integer(const QString& key) const;
    double real(const QString& key) const;
    bool flag(const QString& key) const;

    // Texts and lists of texts convert from nothing else: absent otherwise.
    std::optional<QString> text(const QString& key) const;
    std::optional<QStringList> textList(const QString& key) const;

    void set(const QString& key, const QJsonValue& value);
    void remove(const QString& key);

signals:
    // The effective value of `key` may have changed; emitted after the change.
    void changed(const QString& key);
};

} // namespace morrowleaf
