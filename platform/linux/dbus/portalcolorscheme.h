// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/colorscheme.h"

#include <QDBusConnection>

class QDBusMessage;

namespace morrowleaf {

// Asks the desktop's settings portal, and follows its announcements. The
// answer comes later; without a portal there is none.
class PortalColorScheme : public ColorScheme {
    Q_OBJECT

public:
    explicit PortalColorScheme(QDBusConnection bus = QDBusConnection::sessionBus());

    ColorPreference preference() const override { return preference_; }

private slots:
    void settingChanged(const QDBusMessage& signal);

private:
    void take(const QVariant& value);

    ColorPreference preference_ = ColorPreference::None;
};

} // namespace morrowleaf
