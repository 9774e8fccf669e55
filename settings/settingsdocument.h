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

// The content of a settings file. Keys that no reader knows keep their values
// and their place; integers of 64 bits stay exact, signed or not.
class SettingsDocument {
public:
    // An object without members.
    SettingsDocument() = default;

    // std::nullopt where the text is not a JSON object in UTF-8, holds a number
    // beyond the range of a double, or is nested or populated beyond any use.
    // Of a key written twice the last value counts.
    [[nodiscard]] static std::optional<SettingsDocument> parse(const QByteArray& text);

    const QJsonObject& values() const { return values_; }
    // Indented, with a line break at its end.
    QByteArray text() const;

    // Undefined removes the key; a new key comes last.
    void set(const QString& key, const QJsonValue& value);

    bool operator==(const SettingsDocument& other) const { return members_ == other.members_; }

private:
    nlohmann::ordered_json members_ = nlohmann::ordered_json::object();
    QJsonObject values_; // the same
};

} // namespace morrowleaf
