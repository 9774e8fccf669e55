// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

namespace morrowleaf {

// Reports that monitors were switched on or off. When the last one goes, Qt replaces it
// with a screen of its own and emits no signal. Main thread.
class X11Monitors : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    X11Monitors();
    ~X11Monitors() override;

    // Whether at least one monitor is on; true if the server does not say.
    static bool isAnyOn();

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

signals:
    void changed(); // emitted after Qt has updated its screens
};

} // namespace morrowleaf
