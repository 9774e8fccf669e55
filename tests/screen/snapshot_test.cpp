// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct Result {
    int status = -1;
    QString output;
    QString errors;
};

Result snapshot(const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(name);
    }
    process.setProcessEnvironment(environment);
    process.start(SNAPSHOT_PROGRAM, arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit) {
        return {};
    }
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

TEST(Snapshot, DrawsAFrameForEachInstantWithoutADisplay) {
    const QTemporaryDir folder;
    const Result result = snapshot({"--size", "320x200", "--dpr", "2", "--at", "0,0.5,9", "--out",
                                    folder.filePath("new"), "--quote", "One", "--author", "Two"});
    EXPECT_EQ(result.status, 0) << result.errors.toStdString();
    const QDir out(folder.filePath("new"));
    ASSERT_EQ(out.entryList(QDir::Files, QDir::Name),
              QStringList({"frame-0.png", "frame-0_5.png", "frame-9.png"}));
    const QImage first(out.filePath("frame-0.png"));
    const QImage last(out.filePath("frame-9.png"));
    EXPECT_EQ(first.size(), QSize(640, 400));
    EXPECT_NE(first, last);
    EXPECT_EQ(result.output.count('\n'), 3);
}

TEST(Snapshot, TakesASettingsFileAndSingleSettings) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("settings.json"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"({"paletteIndex": 7, "grainEnabled": false, "vignetteStrength": 0})");
    file.close();
    const auto corner = [&](const QStringList& more) {
        const Result result = snapshot(QStringList{"--size", "320x200", "--settings",
                                                   file.fileName(), "--out", folder.path()} +
                                       more);
        EXPECT_EQ(result.status, 0);
        return QImage(folder.filePath("frame-6.png")).pixelColor(0, 0);
    };
    EXPECT_GT(corner({}).lightness(), 220); // "Paper"
    EXPECT_LT(corner({"--set", "paletteIndex=8"}).lightness(), 40);
}

TEST(Snapshot, LaysOutAContactSheet) {
    const QTemporaryDir folder;
    const QString sheet = folder.filePath("sheet.png");
    EXPECT_EQ(snapshot({"--size", "320x200", "--at", "0,1,2", "--columns", "2", "--cell", "160",
                        "--sheet", sheet})
                  .status,
              0);
    EXPECT_EQ(QImage(sheet).width(), 2 * 160 + 3 * 12);
    EXPECT_GT(QImage(sheet).height(), 2 * 100);
}

TEST(Snapshot, SaysWhatIsWrong) {
    for (const QStringList& arguments :
         {QStringList{"--size", "big"}, QStringList{"--at", "soon"}, QStringList{"--date", "never"},
          QStringList{"--settings", "/nonexistent"}, QStringList{"--set", "nothing"}}) {
        const Result result = snapshot(arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_TRUE(result.errors.contains("snapshot: ")) << arguments.join(' ').toStdString();
    }
    EXPECT_TRUE(snapshot({"--help"}).output.contains("--sheet"));
}
