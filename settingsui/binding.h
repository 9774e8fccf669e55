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

// Ties a control to a key of the store in both directions: `show` brings the
// control in line with the store, now and whenever the key changes; set()
// stores what the user did. What the control announces while it is being
// brought in line is not stored, and what it has just stored is not shown to
// it again, so no change runs in a circle. Ends with the control.
class Binding : public QObject {
    Q_OBJECT

public:
    Binding(SettingsStore& store, QString key, QObject* control, std::function<void()> show);

    // False, and nothing stored, while the control is being brought in line.
    bool set(const QJsonValue& value);

private:
    void changed(const QString& key);
    void bringInLine();

    SettingsStore& store_;
    QString key_;
    std::function<void()> show_;
    bool busy_ = false;
};

void bindSwitch(QAbstractButton& button, SettingsStore& store, const FlagSetting& setting);
void bindText(QLineEdit& field, SettingsStore& store, const TextSetting& setting);
// The items' data are the stored texts; a stored text that none of them has
// selects no item.
void bindChoice(QComboBox& box, SettingsStore& store, const TextSetting& setting);

} // namespace morrowleaf
