// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/buslink.h"
#include "platform/linux/dbus/busservice.h"

#include <QElapsedTimer>
#include <QObject>
#include <QSet>

#include <memory>
#include <optional>

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
    // then, and opens it again when no such window exists any more, unless the user has left
    // it. Never waits for the shell.
    void makeWayFor(QWidget& window);

    // The user has started the program, from the overview if that is open: the shell is about
    // to close it.
    void leave();

protected:
    bool eventFilter(QObject* window, QEvent* event) override;

private:
    void subscribe();
    void read();
    void setKnown(bool isOpen);
    void closeIfOpen();
    void forgetState();
    void forget(const QObject* window);
    void set(bool isOpen);

    std::shared_ptr<const BusLink> session_;
    BusService shell_;
    std::unique_ptr<QObject> subscription_; // of the present connection
    QSet<const QObject*> windows_;          // that are or were shown
    QElapsedTimer sinceShown_;
    std::optional<bool> isOpen_; // std::nullopt until the shell has said it
    bool isLeft_;                // by the user, who has not opened it again since
    bool isToReopen_ = false;
};

} // namespace morrowleaf
