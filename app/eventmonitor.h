// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/inputtaps.h"

#include <QObject>

#include <memory>

class QWidget;

namespace morrowleaf {

// What ends a showing.
enum class EndedBy {
    AnyInput, // the left or right mouse button, a touch, or a key
    Escape,   // the Escape key, unless a menu or a dialog is in front
};

// Watches all input events of the program until stop(). Consumes every event that ends the
// showing and announces it by a signal. Main thread.
//
// Modifier and lock keys alone do not end a showing, nor do keys that operate the
// machine, such as those for volume and brightness.
class EventMonitor : public QObject {
    Q_OBJECT

public:
    // `window` is the window of the showing and must outlive this. Ignores events with a
    // time stamp before `since`, in milliseconds that wrap at 32 bits; 0 ignores none.
    // Where the system lets no program tap its input, it watches Qt's events.
    EventMonitor(EndedBy endedBy, const QWidget& window, quint32 since, InputTaps& taps);

    // Call it before the monitor is destroyed, which must not happen within its signal.
    void stop();

signals:
    void endRequested();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool endsShowing(const QEvent& event) const;
    bool takeTapped();

    EndedBy endedBy_;
    const QWidget& window_;
    quint32 since_;
    bool isStopped_ = false;
    std::unique_ptr<InputTap> tap_; // null: Qt's events are watched
};

} // namespace morrowleaf
