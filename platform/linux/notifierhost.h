#pragma once

#include "platform/trayhost.h"

#include <QDBusServiceWatcher>

namespace morrowleaf {

// Present once a status notifier watcher says that a host has registered.
class NotifierHost : public TrayHost {
    Q_OBJECT

public:
    NotifierHost();
    bool isPresent() const override { return present_; }

private slots:
    void look();

private:
    void found();

    QDBusServiceWatcher watcher_;
    bool present_ = false;
};

} // namespace morrowleaf
