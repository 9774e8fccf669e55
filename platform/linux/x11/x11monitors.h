// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

namespace morrowleaf {

// Tells when monitors were switched on or off. When the last one goes, Qt
// replaces it with a screen of its own and emits no signal.
class X11Monitors : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    X11Monitors();
    ~X11Monitors() override;

    // Whether at least one monitor is on; true where the server does not tell.
    static bool isAnyOn();

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

signals:
    void changed(); // Qt has updated its screens by then
};

} // namespace morrowleaf
