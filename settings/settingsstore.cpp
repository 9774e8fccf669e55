// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/settingsstore.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

namespace morrowleaf {

namespace {

using namespace Qt::Literals::StringLiterals;

using Integers = std::numeric_limits<qint64>;

qint64 truncated(double real) {
    // The largest qint64 is not representable as a double; this is the first double above
    // it.
    constexpr double limit = 0x1p63;
    if (std::isnan(real)) {
        return 0;
    }
    if (real >= limit || real < -limit) {
        return real > 0 ? Integers::max() : Integers::min();
    }
    return static_cast<qint64>(real);
}

double finite(double real) {
    using Reals = std::numeric_limits<double>;
    return std::isnan(real) ? 0 : std::clamp(real, Reals::lowest(), Reals::max());
}

// The text that `pattern` captures; empty if it does not match.
QByteArray leading(const QRegularExpression& pattern, const QString& text) {
    return pattern.match(text).captured(1).toLatin1();
}

qint64 leadingInteger(const QString& text) {
    static const QRegularExpression pattern(u"^\\s*([+-]?[0-9]+)"_s,
                                            QRegularExpression::UseUnicodePropertiesOption);
    const QByteArray number = leading(pattern, text);
    bool fits = false;
    const qint64 parsed = number.toLongLong(&fits);
    if (fits || number.isEmpty()) {
        return parsed;
    }
    return number.startsWith('-') ? Integers::min() : Integers::max();
}

double leadingReal(const QString& text) {
    static const QRegularExpression pattern(
        u"^\\s*([+-]?(?:[0-9]+\\.?[0-9]*|\\.[0-9]+)(?:[eE][+-]?[0-9]+)?)"_s,
        QRegularExpression::UseUnicodePropertiesOption);
    std::istringstream number(leading(pattern, text).toStdString());
    number.imbue(std::locale::classic());
    double parsed = 0;
    number >> parsed; // gives the largest double, or 0, if the number is out of range
    return finite(parsed);
}

qint64 toInteger(const QJsonValue& value) {
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? 1 : 0;
    case QJsonValue::Double:
        // Exact for integers beyond the precision of a double.
        return value.toInteger(truncated(value.toDouble()));
    case QJsonValue::String:
        return leadingInteger(value.toString());
    default:
        return 0;
    }
}

double toReal(const QJsonValue& value) {
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? 1 : 0;
    case QJsonValue::Double:
        return finite(value.toDouble());
    case QJsonValue::String:
        return leadingReal(value.toString());
    default:
        return 0;
    }
}

bool toFlag(const QJsonValue& value) {
    if (value.isString()) {
        const QString text = value.toString();
        return text == "1"_L1 || text.compare("yes"_L1, Qt::CaseInsensitive) == 0 ||
               text.compare("true"_L1, Qt::CaseInsensitive) == 0;
    }
    return toReal(value) != 0;
}

std::optional<QString> toText(const QJsonValue& value) {
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

std::optional<QStringList> toTextList(const QJsonValue& value) {
    if (!value.isArray()) {
        return std::nullopt;
    }
    QStringList texts;
    const QJsonArray elements = value.toArray();
    for (const auto& element : elements) {
        if (!element.isString()) {
            return std::nullopt;
        }
        texts.append(element.toString());
    }
    return texts;
}

// Undefined if neither object contains the key.
QJsonValue lookUp(const QJsonObject& stored, const QJsonObject& defaults, const QString& key) {
    QJsonValue found = stored.value(key);
    if (!found.isUndefined() && !found.isNull()) {
        return found;
    }
    return defaults.value(key);
}

} // namespace

SettingsStore::SettingsStore(QObject* parent)
    : QObject(parent) {}

void SettingsStore::registerDefaults(const QJsonObject& defaults) {
    const QJsonObject old = defaults_;
    for (auto it = defaults.begin(); it != defaults.end(); ++it) {
        defaults_.insert(it.key(), it.value());
    }
    announceChanges(stored_, old);
}

QJsonValue SettingsStore::effective(const QString& key) const {
    return lookUp(stored_, defaults_, key);
}

std::optional<QJsonValue> SettingsStore::value(const QString& key) const {
    const QJsonValue found = effective(key);
    return found.isUndefined() ? std::nullopt : std::optional(found);
}

qint64 SettingsStore::get(const IntegerSetting& setting) const {
    const QJsonValue found = effective(setting.key);
    return found.isUndefined() ? setting.initial : toInteger(found);
}

double SettingsStore::get(const RealSetting& setting) const {
    const QJsonValue found = effective(setting.key);
    return found.isUndefined() ? setting.initial : toReal(found);
}

bool SettingsStore::get(const FlagSetting& setting) const {
    const QJsonValue found = effective(setting.key);
    return found.isUndefined() ? setting.initial : toFlag(found);
}

QString SettingsStore::get(const TextSetting& setting) const {
    return text(setting.key).value_or(setting.fallback);
}

QStringList SettingsStore::get(const TextListSetting& setting) const {
    return textList(setting.key).value_or(QStringList());
}

qint64 SettingsStore::integer(const QString& key) const {
    return toInteger(effective(key));
}

double SettingsStore::real(const QString& key) const {
    return toReal(effective(key));
}

bool SettingsStore::flag(const QString& key) const {
    return toFlag(effective(key));
}

std::optional<QString> SettingsStore::text(const QString& key) const {
    return toText(effective(key));
}

std::optional<QStringList> SettingsStore::textList(const QString& key) const {
    return toTextList(effective(key));
}

void SettingsStore::set(const QString& key, const QJsonValue& value) {
    if (value.isNull() || value.isUndefined()) {
        remove(key);
        return;
    }
    if (value.isDouble() && !std::isfinite(value.toDouble())) {
        return;
    }
    const QJsonValue before = effective(key);
    stored_.insert(key, value);
    emit written(key);
    if (before != value) {
        emit changed(key);
    }
}

void SettingsStore::remove(const QString& key) {
    const QJsonValue before = effective(key);
    stored_.remove(key);
    const bool differs = effective(key) != before;
    emit written(key);
    if (differs) {
        emit changed(key);
    }
}

void SettingsStore::setKeptFileName(const QString& name) {
    if (keptFileName_ != name) {
        keptFileName_ = name;
        emit keptFileNameChanged();
    }
}

void SettingsStore::replaceStored(const QJsonObject& stored) {
    const QJsonObject old = stored_;
    stored_ = stored;
    announceChanges(old, defaults_);
}

void SettingsStore::announceChanges(const QJsonObject& oldStored, const QJsonObject& oldDefaults) {
    QStringList differing;
    QStringList keys = oldStored.keys() + stored_.keys() + defaults_.keys();
    keys.removeDuplicates();
    for (const QString& key : std::as_const(keys)) {
        if (lookUp(oldStored, oldDefaults, key) != effective(key)) {
            differing.append(key);
        }
    }
    for (const QString& key : std::as_const(differing)) {
        emit changed(key);
    }
}

} // namespace morrowleaf
