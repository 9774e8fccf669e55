// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/platform/privatebus.h"

#include <QDBusArgument>
#include <QDBusContext>
#include <QDBusMetaType>
#include <QDBusObjectPath>

namespace morrowleaf {

struct NamedPath {
    QString name;
    QDBusObjectPath path;
};
inline QDBusArgument& operator<<(QDBusArgument& to, const NamedPath& pair) {
    to.beginStructure();
    to << pair.name << pair.path;
    to.endStructure();
    return to;
}
inline const QDBusArgument& operator>>(const QDBusArgument& from, NamedPath& pair) {
    from.beginStructure();
    from >> pair.name >> pair.path;
    from.endStructure();
    return from;
}

// What the fake login manager says of its session, and of the session's user.
class FakeSession : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Session")
    Q_PROPERTY(bool LockedHint READ isLocked)
    Q_PROPERTY(bool Active MEMBER active)

public:
    bool isLocked() const {
        ++timesRead;
        return locked;
    }

    bool locked = false;
    bool active = true;
    mutable int timesRead = 0;
};
class FakeUser : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.User")
    Q_PROPERTY(morrowleaf::NamedPath Display READ display)

public:
    NamedPath display() const { return {.name = u"7"_s, .path = QDBusObjectPath(path)}; }
    QString path; // of the graphical session
};

// A login manager with one session, which is found in one way only.
class FakeLogind : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    static inline const QString manager = u"/org/freedesktop/login1"_s;
    static inline const QString session = manager + u"/session/_37"_s;
    static inline const QString user = manager + u"/user/_1000"_s;
    static inline const QString sessionInterface = u"org.freedesktop.login1.Session"_s;

    enum class Finds { ById, ByProcess, ByUser, Nothing };

    explicit FakeLogind(Finds finds = Finds::ByProcess, bool locked = false, bool active = true)
        : finds_(finds) {
        qDBusRegisterMetaType<NamedPath>();
        session_.locked = locked;
        session_.active = active;
        user_.path = session;
        service_.bus.registerObject(manager, this, QDBusConnection::ExportAllSlots);
        service_.bus.registerObject(session, &session_, QDBusConnection::ExportAllProperties);
        service_.bus.registerObject(user, &user_, QDBusConnection::ExportAllProperties);
        EXPECT_TRUE(service_.bus.registerService(u"org.freedesktop.login1"_s));
    }

    void prepareForSleep(bool begins) {
        service_.send(manager, u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s, {begins});
    }
    void lock() { service_.send(session, sessionInterface, u"Lock"_s); }
    void unlock(const QString& path = session) {
        service_.send(path, sessionInterface, u"Unlock"_s);
    }
    void change(const QVariantMap& properties, const QString& path = session) {
        service_.send(path, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s,
                      {sessionInterface, properties, QStringList()});
    }
    // Whoever has read the state, or failed to find a session, listens already.
    bool hasListener() const { return session_.timesRead > 0 || wasLastAsked_; }

public slots:
    QDBusObjectPath GetSession(const QString& id) { // NOLINT: a name on the bus
        return answer(finds_ == Finds::ById && id == u"7"_s, session);
    }
    QDBusObjectPath GetSessionByPID(uint pid) { // NOLINT: a name on the bus
        return answer(finds_ == Finds::ByProcess && pid == static_cast<uint>(getpid()), session);
    }
    QDBusObjectPath GetUser(uint uid) { // NOLINT: a name on the bus
        wasLastAsked_ = finds_ == Finds::Nothing;
        return answer(finds_ == Finds::ByUser && uid == static_cast<uint>(getuid()), user);
    }

private:
    QDBusObjectPath answer(bool found, const QString& path) {
        if (!found) {
            sendErrorReply(QDBusError::InvalidArgs);
        }
        return QDBusObjectPath(path);
    }

    Finds finds_;
    bool wasLastAsked_ = false; // where the session could still be found
    FakeService service_{{}};
    FakeSession session_;
    FakeUser user_;
};

} // namespace morrowleaf
