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
    updateControl();
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
        updateControl();
    }
}

void Binding::updateControl() {
    const QScopedValueRollback busy(busy_, true);
    show_();
}

void bindSwitch(QAbstractButton& button, SettingsStore& store, const FlagSetting& setting) {
    auto* binding = new Binding(store, setting, &button, [&button, &store, setting] {
        button.setChecked(store.get(setting));
    });
    QObject::connect(&button, &QAbstractButton::toggled, binding,
                     [binding](bool on) { binding->set(on); });
}

void bindText(QLineEdit& field, SettingsStore& store, const TextSetting& setting) {
    auto* binding = new Binding(store, setting, &field, [&field, &store, setting] {
        const QString text = store.get(setting);
        if (field.text() != text) {
            field.setText(text);
        }
    });
    QObject::connect(&field, &QLineEdit::textChanged, binding,
                     [binding](const QString& text) { binding->set(text); });
}

void bindChoice(QComboBox& box, SettingsStore& store, const TextSetting& setting) {
    auto* binding = new Binding(store, setting, &box, [&box, &store, setting] {
        box.setCurrentIndex(box.findData(store.get(setting), Qt::UserRole,
                                         Qt::MatchExactly | Qt::MatchCaseSensitive));
    });
    QObject::connect(&box, &QComboBox::activated, binding,
                     [binding, &box](int index) { binding->set(box.itemData(index).toString()); });
}

} // namespace morrowleaf
