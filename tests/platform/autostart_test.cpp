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

using namespace Qt::Literals::StringLiterals;
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
        return u"[Desktop Entry]\nType=Application\nName=Morrowleaf\nExec=morrowleaf\n"_s + more;
    }

    QTemporaryDir dir;
    const QString name = u"/org.morrowleaf.Morrowleaf.desktop"_s;
    const QString user = dir.filePath(u"config home/autostart"_s);
    const QString system = dir.filePath(u"xdg/autostart"_s);
    const QString program = dir.filePath(u"morrow leaf"_s);
    std::unique_ptr<LoginItem> item;
};

TEST_F(AutostartTest, RegistersAndUnregisters) {
    EXPECT_EQ(item->status(), Status::NotRegistered);
    EXPECT_FALSE(item->registerItem());
    EXPECT_EQ(item->status(), Status::Enabled);
    const auto written = readDesktopEntry(user + name);
    ASSERT_TRUE(written);
    EXPECT_EQ(written->value(u"Exec"_s), u'"' + program + u'"');
    EXPECT_EQ(written->value(u"TryExec"_s), program);
    EXPECT_EQ(written->value(u"Type"_s), u"Application"_s);
    EXPECT_FALSE(item->registerItem());
    EXPECT_EQ(item->status(), Status::Enabled);
    EXPECT_FALSE(item->unregisterItem());
    EXPECT_EQ(item->status(), Status::NotRegistered);
    EXPECT_FALSE(QFile::exists(user + name));
    EXPECT_FALSE(item->unregisterItem());
}

TEST_F(AutostartTest, SwitchedOffElsewhereIsNotEnabled) {
    write(user + name, entry(u"X-GNOME-Autostart-enabled=false\n"_s));
    EXPECT_EQ(item->status(), Status::RequiresApproval);
    write(user + name, entry(u"Hidden=true\n"_s));
    EXPECT_EQ(item->status(), Status::NotRegistered);
    EXPECT_FALSE(item->registerItem());
    EXPECT_EQ(item->status(), Status::Enabled);
}

TEST_F(AutostartTest, AProgramThatCannotBeRunIsNotEnabled) {
    QFile::remove(program);
    EXPECT_FALSE(item->registerItem());
    EXPECT_EQ(item->status(), Status::RequiresApproval);
    write(user + name, entry(u"TryExec=sh\n"_s));
    EXPECT_EQ(item->status(), Status::Enabled);
    write(user + name, entry(u"TryExec=no-such-program-anywhere\n"_s));
    EXPECT_EQ(item->status(), Status::RequiresApproval);
}

TEST_F(AutostartTest, TheSystemsEntryCountsAndIsHiddenByTheUsers) {
    write(system + name, entry({}));
    EXPECT_EQ(item->status(), Status::Enabled);
    EXPECT_FALSE(item->unregisterItem());
    EXPECT_EQ(item->status(), Status::NotRegistered);
    EXPECT_EQ(readDesktopEntry(user + name)->value(u"Hidden"_s), u"true"_s);
    EXPECT_FALSE(item->registerItem());
    EXPECT_EQ(item->status(), Status::Enabled);
}

TEST_F(AutostartTest, AFailureSpeaksTheSystemsWords) {
    QDir().mkpath(QFileInfo(user).absolutePath());
    write(user, u"a file where the folder should be"_s);
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

} // namespace
} // namespace morrowleaf
