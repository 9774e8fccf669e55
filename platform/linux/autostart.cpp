// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/autostart.h"

#include "platform/linux/desktopentry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <filesystem>
#include <utility>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString fileName = u"org.morrowleaf.Morrowleaf.desktop"_s;

QString startingEntry(const QString& program) {
    return u"[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Morrowleaf\n"
           "Comment=Greets you with one quotation\n"
           "Icon=org.morrowleaf.Morrowleaf\n"
           "TryExec=%1\n"
           "Exec=%2\n"
           "X-GNOME-Autostart-enabled=true\n"_s.arg(desktopString(program),
                                                    desktopCommand(program));
}

const QString hidingEntry = u"[Desktop Entry]\n"
                            "Type=Application\n"
                            "Name=Morrowleaf\n"
                            "Hidden=true\n"_s;

// Returns the system's error message, std::nullopt on success.
std::optional<QString> writeEntry(const QString& path, const QString& text) {
    std::error_code error;
    std::filesystem::create_directories(
        QFile::encodeName(QFileInfo(path).absolutePath()).toStdString(), error);
    if (error) {
        return QString::fromStdString(error.message());
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.commit()) {
        return file.errorString();
    }
    return std::nullopt;
}

// The path of this program. If a newer version has replaced the file since the start, the
// kernel marks the old path as deleted.
QString ownProgram() {
    const auto mark = " (deleted)"_L1;
    QString program = QFileInfo(u"/proc/self/exe"_s).symLinkTarget();
    if (program.endsWith(mark) && !QFileInfo::exists(program)) {
        program.chop(mark.size());
    }
    return program;
}

bool isRunnable(const QString& program) {
    if (QDir::isAbsolutePath(program)) {
        const QFileInfo file(program);
        return file.isFile() && file.isExecutable();
    }
    return !QStandardPaths::findExecutable(program).isEmpty();
}

class Autostart final : public LoginItem {
public:
    explicit Autostart(AutostartPlaces places)
        : places_(std::move(places)) {}

    Status status() const override {
        const auto entry = readDesktopEntry(effectiveFile());
        if (!entry || entry->value(u"Hidden"_s) == "true"_L1) {
            return Status::NotRegistered;
        }
        const auto tryExec = entry->find(u"TryExec"_s);
        const bool runs = tryExec == entry->end() || isRunnable(*tryExec);
        const bool switchedOff = entry->value(u"X-GNOME-Autostart-enabled"_s) == "false"_L1;
        return runs && !switchedOff ? Status::Enabled : Status::RequiresApproval;
    }

    std::optional<QString> registerItem() override {
        return writeEntry(userFile(), startingEntry(places_.program));
    }

    std::optional<QString> unregisterItem() override {
        if (!systemFile().isEmpty()) {
            return writeEntry(userFile(), hidingEntry);
        }
        QFile file(userFile());
        if (file.remove() || !file.exists()) {
            return std::nullopt;
        }
        return file.errorString();
    }

private:
    QString userFile() const { return places_.userFolder + u'/' + fileName; }
    QString systemFile() const {
        for (const QString& folder : places_.systemFolders) {
            QString path = folder + u'/' + fileName;
            if (QFileInfo(path).isFile()) {
                return path;
            }
        }
        return {};
    }
    QString effectiveFile() const {
        return QFileInfo::exists(userFile()) ? userFile() : systemFile();
    }

    AutostartPlaces places_;
};

} // namespace

AutostartPlaces autostartPlaces() {
    // QStandardPaths depends on the application object.
    QString config = qEnvironmentVariable("XDG_CONFIG_HOME");
    if (!QDir::isAbsolutePath(config)) {
        config = QDir::homePath() + "/.config"_L1;
    }
    QStringList systemFolders;
    const QStringList roots =
        qEnvironmentVariable("XDG_CONFIG_DIRS", u"/etc/xdg"_s).split(u':', Qt::SkipEmptyParts);
    for (const QString& root : roots) {
        systemFolders << root + "/autostart"_L1;
    }
    return {.userFolder = config + "/autostart"_L1,
            .systemFolders = systemFolders,
            .program = ownProgram()};
}

std::unique_ptr<LoginItem> makeAutostart(AutostartPlaces places) {
    return std::make_unique<Autostart>(std::move(places));
}

} // namespace morrowleaf
