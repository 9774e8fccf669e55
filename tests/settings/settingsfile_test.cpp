// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "tests/settings/settingsfilefixture.h"

using namespace morrowleaf;

TEST_F(SettingsFileTest, StartsWithWhatIsThere) {
    write(R"({"paletteIndex": 3, "customBackgrounds": ["one"]})");
    const SettingsFile file(store, path);
    EXPECT_EQ(store.integer(K::palette), 3);
    EXPECT_EQ(store.textList(K::customBGs), QStringList{u"one"_s});
    EXPECT_TRUE(file.parent() == nullptr);
}

TEST_F(SettingsFileTest, CreatesNothingUntilSomethingIsSet) {
    path = home.filePath(u"a/b/settings.json"_s);
    {
        SettingsFile file(store, path);
        store.remove(K::palette);
        EXPECT_TRUE(file.flush());
    }
    EXPECT_FALSE(QFileInfo::exists(path));
    {
        const SettingsFile file(store, path);
        store.set(K::palette, 2);
    }
    EXPECT_EQ(json(), QJsonObject({{K::palette, 2}}));
    EXPECT_EQ(mode(), 0600U);
    struct stat folder {};
    ::stat(QFile::encodeName(home.filePath(u"a"_s)).constData(), &folder);
    EXPECT_EQ(folder.st_mode & 0777, 0700U);
}

TEST_F(SettingsFileTest, WritesByItself) {
    const SettingsFile file(store, path);
    store.set(K::textScale, 1.25);
    EXPECT_TRUE(waitFor([&] { return json().value(K::textScale) == 1.25; }));
}

TEST_F(SettingsFileTest, StoresAValueThatEqualsItsDefault) {
    registerAppDefaults(store);
    SettingsFile file(store, path);
    store.set(K::font, u"fraunces"_s);
    EXPECT_TRUE(file.flush());
    EXPECT_EQ(json(), QJsonObject({{K::font, u"fraunces"_s}}));
}

TEST_F(SettingsFileTest, CoalescesABurst) {
    SettingsFile file(store, path);
    ASSERT_TRUE((store.set(u"x"_s, -1), file.flush()));
    // A replaced file has another inode, or at least another time.
    int replaced = 0;
    std::atomic<bool> stop = false;
    std::thread observer([&] {
        QByteArray last;
        while (!stop) {
            const QByteArray now = read();
            replaced += now != last ? 1 : 0;
            last = now;
        }
    });
    for (int i = 0; i < 1000; ++i) {
        store.set(u"x"_s, i);
    }
    EXPECT_TRUE(file.flush());
    stop = true;
    observer.join();
    EXPECT_EQ(json().value("x"_L1), 999);
    EXPECT_LE(replaced, 20);
}

TEST_F(SettingsFileTest, KeepsUnknownKeysInTheirOrder) {
    write(R"({"mine": {"z": [1.50, null], "a": "x"}, "paletteIndex": 1, "n": 9007199254740993})");
    SettingsFile file(store, path);
    store.set(K::palette, 2);
    EXPECT_TRUE(file.flush(20s));
    const QByteArray packed = read().replace(' ', "").replace('\n', "");
    EXPECT_EQ(packed, R"({"mine":{"z":[1.5,null],"a":"x"},"paletteIndex":2,"n":9007199254740993})");
}

TEST_F(SettingsFileTest, SeesReplacementAndRewritingAgainAndAgain) {
    write(R"({"x": 0})");
    const SettingsFile file(store, path);
    for (int i = 1; i <= 6; ++i) {
        const QByteArray text = "{\"x\": " + QByteArray::number(i) + "}";
        i % 2 == 0 ? write(text) : replace(text);
        EXPECT_TRUE(waitFor([&] { return store.integer(u"x"_s) == i; })) << i;
    }
}

TEST_F(SettingsFileTest, SeesAFileThatAppearsWithItsFolder) {
    path = home.filePath(u"a/b/settings.json"_s);
    const SettingsFile file(store, path);
    spend(50ms);
    QDir(home.path()).mkpath(u"a/b"_s);
    spend(100ms);
    write(R"({"x": 1})");
    EXPECT_TRUE(waitFor([&] { return store.integer(u"x"_s) == 1; }));
}

TEST_F(SettingsFileTest, SeesTheFileAndItsFolderVanish) {
    path = home.filePath(u"a/settings.json"_s);
    registerAppDefaults(store);
    SettingsFile file(store, path);
    store.set(K::palette, 5);
    ASSERT_TRUE(file.flush());
    QDir(home.filePath(u"a"_s)).removeRecursively();
    EXPECT_TRUE(waitFor([&] { return store.integer(K::palette) == -1; }));
    EXPECT_FALSE(QFileInfo::exists(path));
    store.set(K::palette, 6);
    EXPECT_TRUE(file.flush());
    EXPECT_EQ(json().value(K::palette), 6);
}

TEST_F(SettingsFileTest, AnnouncesForeignChangesOnlyOnceAndOwnOnesNeverAgain) {
    SettingsFile file(store, path);
    QStringList announced;
    QObject::connect(&store, &SettingsStore::changed,
                     [&](const QString& key) { announced.append(key); });
    store.set(u"own"_s, 1);
    ASSERT_TRUE(file.flush());
    spend(150ms);
    EXPECT_EQ(announced, QStringList{u"own"_s});
    replace(R"({"own": 1, "foreign": 2})");
    EXPECT_TRUE(waitFor([&] { return announced.size() > 1; }));
    spend(150ms);
    EXPECT_EQ(announced, QStringList({u"own"_s, u"foreign"_s}));
}

TEST_F(SettingsFileTest, LosesNoOwnChangeToAForeignOne) {
    write(R"({"a": 0, "b": 0})");
    SettingsFile file(store, path);
    for (int i = 1; i <= 20; ++i) {
        store.set(u"a"_s, i);
        replace("{\"a\": 0, \"b\": " + QByteArray::number(i) + "}");
        spend(std::chrono::milliseconds(7 * i % 50));
        EXPECT_EQ(store.integer(u"a"_s), i);
        EXPECT_TRUE(file.flush());
        // The editor may have written in between; its file is then the later one.
        EXPECT_EQ(json().value("b"_L1), i);
        EXPECT_EQ(json().value("a"_L1), i);
    }
}

TEST_F(SettingsFileTest, WaitsForAnEditorThatTakesTheFileAwayFirst) {
    write(R"({"a": 1, "b": 1})");
    const SettingsFile file(store, path);
    QStringList announced;
    QObject::connect(&store, &SettingsStore::changed,
                     [&](const QString& key) { announced.append(key); });
    QFile::rename(path, path + "~"_L1);
    spend(60ms);
    write(R"({"a": 1, "b": 2})");
    EXPECT_TRUE(waitFor([&] { return store.integer(u"b"_s) == 2; }));
    EXPECT_EQ(announced, QStringList{u"b"_s});
}
