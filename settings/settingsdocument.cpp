// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/settingsdocument.h"

#include <QJsonArray>

namespace morrowleaf {

namespace {

using Json = nlohmann::ordered_json;

constexpr int depthLimit = 512;
// Keys are searched linearly.
constexpr int keyLimit = 10'000;

QJsonValue fromJson(const Json& json) {
    switch (json.type()) {
    case Json::value_t::boolean:
        return json.get<bool>();
    case Json::value_t::number_integer:
        return qint64(json.get<int64_t>());
    case Json::value_t::number_unsigned: {
        const auto number = json.get<uint64_t>();
        return number <= uint64_t(std::numeric_limits<qint64>::max()) ? QJsonValue(qint64(number))
                                                                      : QJsonValue(double(number));
    }
    case Json::value_t::number_float:
        return json.get<double>();
    case Json::value_t::string:
        return QString::fromStdString(json.get_ref<const std::string&>());
    case Json::value_t::array: {
        QJsonArray array;
        for (const Json& element : json) {
            array.append(fromJson(element));
        }
        return array;
    }
    case Json::value_t::object: {
        QJsonObject object;
        for (const auto& [key, value] : json.items()) {
            object.insert(QString::fromStdString(key), fromJson(value));
        }
        return object;
    }
    default:
        return QJsonValue::Null;
    }
}

Json toJson(const QJsonValue& value) {
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool();
    case QJsonValue::Double: {
        // The results agree only if the number is an integer.
        const qint64 integer = value.toInteger(0);
        return integer == value.toInteger(1) ? Json(integer) : Json(value.toDouble());
    }
    case QJsonValue::String:
        return value.toString().toStdString();
    case QJsonValue::Array: {
        Json array = Json::array();
        const QJsonArray elements = value.toArray();
        for (const auto& element : elements) {
            array.push_back(toJson(element));
        }
        return array;
    }
    case QJsonValue::Object: {
        Json object = Json::object();
        const QJsonObject members = value.toObject();
        for (auto it = members.begin(); it != members.end(); ++it) {
            object[it.key().toStdString()] = toJson(it.value());
        }
        return object;
    }
    default:
        return nullptr;
    }
}

} // namespace

std::optional<SettingsDocument> SettingsDocument::parse(const QByteArray& text) {
    int keys = 0;
    bool bounded = true;
    const auto bound = [&](int depth, Json::parse_event_t event, const Json& /*parsed*/) {
        keys += event == Json::parse_event_t::key ? 1 : 0;
        bounded = bounded && depth <= depthLimit && keys <= keyLimit;
        return bounded;
    };
    SettingsDocument document;
    document.members_ = Json::parse(text.begin(), text.end(), bound, false);
    if (!bounded || !document.members_.is_object()) {
        return std::nullopt;
    }
    document.values_ = fromJson(document.members_).toObject();
    return document;
}

QByteArray SettingsDocument::text() const {
    return QByteArray::fromStdString(members_.dump(4, ' ', false, Json::error_handler_t::replace) +
                                     '\n');
}

void SettingsDocument::set(const QString& key, const QJsonValue& value) {
    if (value == values_.value(key)) {
        return;
    }
    if (value.isUndefined()) {
        members_.erase(key.toStdString());
        values_.remove(key);
    } else {
        members_[key.toStdString()] = toJson(value);
        values_.insert(key, value);
    }
}

} // namespace morrowleaf
