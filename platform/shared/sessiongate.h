// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSet>
#include <QString>

#include <functional>
#include <set>

namespace morrowleaf {

// Lets events pass while nothing bars the way, and keeps them while something
// does. Several kinds that were kept are announced together.
class SessionGate {
public:
    enum class Event { Wake, Active, Unlocked };

    explicit SessionGate(std::function<void(Event)> announce);

    void happened(Event event);
    // `by` names who bars the way; each lifts its own bar only.
    void setBarred(const QString& by, bool barred);
    bool isOpen() const { return bars_.isEmpty(); }
    // The user is about to leave, whether or not a bar will follow.
    void leaving() const;

    // Called when the user is leaving and when a bar is put up; may be empty.
    std::function<void()> onLeave;

private:
    std::function<void(Event)> announce_;
    QSet<QString> bars_;
    std::set<Event> kept_;
};

} // namespace morrowleaf
