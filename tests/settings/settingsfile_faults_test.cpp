// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "tests/settings/settingsfilefixture.h"

using namespace morrowleaf;

TEST_F(SettingsFileTest, GivesABrokenFileTimeToMend) {
    write(R"({"a": 1)");
    const SettingsFile file(store, path);
    EXPECT_EQ(store.integer(u"a"_s), 0);
    spend(150ms);
    write(R"({"a": 1})");
    EXPECT_TRUE(waitFor([&] { return store.integer(u"a"_s) == 1; }));
    spend(600ms);
    EXPECT_EQ(setAside(), QStringList());
}

TEST_F(SettingsFileTest, SetsABrokenFileAsideAndKeepsWhatIsSetMeanwhile) {
    registerAppDefaults(store);
    write("not json");
    SettingsFile file(store, path);
    EXPECT_EQ(store.integer(K::palette), -1);
    store.set(K::palette, 4);
    spend(200ms);
    EXPECT_EQ(read(), "not json");
    EXPECT_TRUE(waitFor([&] { return json().value(K::palette) == 4; }));
    EXPECT_EQ(store.integer(K::palette), 4);
    ASSERT_EQ(setAside().size(), 1);
    EXPECT_EQ(asideText(), "not json");
    EXPECT_TRUE(file.flush());
}

TEST_F(SettingsFileTest, KeepsTheValuesWhenTheFileBreaksWhileRunning) {
    registerAppDefaults(store);
    write(R"({"mine": 18446744073709551615, "paletteIndex": 4})");
    SettingsFile file(store, path);
    EXPECT_EQ(store.keptFileName(), QString());
    write("[1, 2]");
    EXPECT_TRUE(waitFor([&] { return store.keptFileName() == "settings.json"_L1; }));
    EXPECT_EQ(store.get(K::palette), 4);
    spend(300ms);
    EXPECT_EQ(read(), "[1, 2]");
    EXPECT_EQ(setAside(), QStringList());

    store.set(K::grain, false);
    EXPECT_TRUE(file.flush(20s));
    EXPECT_EQ(asideText(), "[1, 2]");
    EXPECT_TRUE(waitFor([&] { return store.keptFileName() == setAside().value(0); }));
    EXPECT_EQ(store.get(K::palette), 4);
    EXPECT_EQ(
        json(),
        QJsonObject({{u"mine"_s, 18446744073709551615.0}, {K::palette, 4}, {K::grain, false}}));
    EXPECT_TRUE(read().contains("18446744073709551615"));
}

TEST_F(SettingsFileTest, KeepsTheValuesEvenWhereTheChangeIsNone) {
    write(R"({"paletteIndex": 4})");
    SettingsFile file(store, path);
    write("broken");
    EXPECT_TRUE(waitFor([&] { return !store.keptFileName().isEmpty(); }));
    store.set(K::palette, 4);
    EXPECT_TRUE(file.flush(20s));
    EXPECT_EQ(json(), QJsonObject({{K::palette, 4}}));
    spend(300ms);
    EXPECT_EQ(store.get(K::palette), 4);
}

TEST_F(SettingsFileTest, TellsThatABrokenFileHasBeenMended) {
    write(R"({"paletteIndex": 4})");
    const SettingsFile file(store, path);
    QStringList told;
    QObject::connect(&store, &SettingsStore::keptFileNameChanged,
                     [&] { told.append(store.keptFileName()); });
    write("broken");
    EXPECT_TRUE(waitFor([&] { return told == QStringList{u"settings.json"_s}; }));
    write(R"({"paletteIndex": 5})");
    EXPECT_TRUE(waitFor([&] { return told.size() == 2; }));
    EXPECT_EQ(told.last(), QString());
    EXPECT_TRUE(waitFor([&] { return store.get(K::palette) == 5; }));
    EXPECT_EQ(setAside(), QStringList());
}

TEST_F(SettingsFileTest, TellsTheNameOfAFileThatWasBrokenAtTheStart) {
    registerAppDefaults(store);
    write("broken");
    const SettingsFile file(store, path);
    EXPECT_TRUE(waitFor([&] { return !store.keptFileName().isEmpty(); }));
    EXPECT_EQ(setAside(), QStringList{store.keptFileName()});
    EXPECT_EQ(asideText(), "broken");
    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_EQ(store.get(K::palette), -1);
}

