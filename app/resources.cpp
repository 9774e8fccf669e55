#include "app/resources.h"

#include <QDir>
#include <QFileInfo>

namespace morrowleaf {

namespace {

// Works before there is an application object.
QString programFolder() {
    return QFileInfo(QFileInfo("/proc/self/exe").canonicalFilePath()).absolutePath();
}

} // namespace

QString resourceFolder() {
    const QString here = programFolder();
    for (const QString& candidate :
         {here + "/../share/morrowleaf", here + "/../resources", here + "/../../../resources"}) {
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
