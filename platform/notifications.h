// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace morrowleaf {

// One message to the user; all texts are plain and in the user's language.
struct Notification {
    QString title;
    QString text;
    QString button; // also what a click on the message does
};

// The desktop's notifications. Main thread.
class Notifications : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // Calls `done` later with whether the desktop has taken the message, unless this is
    // destroyed before. One message at a time: do not call again before.
    virtual void show(const Notification& notification, std::function<void(bool)> done) = 0;

signals:
    void clicked(); // a message or its button
};

} // namespace morrowleaf
