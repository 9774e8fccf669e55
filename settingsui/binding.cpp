// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/binding.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QScopedValueRollback>

namespace morrowleaf {

Binding::Binding(SettingsStore& store, QString key, QObject* control, std::function<void()> show)
    : QObject(control)
    , store_(store)
    , key_(std::move(key))
    , show_(std::move(show)) {
    connect(&store_, &SettingsStore::changed, this, &Binding::changed);
    bringInLine();
}

bool Binding::set(const QJsonValue& value) {
    if (busy_) {
        return false;
    }
    const QScopedValueRollback busy(busy_, true);
    store_.set(key_, value);
    return true;
}

void Binding::changed(const QString& key) {
    if (key == key_ && !busy_) {
        bringInLine();
    }
}

void Binding::bringInLine() {
    const QScopedValueRollback busy(busy_, true);
    show_();
}

double realOr(const SettingsStore& store, const QString& key, double fallback) {
    return store.value(key) ? store.real(key) : fallback;
}

bool flagOr(const SettingsStore& store, const QString& key, bool fallback) {
    return store.value(key) ? store.flag(key) : fallback;
}

qint64 integerOr(const SettingsStore& store, const QString& key, qint64 fallback) {
    return store.value(key) ? store.integer(key) : fallback;
}

QString textOr(const SettingsStore& store, const QString& key, const QString& fallback) {
    return store.text(key).value_or(fallback);
}

void bindSwitch(QAbstractButton& button, SettingsStore& store, const QString& key, bool fallback) {
    auto* binding = new Binding(store, key, &button, [&button, &store, key, fallback] {
        button.setChecked(flagOr(store, key, fallback));
    });
    QObject::connect(&button, &QAbstractButton::toggled, binding,
                     [binding](bool on) { binding->set(on); });
}

void bindText(QLineEdit& field, SettingsStore& store, const QString& key, const QString& fallback) {
    auto* binding = new Binding(store, key, &field, [&field, &store, key, fallback] {
        const QString text = textOr(store, key, fallback);
        if (field.text() != text) {
            field.setText(text);
        }
    });
    QObject::connect(&field, &QLineEdit::textChanged, binding,
                     [binding](const QString& text) { binding->set(text); });
}

void bindChoice(QComboBox& box, SettingsStore& store, const QString& key, const QString& fallback) {
    auto* binding = new Binding(store, key, &box, [&box, &store, key, fallback] {
        box.setCurrentIndex(box.findData(textOr(store, key, fallback), Qt::UserRole,
                                         Qt::MatchExactly | Qt::MatchCaseSensitive));
    });
    QObject::connect(&box, &QComboBox::activated, binding,
                     [binding, &box](int index) { binding->set(box.itemData(index).toString()); });
}

} // namespace morrowleaf
