// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QWidget;

namespace morrowleaf {

// What ends a showing.
enum class EndedBy {
    AnyInput, // the left or right mouse button, a touch, or a key
    Escape,   // the Escape key, unless a menu or a dialog is in front
};

// Watches all input events of the program during its life. Consumes every event that ends
// the showing and announces it by a signal. Main thread.
//
// Modifier and lock keys alone do not end a showing, nor do keys that operate the
// machine, such as those for volume and brightness.
class EventMonitor : public QObject {
    Q_OBJECT

public:
    // `window` is the window of the showing and must outlive this. Ignores events with a
    // time stamp before `since`, in milliseconds that wrap at 32 bits; 0 ignores none.
    EventMonitor(EndedBy endedBy, const QWidget& window, quint32 since);

signals:
    void endRequested();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool endsShowing(const QEvent& event) const;

    EndedBy endedBy_;
    const QWidget& window_;
    quint32 since_;
};

} // namespace morrowleaf
