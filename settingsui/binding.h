// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/settingsstore.h"

#include <QObject>

#include <functional>

class QAbstractButton;
class QComboBox;
class QLineEdit;

namespace morrowleaf {

// Connects a control and a key of the store in both directions: `show` updates the
// control from the store, now and whenever the key changes; set() stores what the user
// has done. Signals of the control while it is being updated store nothing, and a value
// that the control has just stored does not update it again. The binding is a child of
// `control`.
class Binding : public QObject {
    Q_OBJECT

public:
    Binding(SettingsStore& store, QString key, QObject* control, std::function<void()> show);

    // Returns false and stores nothing while the control is being updated.
    bool set(const QJsonValue& value);

private:
    void changed(const QString& key);
    void updateControl();

    SettingsStore& store_;
    QString key_;
    std::function<void()> show_;
    bool busy_ = false;
};

void bindSwitch(QAbstractButton& button, SettingsStore& store, const FlagSetting& setting);
void bindText(QLineEdit& field, SettingsStore& store, const TextSetting& setting);
// The data of the items are the stored texts; a stored text without an item selects none.
void bindChoice(QComboBox& box, SettingsStore& store, const TextSetting& setting);

} // namespace morrowleaf
