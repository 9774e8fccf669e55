// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/buslink.h"
#include "platform/linux/dbus/busservice.h"

#include <QElapsedTimer>
#include <QObject>
#include <QSet>

#include <memory>

class QWidget;

namespace morrowleaf {

// The overview of GNOME's shell, which is above every window: at login it is open. Nothing
// happens on other desktops. Main thread.
class Overview : public QObject {
    Q_OBJECT

public:
    // `session` is opened afterwards by whoever created it.
    explicit Overview(std::shared_ptr<const BusLink> session);

    // Closes the overview when `window` is shown, or shortly afterwards if it opens only
    // then, and opens it again when no such window exists any more. Never waits for the
    // shell.
    void makeWayFor(QWidget& window);

protected:
    bool eventFilter(QObject* window, QEvent* event) override;

private:
    void subscribe();
    void read();
    void setKnown(bool isOpen);
    void closeIfOpen();
    void forget(const QObject* window);
    void set(bool isOpen);

    std::shared_ptr<const BusLink> session_;
    BusService shell_;
    std::unique_ptr<QObject> subscription_; // of the present connection
    QSet<const QObject*> windows_;          // that are or were shown
    QElapsedTimer sinceShown_;
    bool isOpen_ = false;
    bool isToReopen_ = false;
};

} // namespace morrowleaf
