// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

namespace morrowleaf {

// What a launch asks of the instance that runs.
struct LaunchRequest {
    QString action;          // "show", "settings", "edit-appearance" or "quit"
    QString activationToken; // lets a window come to the front; may be empty
};

// Sees to it that the program runs once in a session.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // True: this process is the one from now on. False: another one is it and
    // has got the request, or is there and does not answer; this one should
    // end. Where neither can be found out it is true. Waits for the other one,
    // for a bounded time.
    virtual bool claim(const LaunchRequest& request) = 0;

signals:
    void requested(const morrowleaf::LaunchRequest& request);
};

} // namespace morrowleaf
