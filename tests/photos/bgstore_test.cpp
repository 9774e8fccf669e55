// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "photos/bgstore.h"
#include "settings/prefs.h"
#include "settings/settingsstore.h"
#include "settings/settingstable.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QJsonArray>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

namespace {

class BGStoreTest : public ::testing::Test {
protected:
    QString path(const QString& name) const { return folder.filePath(name); }

    QString picture(const QString& name, const char* format = "png", QSize size = {40, 30}) const {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        EXPECT_TRUE(image.save(path(name), format));
        return path(name);
    }
    QString textFile(const QString& name, const QByteArray& content = "no picture") const {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path(name);
    }
    static QByteArray contentOf(const QString& name) {
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    void start(const QString& source) {
        photos->add(source, [this](const std::optional<QString>& added) {
            results.append(added.value_or(QString()));
        });
    }
    void await(qsizetype count) {
        QElapsedTimer since;
        since.start();
        while (results.size() < count && since.elapsed() < 60'000) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        }
        ASSERT_EQ(results.size(), count);
    }
    // The new path, or "" if the photo was refused.
    QString add(const QString& source) {
        start(source);
        await(results.size() + 1);
        return results.last();
    }
    template <typename Condition>
    static bool becomesTrue(Condition condition) {
        QElapsedTimer since;
        since.start();
        while (!condition() && since.elapsed() < 60'000) {
            QThread::msleep(1);
        }
        return condition();
    }
    QStringList ownFiles() const {
        return QDir(own).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QStringList listed() const { return Prefs::customBGs(store); }
    void list(const QStringList& paths) { store.set(K::customBGs, paths); }
    // As the next start of the program does.
    void startAgain() {
        QThreadPool::globalInstance()->waitForDone();
        photos = std::make_unique<BGStore>(store, QString(), own);
        QThreadPool::globalInstance()->waitForDone();
    }
    static unsigned modeOf(const QString& file) {
        struct stat info {};
        EXPECT_EQ(::stat(qPrintable(file), &info), 0) << file.toStdString();
        return info.st_mode & ALLPERMS;
    }

    QTemporaryDir folder;
    SettingsStore store;
    QString own = folder.filePath(u"data/Morrowleaf/backgrounds"_s);
    std::unique_ptr<BGStore> photos =
        std::make_unique<BGStore>(store, folder.filePath(u"Backgrounds"_s), own);
    QStringList results;
};

TEST_F(BGStoreTest, AddsACopyUnderANewName) {
    const QString source = picture(u"photo.JPG"_s, "jpg");
    const QString added = add(source);
    EXPECT_TRUE(
        QRegularExpression(u"^%1/[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}\\.JPG$"_s.arg(own))
            .match(added)
            .hasMatch())
        << added.toStdString();
    EXPECT_EQ(contentOf(added), contentOf(source));
    EXPECT_EQ(listed(), QStringList{added});
    EXPECT_EQ(Prefs::bgImage(store), QString());
}

TEST_F(BGStoreTest, OwnPhotosAreForTheUserAlone) {
    const QString source = picture(u"photo.jpg"_s, "jpg");
    QFile::setPermissions(source, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    const QString added = add(source);
    EXPECT_EQ(modeOf(added), 0600U);
    EXPECT_EQ(modeOf(own), 0700U);
    // An earlier version has left them open.
    ASSERT_EQ(::chmod(qPrintable(own), 0755), 0);
    ASSERT_EQ(::chmod(qPrintable(added), 0644), 0);
    ASSERT_TRUE(QFile::link(source, own + u"/link.jpg"_s));
    list({added, own + u"/link.jpg"_s, source});
    startAgain();
    EXPECT_EQ(modeOf(own), 0700U);
    EXPECT_EQ(modeOf(added), 0600U);
    EXPECT_EQ(modeOf(source), 0444U); // not in the folder
}

TEST_F(BGStoreTest, LeavesOpenWhatIsNotItsOwn) {
    const QString added = add(picture(u"photo.png"_s));
    const QString beside = own + u"/note.txt"_s;
    ASSERT_TRUE(QFile::copy(textFile(u"note.txt"_s), beside));
    ASSERT_EQ(::chmod(qPrintable(beside), 0644), 0);
    startAgain();
    EXPECT_EQ(modeOf(beside), 0644U);
    // The user keeps the photos elsewhere.
    const QString elsewhere = path(u"pictures"_s);
    ASSERT_TRUE(QDir().rename(own, elsewhere));
    ASSERT_TRUE(QFile::link(elsewhere, own));
    ASSERT_EQ(::chmod(qPrintable(elsewhere), 0755), 0);
    ASSERT_EQ(::chmod(qPrintable(added), 0644), 0);
    startAgain();
    EXPECT_EQ(modeOf(elsewhere), 0755U);
    EXPECT_EQ(modeOf(added), 0644U);
}

TEST_F(BGStoreTest, GivesAFileWithoutExtensionTheNameOfAPng) {
    EXPECT_TRUE(add(picture(u"photo"_s, "jpg")).endsWith(u".png"_s));
}

TEST_F(BGStoreTest, AddsTheSameFileTwiceUnderTwoNames) {
    const QString source = picture(u"a.png"_s);
    const QString first = add(source);
    const QString second = add(source);
    EXPECT_NE(first, second);
    EXPECT_EQ(listed(), QStringList({first, second}));
    EXPECT_EQ(ownFiles().size(), 2);
}

TEST_F(BGStoreTest, RefusesAFourthPhotoAndCopiesNothing) {
    list({u"/1"_s, u"/2"_s, u"/3"_s});
    EXPECT_EQ(add(picture(u"a.png"_s)), QString());
    EXPECT_EQ(ownFiles(), QStringList());
    EXPECT_EQ(listed().size(), 3);
}

TEST_F(BGStoreTest, ChecksTheLimitAgainAfterTheCopy) {
    list({u"/1"_s, u"/2"_s});
    const QString source = picture(u"a.png"_s);
    start(source);
    start(source);
    await(2);
    EXPECT_EQ(results.count(QString()), 1);
    EXPECT_EQ(listed().size(), 3);
    EXPECT_EQ(ownFiles().size(), 1);
}

TEST_F(BGStoreTest, KeepsPhotosListedDuringTheCopy) {
    start(picture(u"a.png"_s));
    list({u"/meanwhile"_s});
    await(1);
    EXPECT_EQ(listed(), QStringList({u"/meanwhile"_s, results.first()}));
}

TEST_F(BGStoreTest, RefusesATextFileNamedLikeAPicture) {
    EXPECT_EQ(add(textFile(u"a.png"_s)), QString());
    EXPECT_EQ(add(textFile(u"empty.png"_s, {})), QString());
    EXPECT_EQ(ownFiles(), QStringList());
    EXPECT_FALSE(store.value(K::customBGs).has_value());
}

TEST_F(BGStoreTest, RefusesAVectorGraphic) {
    const QByteArray drawing = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>";
    EXPECT_EQ(add(textFile(u"a.svg"_s, drawing)), QString());
    EXPECT_EQ(ownFiles(), QStringList());
}

TEST_F(BGStoreTest, RefusesAPictureThatEndsAfterItsHeader) {
    const QByteArray whole = contentOf(picture(u"a.png"_s, "png", {400, 300}));
    EXPECT_EQ(add(textFile(u"b.png"_s, whole.left(40))), QString());
    EXPECT_EQ(ownFiles(), QStringList());
}

TEST_F(BGStoreTest, RefusesWhatIsNotARegularFileAtOnce) {
    const QString pipe = path(u"pipe.png"_s);
    ASSERT_EQ(::mkfifo(qPrintable(pipe), 0600), 0);
    const QString door = path(u"socket.png"_s);
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, qPrintable(door), sizeof(address.sun_path));
    ASSERT_EQ(::bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof(address)), 0);
    for (const QString& source :
         {pipe, door, folder.path(), u"/dev/zero"_s, path(u"missing"_s), QString()}) {
        EXPECT_EQ(add(source), QString()) << source.toStdString();
    }
    ::close(fd);
    EXPECT_EQ(ownFiles(), QStringList());
}

TEST_F(BGStoreTest, AddsNothingWhereTheFolderCannotBeMade) {
    textFile(u"data"_s);
    EXPECT_EQ(add(picture(u"a.png"_s)), QString());
}

TEST_F(BGStoreTest, LeavesNoFileWhenDestroyedDuringTheCopy) {
    start(picture(u"a.png"_s, "png", {2000, 1500}));
    photos.reset();
    QCoreApplication::processEvents();
    EXPECT_TRUE(results.isEmpty());
    EXPECT_EQ(ownFiles(), QStringList());
}

TEST_F(BGStoreTest, LeavesNoFileWhenDestroyedDuringTheCheck) {
    const QString source = picture(u"a.png"_s, "png", {6000, 4000});
    const qint64 size = QFileInfo(source).size();
    start(source);
    start(source);
    const QDir folder(own);
    QElapsedTimer since;
    since.start();
    const auto copied = [&] {
        const QFileInfoList files = folder.entryInfoList(QDir::Files);
        return std::count_if(files.begin(), files.end(),
                             [&](const QFileInfo& file) { return file.size() == size; });
    };
    // Before its check a photo is inspected and copied.
    while (copied() < 2 && since.elapsed() < 60'000) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    }
    ASSERT_EQ(copied(), 2);
    ASSERT_TRUE(results.isEmpty());
    photos.reset();
    EXPECT_EQ(ownFiles(), QStringList());
    QCoreApplication::processEvents();
    EXPECT_EQ(ownFiles(), QStringList());
    EXPECT_TRUE(results.isEmpty());
    EXPECT_TRUE(listed().isEmpty());
}

TEST_F(BGStoreTest, RefusesAFileAboveTheSizeLimit) {
    const QString source = picture(u"a.png"_s);
    QFile file(source);
    ASSERT_TRUE(file.resize((Q_INT64_C(512) << 20) + 1)); // sparse
    EXPECT_EQ(add(source), QString());
    EXPECT_EQ(ownFiles(), QStringList());
    EXPECT_FALSE(store.value(K::customBGs).has_value());
}

TEST_F(BGStoreTest, CancelsAnAddThatTakesTooLong) {
    auto awaiting = photos->awaitAdds(std::chrono::milliseconds(0));
    start(picture(u"a.png"_s, "png", {3000, 2000}));
    awaiting.reset();
    await(1);
    EXPECT_EQ(results.first(), QString());
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(ownFiles(), QStringList());
    EXPECT_NE(add(picture(u"next.png"_s)), QString());
}

TEST_F(BGStoreTest, CancelsNothingWhileAnAddIsAwaited) {
    auto first = photos->awaitAdds(std::chrono::milliseconds(0));
    const auto second = photos->awaitAdds(std::chrono::milliseconds(0));
    start(picture(u"a.png"_s, "png", {3000, 2000}));
    first.reset();
    await(1);
    EXPECT_EQ(listed(), results);
}

TEST_F(BGStoreTest, RemovingTheChosenPhotoDropsTheChoice) {
    const QString chosen = add(picture(u"a.png"_s));
    const QString other = add(picture(u"a.png"_s));
    store.set(K::bgImage, chosen);
    photos->remove(other);
    EXPECT_EQ(Prefs::bgImage(store), chosen);
    EXPECT_EQ(listed(), QStringList{chosen});
    photos->remove(chosen);
    EXPECT_EQ(Prefs::bgImage(store), QString());
    EXPECT_EQ(listed(), QStringList());
    EXPECT_TRUE(becomesTrue([&] { return ownFiles().isEmpty(); }));
}

TEST_F(BGStoreTest, RemovesWhatItHasBeenToldEvenIfItIsDestroyedAtOnce) {
    const QString outside = picture(u"outside.png"_s);
    photos->remove(outside);
    photos.reset();
    EXPECT_FALSE(QFile::exists(outside));
}

TEST_F(BGStoreTest, RemovesAFileThatIsNotListed) {
    const QString outside = picture(u"outside.png"_s);
    photos->remove(outside);
    EXPECT_TRUE(becomesTrue([&] { return !QFile::exists(outside); }));
    EXPECT_EQ(store.value(K::customBGs), QJsonValue(QJsonArray()));
}

TEST_F(BGStoreTest, RemovesEveryEntryOfAPath) {
    list({u"/a"_s, u"/b"_s, u"/a"_s});
    photos->remove(u"/a"_s);
    EXPECT_EQ(listed(), QStringList{u"/b"_s});
}

TEST_F(BGStoreTest, RemovesALinkButNeverItsTargetNorAFolder) {
    const QString target = picture(u"target.png"_s);
    const QString link = path(u"link.png"_s);
    ASSERT_TRUE(QFile::link(target, link));
    photos->remove(link);
    EXPECT_TRUE(becomesTrue([&] { return !QFileInfo(link).isSymLink(); }));
    EXPECT_TRUE(QFile::exists(target));

    ASSERT_TRUE(QDir().mkpath(path(u"sub"_s)));
    photos->remove(path(u"sub"_s));
    photos->remove(QString());
    photos.reset(); // has removed by then what it would
    EXPECT_TRUE(QDir(path(u"sub"_s)).exists());
}

TEST_F(BGStoreTest, ListsBuiltinsByCaseSensitiveName) {
    EXPECT_EQ(photos->builtins(), QStringList());
    QDir().mkpath(path(u"Backgrounds/folder.jpg"_s));
    for (const auto name : {"b.PNG"_L1, "a.jpg"_L1, "c.gif"_L1, "A.jpeg"_L1, ".jpg"_L1, "png"_L1}) {
        textFile("Backgrounds/"_L1 + name);
    }
    EXPECT_EQ(photos->builtins(),
              QStringList({path(u"Backgrounds/A.jpeg"_s), path(u"Backgrounds/a.jpg"_s),
                           path(u"Backgrounds/b.PNG"_s)}));
}

TEST_F(BGStoreTest, ListsNoBuiltinsWithoutAFolder) {
    EXPECT_EQ(BGStore(store, QString(), own).builtins(), QStringList());
}

TEST(BGStoreDeathTest, NeedsAFolderForOwnPhotos) {
    SettingsStore store;
    EXPECT_DEATH(BGStore(store, QString(), QString()), "no folder for the user's own photos");
}

} // namespace
} // namespace morrowleaf
