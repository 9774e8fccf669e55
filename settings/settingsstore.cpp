// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settings/settingsstore.h"

#include "settings/settingsvalue.h"

#include <cmath>

namespace morrowleaf {

namespace {

// Undefined when neither layer holds the key.
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
