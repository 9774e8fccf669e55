// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <optional>
#include <vector>

namespace morrowleaf {

// The text of a settings file, changed key by key: everything that is not
// changed stays as its author wrote it, to the letter. Order, indentation,
// numbers too long for any type and keys that no reader knows survive.
class SettingsDocument {
public:
    // An object without members.
    SettingsDocument() = default;

    // Nothing where the text is not valid JSON, holds a number beyond the range
    // of a double, or its top is not an object.
    static std::optional<SettingsDocument> parse(const QByteArray& text);

    // Of a key written twice the last value counts.
    const QJsonObject& values() const { return values_; }
    QByteArray text() const;

    // Undefined removes the key. Setting the value that is there already
    // leaves the text as it is.
    void apply(const QString& key, const QJsonValue& value);

private:
    // One member with the blanks around its parts.
    struct Member {
        QString key;
        QByteArray lead;
        QByteArray name; // with its quotation marks
        QByteArray colon;
        QByteArray value;
        QByteArray trail;
    };
    class Scanner;

    void write(const QString& key, const QJsonValue& value);
    void erase(const QString& key);

    QByteArray head_;
    QByteArray inside_; // the braces where there is no member
    std::vector<Member> members_;
    QByteArray tail_ = "\n";
    QJsonObject values_;
};

} // namespace morrowleaf
