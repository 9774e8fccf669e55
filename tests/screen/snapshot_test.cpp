// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Result {
    int status = -1;
    QString output;
    QString errors;
};

Result snapshot(const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& name : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s}) {
        environment.remove(name);
    }
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationDirPath() + "/../tools/snapshot"_L1, arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit) {
        return {};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

TEST(Snapshot, DrawsAFrameForEachInstantWithoutADisplay) {
    const QTemporaryDir folder;
    const Result result = snapshot({u"--size"_s, u"320x200"_s, u"--dpr"_s, u"2"_s, u"--at"_s,
                                    u"0,0.5,9"_s, u"--out"_s, folder.filePath(u"new"_s),
                                    u"--quote"_s, u"One"_s, u"--author"_s, u"Two"_s});
    EXPECT_EQ(result.status, 0) << result.errors.toStdString();
    const QDir out(folder.filePath(u"new"_s));
    ASSERT_EQ(out.entryList(QDir::Files, QDir::Name),
              QStringList({u"frame-0.png"_s, u"frame-0_5.png"_s, u"frame-9.png"_s}));
    const QImage first(out.filePath(u"frame-0.png"_s));
    const QImage last(out.filePath(u"frame-9.png"_s));
    EXPECT_EQ(first.size(), QSize(640, 400));
    EXPECT_NE(first, last);
    EXPECT_EQ(result.output.count(u'\n'), 3);
}

TEST(Snapshot, AcceptsASettingsFileAndSingleSettings) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"settings.json"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"({"paletteIndex": 7, "grainEnabled": false, "vignetteStrength": 0})");
    file.close();
    const auto corner = [&](const QStringList& more) {
        const Result result = snapshot(QStringList{u"--size"_s, u"320x200"_s, u"--settings"_s,
                                                   file.fileName(), u"--out"_s, folder.path()} +
                                       more);
        EXPECT_EQ(result.status, 0);
        return QImage(folder.filePath(u"frame-6.png"_s)).pixelColor(0, 0);
    };
    EXPECT_GT(corner({}).lightness(), 220); // "Paper"
    EXPECT_LT(corner({u"--set"_s, u"paletteIndex=8"_s}).lightness(), 40);
}

TEST(Snapshot, LaysOutAContactSheet) {
    const QTemporaryDir folder;
    const QString sheet = folder.filePath(u"sheet.png"_s);
    EXPECT_EQ(snapshot({u"--size"_s, u"320x200"_s, u"--at"_s, u"0,1,2"_s, u"--columns"_s, u"2"_s,
                        u"--cell"_s, u"160"_s, u"--sheet"_s, sheet})
                  .status,
              0);
    EXPECT_EQ(QImage(sheet).width(), 2 * 160 + 3 * 12);
    EXPECT_GT(QImage(sheet).height(), 2 * 100);
}

TEST(Snapshot, ReportsInvalidArguments) {
    for (const QStringList& arguments :
         {QStringList{u"--size"_s, u"big"_s}, QStringList{u"--at"_s, u"soon"_s},
          QStringList{u"--date"_s, u"never"_s}, QStringList{u"--settings"_s, u"/nonexistent"_s},
          QStringList{u"--set"_s, u"nothing"_s}}) {
        const Result result = snapshot(arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_TRUE(result.errors.contains("snapshot: "_L1)) << arguments.join(u' ').toStdString();
    }
    EXPECT_TRUE(snapshot({u"--help"_s}).output.contains("--sheet"_L1));
}
