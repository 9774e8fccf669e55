// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/resources.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

QStringList placesOfResources(const QString& programFolder) {
    const bool isInBundle = programFolder.endsWith("/Contents/MacOS"_L1);
    const auto besideProgram = isInBundle ? "/../Resources"_L1 : "/../share/morrowleaf"_L1;
    QStringList places{QDir::cleanPath(programFolder + besideProgram)};
    constexpr int deepestBuildFolder = 5;
    QString up = programFolder;
    for (int i = 0; i < deepestBuildFolder; ++i) {
        up = QDir::cleanPath(up + "/.."_L1);
        if (QDir(up).isRoot()) {
            break;
        }
        places << up + "/resources"_L1;
    }
    return places;
}

QString resourceFolder() {
    for (const QString& place : placesOfResources(QCoreApplication::applicationDirPath())) {
        if (QFileInfo(place + "/Fonts"_L1).isDir()) {
            return place;
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