TEST_F(SettingsFileTest, SetsALinkToABrokenFileAsideAndNotTheFile) {
    const QString target = home.filePath(u"hosts"_s);
    for (const bool running : {false, true}) {
        QFile::remove(path);
        path = home.filePath(running ? u"running.json"_s : u"settings.json"_s);
        QFile foreign(target);
        ASSERT_TRUE(foreign.open(QIODevice::WriteOnly));
        foreign.write(running ? "{}" : "127.0.0.1 localhost");
        foreign.close();
        ASSERT_TRUE(QFile::link(target, path));
        SettingsFile file(store, path);
        if (running) {
            ASSERT_TRUE(foreign.open(QIODevice::WriteOnly));
            foreign.write("127.0.0.1 localhost");
            foreign.close();
            EXPECT_TRUE(waitFor([&] { return store.keptFileName() == "running.json"_L1; }));
            EXPECT_TRUE(QFileInfo(path).isSymLink());
        }
        store.set(u"x"_s, running);
        EXPECT_TRUE(file.flush(20s));
        EXPECT_EQ(read(target), "127.0.0.1 localhost");
        EXPECT_EQ(json().value("x"_L1), running);
        EXPECT_FALSE(QFileInfo(path).isSymLink());
        EXPECT_TRUE(waitFor([&] { return store.keptFileName().contains(".broken-"_L1); }));
        EXPECT_EQ(QFileInfo(home.filePath(store.keptFileName())).symLinkTarget(), target);
    }
}

TEST_F(SettingsFileTest, LeavesAFileAloneThatItsOwnerMayNotWrite) {
    for (const QByteArray& text : {QByteArray(R"({"x": 1})"), QByteArray("broken")}) {
        QFile::remove(path);
        write(text);
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0444), 0);
        SettingsFile file(store, path);
        store.set(u"x"_s, 2);
        EXPECT_FALSE(file.flush(20s));
        EXPECT_EQ(read(), text);
        EXPECT_EQ(mode(), 0444U);
        EXPECT_EQ(setAside(), QStringList());
        EXPECT_EQ(store.integer(u"x"_s), 2);
    }
}

TEST_F(SettingsFileTest, QuitsWithinASecondWhereNothingCanBeWritten) {
    write("broken");
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0444), 0);
    QElapsedTimer since;
    {
        SettingsFile file(store, path);
        store.set(u"x"_s, 2);
        since.start();
        EXPECT_FALSE(file.flush()); // as the application does when it quits
    }
    EXPECT_LE(since.elapsed(), 1000);
    EXPECT_EQ(read(), "broken");
}

TEST_F(SettingsFileTest, OverwritesNoEarlierSetAsideFile) {
    for (int i = 0; i < 3; ++i) {
        write("broken " + QByteArray::number(i));
        SettingsFile file(store, path);
        store.set(u"x"_s, i);
        EXPECT_TRUE(file.flush());
        EXPECT_EQ(json().value("x"_L1), i);
    }
    ASSERT_EQ(setAside().size(), 3);
    QStringList texts;
    for (int i = 0; i < 3; ++i) {
        texts.append(QString::fromUtf8(asideText(i)));
    }
    EXPECT_THAT(texts, testing::UnorderedElementsAre(u"broken 0"_s, u"broken 1"_s, u"broken 2"_s));
}

TEST_F(SettingsFileTest, FlushesAtTheEndEvenIntoADoubtfulFile) {
    write("broken");
    {
        const SettingsFile file(store, path);
        store.set(u"x"_s, 1);
    }
    EXPECT_EQ(json().value("x"_L1), 1);
    EXPECT_EQ(asideText(), "broken");
}

TEST_F(SettingsFileTest, LeavesABrokenFileWhenThereIsNothingToWrite) {
    write("broken");
    { const SettingsFile file(store, path); }
    EXPECT_EQ(read(), "broken");
}

