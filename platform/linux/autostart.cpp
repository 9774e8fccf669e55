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

namespace {

const QString fileName = "org.morrowleaf.Morrowleaf.desktop";

QString entryThatStarts(const QString& program) {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Morrowleaf\n"
           "Comment=Greets you with one quotation\n"
           "Icon=org.morrowleaf.Morrowleaf\n"
           "TryExec=" +
           desktopString(program) +
           "\n"
           "Exec=" +
           desktopCommand(program) +
           "\n"
           "X-GNOME-Autostart-enabled=true\n";
}

const char* const entryThatHides = "[Desktop Entry]\n"
                                   "Type=Application\n"
                                   "Name=Morrowleaf\n"
                                   "Hidden=true\n";

std::optional<QString> writeWhole(const QString& path, const QString& text) {
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

// This program's file. Where a newer one has taken its place since the start,
// the kernel still tells the old one's fate.
QString ownProgram() {
    const QString mark = " (deleted)";
    QString program = QFileInfo("/proc/self/exe").symLinkTarget();
    if (program.endsWith(mark) && !QFileInfo::exists(program)) {
        program.chop(mark.size());
    }
    return program;
}

bool canBeRun(const QString& program) {
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
        if (!entry || entry->value("Hidden") == "true") {
            return Status::NotRegistered;
        }
        const auto tryExec = entry->find("TryExec");
        const bool runs = tryExec == entry->end() || canBeRun(*tryExec);
        const bool switchedOff = entry->value("X-GNOME-Autostart-enabled") == "false";
        return runs && !switchedOff ? Status::Enabled : Status::RequiresApproval;
    }

    std::optional<QString> registerItem() override {
        return writeWhole(userFile(), entryThatStarts(places_.program));
    }

    std::optional<QString> unregisterItem() override {
        if (!systemFile().isEmpty()) {
            return writeWhole(userFile(), entryThatHides);
        }
        QFile file(userFile());
        if (file.remove() || !file.exists()) {
            return std::nullopt;
        }
        return file.errorString();
    }

private:
    QString userFile() const { return places_.userFolder + '/' + fileName; }
    QString systemFile() const {
        for (const QString& folder : places_.systemFolders) {
            QString path = folder + '/' + fileName;
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
    // The variables themselves: not every way of starting makes an application
    // object first.
    QString config = qEnvironmentVariable("XDG_CONFIG_HOME");
    if (!QDir::isAbsolutePath(config)) {
        config = QDir::homePath() + "/.config";
    }
    QStringList systemFolders;
    const QStringList roots =
        qEnvironmentVariable("XDG_CONFIG_DIRS", "/etc/xdg").split(':', Qt::SkipEmptyParts);
    for (const QString& root : roots) {
        systemFolders << root + "/autostart";
    }
    return {.userFolder = config + "/autostart",
            .systemFolders = systemFolders,
            .program = ownProgram()};
}

std::unique_ptr<LoginItem> makeAutostart(AutostartPlaces places) {
    return std::make_unique<Autostart>(std::move(places));
}

} // namespace morrowleaf
