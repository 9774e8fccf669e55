// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

namespace morrowleaf {

// What a launch asks of the running instance.
struct LaunchRequest {
    QString action;          // "show", "settings", "edit-appearance" or "quit"
    QString activationToken; // lets a window come to the front; may be empty
};

// Ensures that the program runs once in a session. Main thread.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // True: this process is the instance from now on. False: another one is; it
    // has received `request`, or it does not answer, and this process should
    // end. True as well where neither can be found out. Call once, at launch:
    // it blocks for some seconds where the other instance is slow to answer.
    [[nodiscard]] virtual bool claim(const LaunchRequest& request) = 0;

signals:
    void requested(const morrowleaf::LaunchRequest& request);
};

} // namespace morrowleaf