TEST_F(SettingsFileTest, SetsAPipeAFolderAndAGiantAside) {
    const std::vector<std::function<void()>> obstacles = {
        [&] { ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0); },
        [&] {
            ASSERT_TRUE(QDir().mkdir(path));
            QFile inside(path + "/precious"_L1);
            ASSERT_TRUE(inside.open(QIODevice::WriteOnly));
        },
        [&] {
            write("{}");
            ASSERT_EQ(::truncate(QFile::encodeName(path).constData(), qint64(1) << 40), 0);
        },
        [&] { ASSERT_TRUE(QFile::link(path, path)); },
        [&] { ASSERT_TRUE(QFile::link(u"/dev/zero"_s, path)); }};
    for (const auto& obstacle : obstacles) {
        QFile::remove(path);
        obstacle();
        SettingsFile file(store, path);
        store.set(u"x"_s, store.integer(u"x"_s) + 1);
        EXPECT_TRUE(file.flush());
        EXPECT_EQ(json().value("x"_L1), store.integer(u"x"_s));
    }
    EXPECT_EQ(setAside().size(), qsizetype(obstacles.size()));
    EXPECT_TRUE(QFileInfo::exists(u"/dev/zero"_s));
}

TEST_F(SettingsFileTest, WritesThroughALink) {
    QDir(home.path()).mkdir(u"dotfiles"_s);
    const QString target = home.filePath(u"dotfiles/morrowleaf.json"_s);
    ASSERT_TRUE(QFile::link(u"dotfiles/morrowleaf.json"_s, path));
    {
        SettingsFile file(store, path); // a link to a missing file
        store.set(u"x"_s, 1);
        EXPECT_TRUE(file.flush());
        EXPECT_EQ(QJsonDocument::fromJson(read(target)).object().value("x"_L1), 1);

        QFile edited(target + ".new"_L1);
        ASSERT_TRUE(edited.open(QIODevice::WriteOnly));
        edited.write(R"({"x": 2})");
        edited.close();
        std::rename(QFile::encodeName(edited.fileName()).constData(),
                    QFile::encodeName(target).constData());
        EXPECT_TRUE(waitFor([&] { return store.integer(u"x"_s) == 2; }));
        store.set(u"x"_s, 3);
    }
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_EQ(QJsonDocument::fromJson(read(target)).object().value("x"_L1), 3);
}

TEST_F(SettingsFileTest, StaysInMemoryWhereALinkLeadsNowhere) {
    ASSERT_TRUE(QFile::link(home.filePath(u"unmounted/settings.json"_s), path));
    SettingsFile file(store, path);
    store.set(u"x"_s, 1);
    EXPECT_FALSE(file.flush());
    EXPECT_EQ(store.integer(u"x"_s), 1);
    EXPECT_TRUE(QFileInfo(path).isSymLink());
}

TEST_F(SettingsFileTest, KeepsPermissions) {
    write("{}");
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0644), 0);
    SettingsFile file(store, path);
    store.set(u"x"_s, 1);
    EXPECT_TRUE(file.flush());
    EXPECT_EQ(mode(), 0644U);
}

TEST_F(SettingsFileTest, KeepsTheOwner) {
    write("{}");
    const QByteArray name = QFile::encodeName(path);
    if (::chown(name.constData(), 1234, 4321) != 0) {
        GTEST_SKIP() << "only root can give files away";
    }
    SettingsFile file(store, path);
    store.set(u"x"_s, 1);
    EXPECT_TRUE(file.flush(20s));
    struct stat found {};
    ASSERT_EQ(::stat(name.constData(), &found), 0);
    EXPECT_EQ(found.st_uid, 1234U);
    EXPECT_EQ(found.st_gid, 4321U);
}

TEST_F(SettingsFileTest, WorksInMemoryWhereNoFolderCanBe) {
    write("a regular file");
    registerAppDefaults(store);
    SettingsFile file(store, path + "/morrowleaf/settings.json"_L1);
    EXPECT_EQ(store.integer(K::palette), -1);
    store.set(K::palette, 3);
    EXPECT_FALSE(file.flush());
    spend(100ms);
    EXPECT_EQ(store.integer(K::palette), 3);
    EXPECT_EQ(read(), "a regular file");
}

TEST_F(SettingsFileTest, WritesOnceTheObstacleIsGone) {
    const QString obstacle = home.filePath(u"folder"_s);
    path = obstacle;
    write("in the way");
    path = obstacle + "/settings.json"_L1;
    SettingsFile file(store, path);
    store.set(u"x"_s, 1);
    EXPECT_FALSE(file.flush());
    QFile::remove(obstacle);
    EXPECT_TRUE(waitFor([&] { return json().value("x"_L1) == 1; })); // by its own retry
}

