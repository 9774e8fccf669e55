#include "quotes/settingsfile.h"
#include "quotes/settingskeys.h"
#include "quotes/settingslock.h"
#include "quotes/settingsstore.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>
#include <gmock/gmock.h>
#include <thread>

using namespace morrowleaf;
using namespace std::chrono_literals;

namespace {

bool waitFor(const std::function<bool()>& condition) {
    QElapsedTimer since;
    since.start();
    while (!condition()) {
        if (since.elapsed() > 20'000) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QThread::msleep(2);
    }
    return true;
}

void spend(std::chrono::milliseconds time) {
    const QDeadlineTimer deadline(time);
    while (!deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QThread::msleep(2);
    }
}

class SettingsFileTest : public testing::Test {
protected:
    void write(const QByteArray& text) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)); // in place
        file.write(text);
    }

    void replace(const QByteArray& text) {
        QFile file(path + ".editor");
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        ASSERT_EQ(std::rename(QFile::encodeName(file.fileName()).constData(),
                              QFile::encodeName(path).constData()),
                  0);
    }

    QByteArray read(const QString& name) const {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QByteArray read() const { return read(path); }

    QJsonObject json() const { return QJsonDocument::fromJson(read()).object(); }

    QStringList setAside() const {
        return QDir(QFileInfo(path).path())
            .entryList({"settings.broken-*"}, QDir::AllEntries | QDir::System | QDir::Hidden);
    }
    QByteArray asideText(int index = 0) const {
        return read(QFileInfo(path).path() + '/' + setAside().value(index));
    }

    mode_t mode() const {
        struct stat found {};
        ::stat(QFile::encodeName(path).constData(), &found);
        return found.st_mode & 07777;
    }

    QTemporaryDir home;
    QString path = home.filePath("settings.json");
    SettingsStore store;
};

} // namespace

TEST_F(SettingsFileTest, StartsWithWhatIsThere) {
    write(R"({"paletteIndex": 3, "customBackgrounds": ["one"]})");
    const SettingsFile file(store, path);
    EXPECT_EQ(store.integer(K::palette), 3);
    EXPECT_EQ(store.textList(K::customBGs), QStringList{"one"});
    EXPECT_TRUE(file.parent() == nullptr);
}

TEST_F(SettingsFileTest, CreatesNothingUntilSomethingIsSet) {
    path = home.filePath("a/b/settings.json");
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
    ::stat(QFile::encodeName(home.filePath("a")).constData(), &folder);
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
    store.set(K::font, "fraunces");
    EXPECT_TRUE(file.flush());
    EXPECT_EQ(json(), QJsonObject({{K::font, "fraunces"}}));
}

TEST_F(SettingsFileTest, CoalescesABurst) {
    SettingsFile file(store, path);
    ASSERT_TRUE((store.set("x", -1), file.flush()));
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
        store.set("x", i);
    }
    EXPECT_TRUE(file.flush());
    stop = true;
    observer.join();
    EXPECT_EQ(json().value("x"), 999);
    EXPECT_LE(replaced, 20);
}

TEST_F(SettingsFileTest, KeepsUnknownKeysAndHandwriting) {
    const QByteArray text = "{\n  \"mine\": {\"deep\": [1.50, 123456789012345678901234567890]},\n"
                            "  \"paletteIndex\": 1,\n  \"n\": 9007199254740993\n}\n";
    write(text);
    SettingsFile file(store, path);
    store.set(K::palette, 2);
    EXPECT_TRUE(file.flush());
    QByteArray expected = text;
    EXPECT_EQ(read(), expected.replace("\"paletteIndex\": 1", "\"paletteIndex\": 2"));
}

TEST_F(SettingsFileTest, SeesReplacementAndRewritingAgainAndAgain) {
    write(R"({"x": 0})");
    const SettingsFile file(store, path);
    for (int i = 1; i <= 6; ++i) {
        const QByteArray text = "{\"x\": " + QByteArray::number(i) + "}";
        i % 2 == 0 ? write(text) : replace(text);
        EXPECT_TRUE(waitFor([&] { return store.integer("x") == i; })) << i;
    }
}

TEST_F(SettingsFileTest, SeesAFileThatAppearsWithItsFolder) {
    path = home.filePath("a/b/settings.json");
    const SettingsFile file(store, path);
    spend(50ms);
    QDir(home.path()).mkpath("a/b");
    spend(100ms);
    write(R"({"x": 1})");
    EXPECT_TRUE(waitFor([&] { return store.integer("x") == 1; }));
}

TEST_F(SettingsFileTest, SeesTheFileAndItsFolderVanish) {
    path = home.filePath("a/settings.json");
    registerAppDefaults(store);
    SettingsFile file(store, path);
    store.set(K::palette, 5);
    ASSERT_TRUE(file.flush());
    QDir(home.filePath("a")).removeRecursively();
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
    store.set("own", 1);
    ASSERT_TRUE(file.flush());
    spend(150ms);
    EXPECT_EQ(announced, QStringList{"own"});
    replace(R"({"own": 1, "foreign": 2})");
    EXPECT_TRUE(waitFor([&] { return announced.size() > 1; }));
    spend(150ms);
    EXPECT_EQ(announced, QStringList({"own", "foreign"}));
}

