// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QWidget;

namespace morrowleaf {

// What ends a showing.
enum class EndedBy {
    AnyInput, // the left or right mouse button, a touch, or a key
    Escape,   // that key only, and a menu or dialog in front takes it first
};

// Watches the input of the whole program while it lives. An event that ends the
// showing is announced by a signal and reaches nobody else.
//
// Keys that are no typing do not count: a modifier or lock alone, and those
// that operate the machine, such as for volume and brightness.
class EventMonitor : public QObject {
    Q_OBJECT

public:
    // `window` is that of the showing. Events with a time stamp before `since`
    // are ignored (milliseconds that wrap at 32 bits; 0 ignores none).
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
