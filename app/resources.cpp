// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/resources.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

QString resourceFolder() {
    const QString program = QCoreApplication::applicationDirPath();
    QStringList candidates{program + "/../share/morrowleaf"_L1};
    constexpr int deepestBuildFolder = 5;
    QString up = program;
    for (int i = 0; i < deepestBuildFolder; ++i) {
        up += "/.."_L1;
        candidates << up + "/resources"_L1;
    }
    for (const QString& candidate : candidates) {
        if (QFileInfo(candidate + "/Fonts"_L1).isDir()) {
            return QDir::cleanPath(candidate);
        }
    }
    return {};
}

namespace {

// Without resources, "/Fonts" would lead to the root folder.
QString subfolder(const QString& resources, QLatin1StringView name) {
    return resources.isEmpty() ? QString() : resources + u'/' + name;
}

} // namespace

QString fontFolder(const QString& resources) {
    return subfolder(resources, "Fonts"_L1);
}

QString backgroundFolder(const QString& resources) {
    return subfolder(resources, "Backgrounds"_L1);
}

} // namespace morrowleaf