TEST_F(SettingsFileTest, LosesNoOwnChangeToAForeignOne) {
    write(R"({"a": 0, "b": 0})");
    SettingsFile file(store, path);
    for (int i = 1; i <= 20; ++i) {
        store.set("a", i);
        replace("{\"a\": 0, \"b\": " + QByteArray::number(i) + "}");
        spend(std::chrono::milliseconds(7 * i % 50));
        EXPECT_EQ(store.integer("a"), i);
        EXPECT_TRUE(file.flush());
        // The editor may have come between; its file is then the later one.
        EXPECT_EQ(json().value("b"), i);
        EXPECT_EQ(json().value("a"), i);
    }
}

TEST_F(SettingsFileTest, WaitsForAnEditorThatTakesTheFileAwayFirst) {
    write(R"({"a": 1, "b": 1})");
    const SettingsFile file(store, path);
    QStringList announced;
    QObject::connect(&store, &SettingsStore::changed,
                     [&](const QString& key) { announced.append(key); });
    QFile::rename(path, path + "~");
    spend(60ms);
    write(R"({"a": 1, "b": 2})");
    EXPECT_TRUE(waitFor([&] { return store.integer("b") == 2; }));
    EXPECT_EQ(announced, QStringList{"b"});
}

TEST_F(SettingsFileTest, GivesABrokenFileTimeToMend) {
    write(R"({"a": 1)");
    const SettingsFile file(store, path);
    EXPECT_EQ(store.integer("a"), 0);
    spend(150ms);
    write(R"({"a": 1})");
    EXPECT_TRUE(waitFor([&] { return store.integer("a") == 1; }));
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

TEST_F(SettingsFileTest, FallsBackToDefaultsWhenTheFileBreaksWhileRunning) {
    registerAppDefaults(store);
    write(R"({"paletteIndex": 4})");
    const SettingsFile file(store, path);
    write("[1, 2]");
    EXPECT_TRUE(waitFor([&] { return store.integer(K::palette) == -1; }));
    EXPECT_TRUE(waitFor([&] { return asideText() == "[1, 2]"; }));
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST_F(SettingsFileTest, OverwritesNoEarlierSetAsideFile) {
    for (int i = 0; i < 3; ++i) {
        write("broken " + QByteArray::number(i));
        SettingsFile file(store, path);
        store.set("x", i);
        EXPECT_TRUE(file.flush());
        EXPECT_EQ(json().value("x"), i);
    }
    ASSERT_EQ(setAside().size(), 3);
    QStringList texts;
    for (int i = 0; i < 3; ++i) {
        texts.append(asideText(i));
    }
    EXPECT_THAT(texts, testing::UnorderedElementsAre("broken 0", "broken 1", "broken 2"));
}

TEST_F(SettingsFileTest, FlushesAtTheEndEvenIntoADoubtfulFile) {
    write("broken");
    {
        const SettingsFile file(store, path);
        store.set("x", 1);
    }
    EXPECT_EQ(json().value("x"), 1);
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
            QFile inside(path + "/precious");
            ASSERT_TRUE(inside.open(QIODevice::WriteOnly));
        },
        [&] {
            write("{}");
            ASSERT_EQ(::truncate(QFile::encodeName(path).constData(), qint64(1) << 40), 0);
        },
        [&] { ASSERT_TRUE(QFile::link(path, path)); },
        [&] { ASSERT_TRUE(QFile::link("/dev/zero", path)); }};
    for (const auto& obstacle : obstacles) {
        QFile::remove(path);
        obstacle();
        SettingsFile file(store, path);
        store.set("x", store.integer("x") + 1);
        EXPECT_TRUE(file.flush());
        EXPECT_EQ(json().value("x"), store.integer("x"));
    }
    EXPECT_EQ(setAside().size(), qsizetype(obstacles.size()));
    EXPECT_TRUE(QFileInfo::exists("/dev/zero"));
}

TEST_F(SettingsFileTest, WritesThroughALink) {
    QDir(home.path()).mkdir("dotfiles");
    const QString target = home.filePath("dotfiles/morrowleaf.json");
    ASSERT_TRUE(QFile::link("dotfiles/morrowleaf.json", path));
    {
        SettingsFile file(store, path); // a link to nothing as yet
        store.set("x", 1);
        EXPECT_TRUE(file.flush());
        EXPECT_EQ(QJsonDocument::fromJson(read(target)).object().value("x"), 1);

        QFile edited(target + ".new");
        ASSERT_TRUE(edited.open(QIODevice::WriteOnly));
        edited.write(R"({"x": 2})");
        edited.close();
        std::rename(QFile::encodeName(edited.fileName()).constData(),
                    QFile::encodeName(target).constData());
        EXPECT_TRUE(waitFor([&] { return store.integer("x") == 2; }));
        store.set("x", 3);
    }
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_EQ(QJsonDocument::fromJson(read(target)).object().value("x"), 3);
}

