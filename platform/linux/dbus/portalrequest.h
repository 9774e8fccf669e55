// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/filechooser.h"

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

namespace morrowleaf {

// One question to the portal's file chooser; deletes itself once answered, and
// takes the dialog back when `owner` goes.
class PortalRequest : public QObject {
    Q_OBJECT

public:
    using Done = std::function<void(const FileAnswer&)>;
    PortalRequest(const QDBusConnection& bus, QObject* owner, Done done);

    void openFile(const QString& window, const QString& title, QVariantMap options);

private slots:
    void response(uint code, const QVariantMap& results);

private:
    void listenAt(const QString& path);
    void finish(const FileAnswer& answer);
    void takeBack();

    QDBusConnection bus_;
    Done done_;
    QString token_;
    QString path_;
};

} // namespace morrowleaf
