// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/autostart.h"

#include "platform/linux/desktopentry.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace morrowleaf {
namespace {

using Status = LoginItem::Status;

class AutostartTest : public testing::Test {
protected:
    AutostartTest() {
        QDir().mkpath(system);
        QFile file(program);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        item = makeAutostart({.userFolder = user, .systemFolders = {system}, .program = program});
    }
    static void write(const QString& path, const QString& text) {
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    }
    static QString entry(const QString& more) {
        return "[Desktop Entry]\nType=Application\nName=Morrowleaf\nExec=morrowleaf\n" + more;
    }

    QTemporaryDir dir;
    const QString name = "/org.morrowleaf.Morrowleaf.desktop";
    const QString user = dir.filePath("config home/autostart");
    const QString system = dir.filePath("xdg/autostart");
    const QString program = dir.filePath("morrow leaf");
    std::unique_ptr<LoginItem> item;
};

TEST_F(AutostartTest, RegistersAndUnregisters) {
    EXPECT_EQ(item->status(), Status::NotRegistered);
    EXPECT_FALSE(item->registerItem());
    EXPECT_EQ(item->status(), Status::Enabled);
    const auto written = readDesktopEntry(user + name);
    ASSERT_TRUE(written);
    EXPECT_EQ(written->value("Exec"), '"' + program + '"');
    EXPECT_EQ(written->value("TryExec"), program);
    EXPECT_EQ(written->value("Type"), "Application");
    EXPECT_FALSE(item->registerItem());
    EXPECT_EQ(item->status(), Status::Enabled);
    EXPECT_FALSE(item->unregisterItem());
    EXPECT_EQ(item->status(), Status::NotRegistered);
    EXPECT_FALSE(QFile::exists(user + name));
    EXPECT_FALSE(item->unregisterItem());
}

TEST_F(AutostartTest, SwitchedOffElsewhereIsNotEnabled) {
    write(user + name, entry("X-GNOME-Autostart-enabled=false\n"));
    EXPECT_EQ(item->status(), Status::RequiresApproval);
    write(user + name, entry("Hidden=true\n"));
    EXPECT_EQ(item->status(), Status::NotRegistered);
    EXPECT_FALSE(item->registerItem());
    EXPECT_EQ(item->status(), Status::Enabled);
}

TEST_F(AutostartTest, AProgramThatCannotBeRunIsNotEnabled) {
    QFile::remove(program);
    EXPECT_FALSE(item->registerItem());
    EXPECT_EQ(item->status(), Status::RequiresApproval);
    write(user + name, entry("TryExec=sh\n"));
    EXPECT_EQ(item->status(), Status::Enabled);
    write(user + name, entry("TryExec=no-such-program-anywhere\n"));
    EXPECT_EQ(item->status(), Status::RequiresApproval);
}

TEST_F(AutostartTest, TheSystemsEntryCountsAndIsHiddenByTheUsers) {
    write(system + name, entry(""));
    EXPECT_EQ(item->status(), Status::Enabled);
    EXPECT_FALSE(item->unregisterItem());
    EXPECT_EQ(item->status(), Status::NotRegistered);
    EXPECT_EQ(readDesktopEntry(user + name)->value("Hidden"), "true");
    EXPECT_FALSE(item->registerItem());
    EXPECT_EQ(item->status(), Status::Enabled);
}

TEST_F(AutostartTest, AFailureSpeaksTheSystemsWords) {
    QDir().mkpath(QFileInfo(user).absolutePath());
    write(user, "a file where the folder should be");
    const auto error = item->registerItem();
    ASSERT_TRUE(error);
    EXPECT_FALSE(error->isEmpty());
    EXPECT_EQ(item->status(), Status::NotRegistered);
}

TEST_F(AutostartTest, APipeInItsPlaceDoesNotBlock) {
    QDir().mkpath(user);
    ASSERT_EQ(mkfifo(qPrintable(user + name), 0600), 0);
    EXPECT_EQ(item->status(), Status::NotRegistered);
}

TEST(DesktopEntry, QuotesWhatCommandsCannotHold) {
    EXPECT_EQ(desktopCommand("/opt/a b/run"), "\"/opt/a b/run\"");
    EXPECT_EQ(desktopCommand("/a$b`c\"d\\e%f"), R"("/a\\$b\\`c\\"d\\\\e%%f")");
    EXPECT_EQ(desktopString("/a\\b"), R"(/a\\b)");
}

TEST(DesktopEntry, ReadsItsGroupAlone) {
    QTemporaryDir dir;
    QFile file(dir.filePath("x.desktop"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("# Hidden=true\n[Other]\nHidden=true\n[Desktop Entry]\n Name = A\\sB\n"
               "#Hidden=true\nHidden=false\n[Desktop Action x]\nName=Other\n");
    file.close();
    const auto entry = readDesktopEntry(file.fileName());
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->value("Name"), "A B");
    EXPECT_EQ(entry->value("Hidden"), "false");
    EXPECT_FALSE(readDesktopEntry(dir.filePath("none")));
}

} // namespace
} // namespace morrowleaf