TEST_F(SettingsFileTest, StaysInMemoryWhereALinkLeadsNowhere) {
    ASSERT_TRUE(QFile::link(home.filePath("unmounted/settings.json"), path));
    SettingsFile file(store, path);
    store.set("x", 1);
    EXPECT_FALSE(file.flush());
    EXPECT_EQ(store.integer("x"), 1);
    EXPECT_TRUE(QFileInfo(path).isSymLink());
}

TEST_F(SettingsFileTest, KeepsPermissions) {
    write("{}");
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0644), 0);
    SettingsFile file(store, path);
    store.set("x", 1);
    EXPECT_TRUE(file.flush());
    EXPECT_EQ(mode(), 0644U);
}

TEST_F(SettingsFileTest, WorksInMemoryWhereNoFolderCanBe) {
    write("a regular file");
    registerAppDefaults(store);
    SettingsFile file(store, path + "/morrowleaf/settings.json");
    EXPECT_EQ(store.integer(K::palette), -1);
    store.set(K::palette, 3);
    EXPECT_FALSE(file.flush());
    spend(100ms);
    EXPECT_EQ(store.integer(K::palette), 3);
    EXPECT_EQ(read(), "a regular file");
}

TEST_F(SettingsFileTest, WritesOnceTheObstacleIsGone) {
    const QString obstacle = home.filePath("folder");
    path = obstacle;
    write("in the way");
    path = obstacle + "/settings.json";
    SettingsFile file(store, path);
    store.set("x", 1);
    EXPECT_FALSE(file.flush());
    QFile::remove(obstacle);
    EXPECT_TRUE(waitFor([&] { return json().value("x") == 1; })); // by its own retry
}

TEST_F(SettingsFileTest, GoesOnWithoutAStuckLock) {
    write("{}");
    QProcess holder;
    holder.start(SETTINGS_WRITER, {path, "hold"});
    ASSERT_TRUE(holder.waitForReadyRead(20'000));
    ASSERT_EQ(holder.readAllStandardOutput(), "held\n");
    SettingsFile file(store, path);
    store.set("x", 1);
    QElapsedTimer since;
    since.start();
    EXPECT_TRUE(file.flush(400ms));
    EXPECT_GE(since.elapsed(), 200); // it did wait for the lock
    EXPECT_EQ(json().value("x"), 1);
    holder.kill();
    holder.waitForFinished();
    const SettingsLock lock(path, 5s); // the dead hold nothing
    EXPECT_TRUE(lock.held());
}

TEST_F(SettingsFileTest, TwoProcessesKeepEachOthersChanges) {
    SettingsFile file(store, path);
    QProcess one;
    QProcess two;
    one.start(SETTINGS_WRITER, {path, "count", "a", "60"});
    two.start(SETTINGS_WRITER, {path, "count", "b", "60"});
    for (int i = 0; i < 60; ++i) {
        store.set(QString("c%1").arg(i), i);
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
    store.set(K::frequency, "6h");
    store.set(K::palette, 2);
    ASSERT_TRUE(file.flush());
    EXPECT_EQ(QProcess::execute(SETTINGS_WRITER, {path, "selftest"}), 0);
    EXPECT_EQ(json(), QJsonObject({{K::palette, 2}}));
    EXPECT_TRUE(waitFor([&] { return !store.value(K::frequency); }));
    EXPECT_EQ(store.integer(K::palette), 2);
}

TEST_F(SettingsFileTest, FlushesWhenTheApplicationQuits) {
    EXPECT_EQ(QProcess::execute(SETTINGS_WRITER, {path, "quit"}), 0);
    EXPECT_EQ(json().value("quit"), true);
}

TEST_F(SettingsFileTest, NoReaderSeesHalfAFile) {
    write("{}");
    QProcess writer;
    writer.start(SETTINGS_WRITER, {path, "count", QString(3000, 'k'), "100"});
    int seen = 0;
    while (writer.state() != QProcess::NotRunning) {
        const QByteArray text = read();
        EXPECT_TRUE(QJsonDocument::fromJson(text).isObject()) << text.size();
        ++seen;
        writer.waitForFinished(0);
    }
    EXPECT_GT(seen, 10);
    EXPECT_EQ(json().size(), 100);
    EXPECT_EQ(QDir(home.path()).entryList({"*.new"}, QDir::Files | QDir::Hidden), QStringList());
}

TEST_F(SettingsFileTest, UsesUpWhatACrashLeftBehind) {
    QFile left(home.filePath(".settings.json.new"));
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    left.write("half of some");
    left.close();
    SettingsFile file(store, path);
    store.set("x", 1);
    EXPECT_TRUE(file.flush());
    EXPECT_EQ(json().value("x"), 1);
    EXPECT_FALSE(left.exists());
}

TEST(SettingsPath, IsBelowTheConfigurationFolder) {
    EXPECT_TRUE(defaultSettingsPath().endsWith("/morrowleaf/settings.json"));
    EXPECT_TRUE(QDir::isAbsolutePath(defaultSettingsPath()));
}
