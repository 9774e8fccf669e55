// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/sessionevents.h"

#include <QObject>
#include <QSet>
#include <QString>

#include <set>

namespace morrowleaf {

// Delivers events at once, or queues one per kind while an inhibitor is active and
// delivers them, in the order of Event, when the last inhibitor ends. Main thread.
class SessionGate : public QObject {
    Q_OBJECT

public:
    enum class Event { Wake, Active, Unlocked };

    using QObject::QObject;

    // Announces what is delivered, and the leaving, by the signals of `events`.
    void announceBy(SessionEvents& events) const;

    void report(Event event);
    // Starts or ends an inhibitor, such as a locked screen, identified by its name.
    // Repeating a call has no effect.
    void setInhibited(const QString& inhibitor, bool active);
    // The user is about to leave, whether or not an inhibitor follows.
    void reportLeaving();

signals:
    void delivered(morrowleaf::SessionGate::Event event);
    void leaving(); // reported, or an inhibitor started

private:
    QSet<QString> inhibitors_;
    std::set<Event> queued_;
};

} // namespace morrowleaf
