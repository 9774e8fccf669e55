// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

namespace morrowleaf {

// Tells when monitors were switched on or off. The toolkit puts a screen of
// its own in the place of the last one that goes, and says nothing.
class X11Monitors : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    X11Monitors();
    ~X11Monitors() override;

    // Whether one is on; true where the server cannot be asked.
    static bool anyIsOn();

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

signals:
    void changed(); // the toolkit knows by then
};

} // namespace morrowleaf
