// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/resources.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace morrowleaf {

QString resourceFolder() {
    const QString program = QCoreApplication::applicationDirPath();
    QStringList candidates{program + "/../share/morrowleaf"};
    constexpr int deepestBuildFolder = 5;
    QString up = program;
    for (int i = 0; i < deepestBuildFolder; ++i) {
        up += "/..";
        candidates << up + "/resources";
    }
    for (const QString& candidate : candidates) {
        if (QFileInfo(candidate + "/Fonts").isDir()) {
            return QDir::cleanPath(candidate);
        }
    }
    return {};
}

QString fontFolder() {
    return resourceFolder() + "/Fonts";
}

QString backgroundFolder() {
    return resourceFolder() + "/Backgrounds";
}

QString iconFolder() {
    return resourceFolder() + "/icons";
}

} // namespace morrowleaf
