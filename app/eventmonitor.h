// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <functional>

class QKeyEvent;

namespace morrowleaf {

// Kinds of input events, as flags.
using EventMask = unsigned;
inline constexpr EventMask leftMouseDown = 1U << 1U;
inline constexpr EventMask rightMouseDown = 1U << 3U;
inline constexpr EventMask keyDown = 1U << 10U;

// Whether a key press is one that a program is meant to get: not that of a
// modifier or a lock alone, nor of a key that works the machine, as those for
// loudness and brightness do.
bool isKeyDown(const QKeyEvent& event);

// Watches the input of the whole program as long as it lives. An event of the
// mask is given to `consumes`; when that answers true, nobody else gets it.
class EventMonitor : public QObject {
    Q_OBJECT

public:
    using Consumes = std::function<bool(const QEvent& event)>;
    // Events with a time stamp before `since` are not looked at (milliseconds
    // that wrap at 32 bits; 0 looks at all).
    EventMonitor(EventMask mask, quint32 since, Consumes consumes);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    EventMask mask_;
    quint32 since_;
    Consumes consumes_;
};

} // namespace morrowleaf
