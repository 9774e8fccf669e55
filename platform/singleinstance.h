// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

namespace morrowleaf {

// What a later launch asks of the running instance.
struct LaunchRequest {
    QString action;          // "show", "settings", "edit-appearance" or "quit"
    QString activationToken; // lets a window come to the front; may be empty
};

// Ensures that the program runs once in a session. Main thread.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // Returns true if this process is the instance from now on, and also if that cannot be
    // determined; that takes no time. Returns false if another process is: it has received
    // `request` or does not answer, and this process should end. Call once, at launch; runs
    // an event loop of its own for up to 5 s while the other instance does not answer.
    [[nodiscard]] virtual bool claim(const LaunchRequest& request) = 0;

signals:
    void requested(const morrowleaf::LaunchRequest& request);
};

} // namespace morrowleaf
