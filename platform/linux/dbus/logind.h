// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/dbus/buslink.h"
#include "platform/linux/dbus/busservice.h"
#include "platform/shared/sessiongate.h"

#include <QVariantMap>

#include <memory>

namespace morrowleaf {

// Reports to the gate what the login manager says about sleep and about the
// session of this process. A locked and an inactive session are inhibitors.
class Logind : public QObject {
    Q_OBJECT

public:
    explicit Logind(SessionGate& gate, QObject* parent = nullptr);

private:
    void subscribe();
    void findSession();
    void findSessionByProcess();
    void findSessionOfUser();
    void findDisplayOf(const QString& user);
    void followSession(const QString& path);
    void readState();
    // A change is an event for the gate; what is merely read is not.
    enum class Origin { Reading, Change };
    void apply(const QVariantMap& properties, Origin origin);
    void liftInhibitors();

    SessionGate& gate_;
    BusLink link_;
    BusService service_;
    std::unique_ptr<QObject> subscription_;        // to the manager
    std::unique_ptr<QObject> sessionSubscription_; // null while the session is unknown
    QString session_;                              // its object path
};

} // namespace morrowleaf
