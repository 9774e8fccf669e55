// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <nlohmann/json.hpp>

#include <optional>

namespace morrowleaf {

// The content of a settings file. Keys that the program does not know keep their values
// and their order; signed and unsigned 64-bit integers stay exact.
class SettingsDocument {
public:
    // An object without members.
    SettingsDocument() = default;

    // Returns std::nullopt if `text` is not a JSON object in UTF-8, contains a number
    // beyond the range of a double, or exceeds the limits of 512 levels and 10,000 keys.
    // The last value of a repeated key counts.
    [[nodiscard]] static std::optional<SettingsDocument> parse(const QByteArray& text);

    const QJsonObject& values() const { return values_; }
    // Indented JSON that ends with a line break.
    QByteArray text() const;

    // Undefined removes the key; a new key comes last.
    void set(const QString& key, const QJsonValue& value);

    bool operator==(const SettingsDocument& other) const { return members_ == other.members_; }

private:
    nlohmann::ordered_json members_ = nlohmann::ordered_json::object();
    QJsonObject values_; // of members_, as Qt's types
};

} // namespace morrowleaf
