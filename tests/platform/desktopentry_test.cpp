// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/desktopentry.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;

class DesktopEntryTest : public testing::Test {
protected:
    std::optional<QMap<QString, QString>> read(const QByteArray& contents) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
        file.close();
        return readDesktopEntry(path);
    }
    // The value of the key "Name" that is spelled in this way.
    QString valueOf(const QByteArray& spelling) {
        return read("[Desktop Entry]\nName=" + spelling + '\n')->value(u"Name"_s);
    }

    QTemporaryDir dir;
    const QString path = dir.filePath(u"x.desktop"_s);
};

TEST_F(DesktopEntryTest, ReadsItsGroupOnly) {
    const auto entry = read("# Hidden=true\n[Other]\nHidden=true\n[Desktop Entry]\n Name = A B\n"
                            "#Hidden=true\nHidden=false\n[Desktop Action x]\nName=Other\n");
    ASSERT_TRUE(entry);
    EXPECT_EQ(*entry, (QMap<QString, QString>{{u"Name"_s, u"A B"_s}, {u"Hidden"_s, u"false"_s}}));
}

TEST_F(DesktopEntryTest, UnescapesValues) {
    EXPECT_EQ(valueOf(R"(a\sb\nc\td\re\\f)"), u"a b\nc\td\re\\f"_s);
    EXPECT_EQ(valueOf(R"(\q)"), u"q"_s);
    EXPECT_EQ(valueOf(R"(end\)"), u"end\\"_s);
    EXPECT_EQ(valueOf("a=b=c"), u"a=b=c"_s);
    EXPECT_EQ(valueOf("\xC3\xA9"), u"\u00E9"_s);
    EXPECT_EQ(valueOf(""), QString());
}

TEST_F(DesktopEntryTest, TheLastOfTwoEqualKeysCounts) {
    EXPECT_EQ(read("[Desktop Entry]\nName=A\nName=B\n")->value(u"Name"_s), u"B"_s);
    EXPECT_EQ(read("[Desktop Entry]\nName=A\r\nHidden=true\r\n")->value(u"Name"_s), u"A"_s);
}

TEST_F(DesktopEntryTest, LinesWithoutAKeyAreSkipped) {
    EXPECT_EQ(read("[Desktop Entry]\n=A\nName\n\n[\nHidden=true\n"), (QMap<QString, QString>()));
}

TEST_F(DesktopEntryTest, RejectsWhatIsNoEntry) {
    EXPECT_FALSE(read(""));
    EXPECT_FALSE(read("Name=A\n[Desktop Entry\nName=A\n[desktop entry]\nName=A\n"));
    EXPECT_FALSE(readDesktopEntry(dir.filePath(u"missing"_s)));
    EXPECT_FALSE(readDesktopEntry(dir.path()));
    const QString pipe = dir.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    EXPECT_FALSE(readDesktopEntry(pipe));
}

TEST_F(DesktopEntryTest, ReadsNoMoreThan64KiB) {
    const auto entry =
        read("[Desktop Entry]\nName=A\n#" + QByteArray(64 * 1024, 'x') + "\nHidden=true\n");
    ASSERT_TRUE(entry);
    EXPECT_TRUE(entry->contains(u"Name"_s));
    EXPECT_FALSE(entry->contains(u"Hidden"_s));
}

TEST_F(DesktopEntryTest, WhatIsWrittenIsReadBack) {
    const QString text = u" a\\b\tc\nd\re\u00E9 "_s;
    EXPECT_EQ(valueOf(desktopString(text).toUtf8()).trimmed(), text.trimmed());
    EXPECT_EQ(valueOf(desktopString(u" a"_s).toUtf8()), u" a"_s);
}

TEST_F(DesktopEntryTest, QuotesWhatCommandsCannotContain) {
    EXPECT_EQ(desktopCommand(u"/opt/a b/run"_s), u"\"/opt/a b/run\""_s);
    EXPECT_EQ(desktopCommand(u"/a$b`c\"d\\e%f"_s), uR"("/a\\$b\\`c\\"d\\\\e%%f")"_s);
    EXPECT_EQ(desktopString(u"/a\\b"_s), uR"(/a\\b)"_s);
}

} // namespace
} // namespace morrowleaf
