#pragma once

#include <QObject>

namespace morrowleaf {

// The moments at which the user comes back to the machine. Nothing is
// announced while the session is locked or no screen exists: what happened
// meanwhile is announced once that ends.
class SessionEvents : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    void didWake();                // the machine woke from sleep
    void sessionDidBecomeActive(); // the user's session is in front again
    void screenIsUnlocked();
};

} // namespace morrowleaf
