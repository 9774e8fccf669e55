// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

#include <optional>

namespace morrowleaf {

// What a later launch asks of the running instance.
struct LaunchRequest {
    QString action;          // "show", "settings", "edit-appearance" or "quit"
    QString activationToken; // lets a window come to the front; may be empty
};

// Ensures that the program runs once in a session. Main thread.
class SingleInstance {
public:
    virtual ~SingleInstance() = default;
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    // Returns true if this process is the instance from now on, until the object is
    // destroyed. Returns false if another process is, and this one should end: the other
    // has received `request`, if there is one, or does not answer. Call once, before the
    // application object is created. Takes no time if there is no other instance, and
    // otherwise up to 5 s.
    [[nodiscard]] virtual bool claim(const std::optional<LaunchRequest>& request) = 0;

protected:
    SingleInstance() = default;
};

// Receives in the instance what later launches ask for. Main thread.
class RequestListener : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    // Receives requests from now on. Call once, in the instance only.
    virtual void listen() = 0;

signals:
    void requested(const morrowleaf::LaunchRequest& request);
    // If a message bus has started this process, the request for which it did follows.
    void reachable();
};

} // namespace morrowleaf
