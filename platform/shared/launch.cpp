// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/launch.h"

#include <QtGlobal>

namespace morrowleaf {

namespace {

constexpr auto startedByBus = "DBUS_STARTER_BUS_TYPE";
constexpr auto token = "XDG_ACTIVATION_TOKEN";

} // namespace

Starter takeStarter() {
    const Starter starter = qEnvironmentVariableIsSet(startedByBus) ? Starter::Bus : Starter::User;
    qunsetenv(startedByBus);
    return starter;
}

QString activationToken() {
    return qEnvironmentVariable(token);
}

void setActivationToken(const QString& next) {
    qputenv(token, next.toUtf8());
}

} // namespace morrowleaf
