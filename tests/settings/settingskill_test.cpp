// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// A process that writes settings is killed again and again at random moments.

#include "tests/settings/settingsfilefixture.h"

#include <random>

using namespace morrowleaf;

TEST_F(SettingsFileTest, LosesNothingWhenItIsKilled) {
    constexpr int kills = 220;
    std::mt19937 random(1);
    std::uniform_int_distribution<int> moment(0, 60); // milliseconds after the first write
    int confirmed = 0;
    for (int kill = 0; kill < kills; ++kill) {
        const QString prefix = QString::number(kill) + u'_';
        QProcess writer;
        writer.start(settingsWriter(), {path, u"confirm"_s, prefix});
        ASSERT_TRUE(writer.waitForReadyRead(60'000));
        QThread::msleep(static_cast<unsigned long>(moment(random)));
        writer.kill();
        ASSERT_TRUE(writer.waitForFinished(60'000));
        const QByteArrayList lines = writer.readAllStandardOutput().split('\n');
        const QJsonDocument document = QJsonDocument::fromJson(read());
        ASSERT_TRUE(document.isObject()) << "torn by kill " << kill;
        const QJsonObject values = document.object();
        for (qsizetype i = 0; i + 1 < lines.size(); ++i) { // each ends with a line break
            ASSERT_TRUE(values.contains(prefix + QString::fromLatin1(lines[i])))
                << "lost by kill " << kill;
            ++confirmed;
        }
        ASSERT_GE(values.size(), confirmed);
    }
    EXPECT_GE(confirmed, kills);
    SettingsFile file(store, path);
    store.set(u"last"_s, true);
    EXPECT_TRUE(file.flush(20s));
    EXPECT_GE(json().size(), confirmed + 1);
}