TEST_F(SettingsFileTest, GoesOnWithoutAStuckLock) {
    write("{}");
    QProcess holder;
    holder.start(settingsWriter(), {path, u"hold"_s});
    ASSERT_TRUE(holder.waitForReadyRead(20'000));
    ASSERT_EQ(holder.readAllStandardOutput(), "held\n");
    SettingsFile file(store, path);
    store.set(u"x"_s, 1);
    QElapsedTimer since;
    since.start();
    EXPECT_TRUE(file.flush(3s));
    EXPECT_GE(since.elapsed(), 200); // it did wait for the lock
    EXPECT_EQ(json().value("x"_L1), 1);
    holder.kill();
    holder.waitForFinished();
    QLockFile lock(lockPathOf(path));
    EXPECT_TRUE(lock.tryLock(5s / 1ms)); // a dead process holds no lock
}

TEST_F(SettingsFileTest, QuitsWithinASecondWhileItWaitsForAStuckLock) {
    write("{}");
    QProcess holder;
    holder.start(settingsWriter(), {path, u"hold"_s});
    ASSERT_TRUE(holder.waitForReadyRead(20'000));
    ASSERT_EQ(holder.readAllStandardOutput(), "held\n");
    QElapsedTimer since;
    {
        SettingsFile file(store, path);
        store.set(u"x"_s, 1);
        spend(300ms); // long enough for the write to begin
        store.set(u"y"_s, 2);
        since.start();
        EXPECT_TRUE(file.flush()); // as the application does when it quits
    }
    EXPECT_LE(since.elapsed(), 1500); // two waits of 0.4 s
    EXPECT_EQ(json(), QJsonObject({{u"x"_s, 1}, {u"y"_s, 2}}));
    holder.kill();
    holder.waitForFinished();
}

TEST_F(SettingsFileTest, TwoProcessesKeepEachOthersChanges) {
    SettingsFile file(store, path);
    QProcess one;
    QProcess two;
    one.start(settingsWriter(), {path, u"count"_s, u"a"_s, u"60"_s});
    two.start(settingsWriter(), {path, u"count"_s, u"b"_s, u"60"_s});
    for (int i = 0; i < 60; ++i) {
        store.set(u"c%1"_s.arg(i), i);
        spend(5ms);
    }
    EXPECT_TRUE(waitFor([&] {
        return one.state() == QProcess::NotRunning && two.state() == QProcess::NotRunning;
    }));
    EXPECT_EQ(one.exitCode(), 0);
    EXPECT_EQ(two.exitCode(), 0);
    EXPECT_TRUE(file.flush());
    EXPECT_TRUE(waitFor([&] { return store.stored().size() == 180; }));
    EXPECT_EQ(json(), store.stored());
}

TEST_F(SettingsFileTest, ASelfTestBesideIsSeen) {
    SettingsFile file(store, path);
    store.set(K::frequency, u"6h"_s);
    store.set(K::palette, 2);
    ASSERT_TRUE(file.flush());
    EXPECT_EQ(QProcess::execute(settingsWriter(), {path, u"selftest"_s}), 0);
    EXPECT_EQ(json(), QJsonObject({{K::palette, 2}}));
    EXPECT_TRUE(waitFor([&] { return !store.value(K::frequency); }));
    EXPECT_EQ(store.integer(K::palette), 2);
}

TEST_F(SettingsFileTest, FlushesWhenTheApplicationQuits) {
    EXPECT_EQ(QProcess::execute(settingsWriter(), {path, u"quit"_s}), 0);
    EXPECT_EQ(json().value("quit"_L1), true);
}

TEST_F(SettingsFileTest, NoReaderSeesHalfAFile) {
    write("{}");
    QProcess writer;
    writer.start(settingsWriter(), {path, u"count"_s, QString(3000, u'k'), u"100"_s});
    int seen = 0;
    while (writer.state() != QProcess::NotRunning) {
        const QByteArray text = read();
        EXPECT_TRUE(QJsonDocument::fromJson(text).isObject()) << text.size();
        ++seen;
        writer.waitForFinished(0);
    }
    EXPECT_GT(seen, 10);
    EXPECT_EQ(json().size(), 100);
    EXPECT_EQ(QDir(home.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList{u"settings.json"_s});
}

TEST(SettingsPath, IsBelowTheConfigurationFolder) {
    EXPECT_TRUE(defaultSettingsPath().endsWith("/morrowleaf/settings.json"_L1));
    EXPECT_TRUE(QDir::isAbsolutePath(defaultSettingsPath()));
}
