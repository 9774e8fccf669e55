// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "photos/photoimport.h"
#include "photos/photoreaders.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>

#include <atomic>
#include <map>
#include <memory>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Copies of files whose name begins with "slow" wait until the disk is quick.
class PhotoImportTest : public ::testing::Test {
protected:
    void start(const QString& name) {
        const QString source = folder.filePath(name);
        QImage image(40, 30, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        ASSERT_TRUE(image.save(source));
        photos->start(source, copyOf(name),
                      [this, name](bool copied) { copiedByName[name] = copied; });
    }
    QString copyOf(const QString& name) const { return folder.filePath(u"copy-"_s + name); }
    bool hasEnded(const QString& name) const { return copiedByName.contains(name); }
    bool isCopied(const QString& name) const {
        return hasEnded(name) && copiedByName.at(name) && QFile::exists(copyOf(name));
    }
    template <typename Condition>
    static bool await(Condition condition) {
        QElapsedTimer since;
        since.start();
        while (!condition() && since.elapsed() < 60'000) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        }
        return condition();
    }
    // Until a timer of that time, started now, has fired.
    static void pass(std::chrono::milliseconds time) {
        bool fired = false;
        QTimer::singleShot(time, [&fired] { fired = true; });
        EXPECT_TRUE(await([&] { return fired; }));
    }

    QTemporaryDir folder;
    std::atomic<bool> diskIsQuick = false;
    PhotoReaders readers;
    std::unique_ptr<PhotoImport> photos = std::make_unique<PhotoImport>(
        readers, [this](const QString& source, const QString& destination, const StopToken& stop) {
            while (source.contains("/slow"_L1) && !diskIsQuick && !stop.isRequested()) {
                QThread::msleep(1);
            }
            return copyPhotoFile(source, destination, stop);
        });
    std::map<QString, bool> copiedByName;
};

TEST_F(PhotoImportTest, ASlowCopyDoesNotHoldUpTheNext) {
    start(u"slow.png"_s);
    start(u"quick.png"_s);
    ASSERT_TRUE(await([&] { return hasEnded(u"quick.png"_s); }));
    EXPECT_TRUE(isCopied(u"quick.png"_s));
    EXPECT_FALSE(hasEnded(u"slow.png"_s));
    diskIsQuick = true;
    EXPECT_TRUE(await([&] { return isCopied(u"slow.png"_s); }));
}

TEST_F(PhotoImportTest, CancelsACopyThatTakesTooLong) {
    start(u"slow.png"_s);
    photos->cancelAfter(0ms);
    ASSERT_TRUE(await([&] { return hasEnded(u"slow.png"_s); }));
    EXPECT_FALSE(isCopied(u"slow.png"_s));
    start(u"next.png"_s);
    EXPECT_TRUE(await([&] { return isCopied(u"next.png"_s); }));
    photos.reset();
    EXPECT_FALSE(QFile::exists(copyOf(u"slow.png"_s)));
    EXPECT_TRUE(QFile::exists(copyOf(u"next.png"_s)));
}

TEST_F(PhotoImportTest, CancelsNothingThatHasEndedInTime) {
    start(u"quick.png"_s);
    start(u"slow.png"_s);
    ASSERT_TRUE(await([&] { return hasEnded(u"quick.png"_s); }));
    photos->cancelAfter(0ms);
    ASSERT_TRUE(await([&] { return hasEnded(u"slow.png"_s); }));
    EXPECT_TRUE(isCopied(u"quick.png"_s));
}

TEST_F(PhotoImportTest, CancelsNothingThatIsStartedLater) {
    photos->cancelAfter(0ms);
    start(u"slow-1.png"_s);
    pass(1ms);
    EXPECT_FALSE(hasEnded(u"slow-1.png"_s));
    photos->cancelAfter(0ms);
    start(u"slow-2.png"_s);
    ASSERT_TRUE(await([&] { return hasEnded(u"slow-1.png"_s); }));
    EXPECT_FALSE(isCopied(u"slow-1.png"_s));
    diskIsQuick = true;
    EXPECT_TRUE(await([&] { return isCopied(u"slow-2.png"_s); }));
}

TEST_F(PhotoImportTest, KeepsWhatIsNoLongerToBeCancelled) {
    start(u"slow.png"_s);
    photos->cancelAfter(0ms);
    photos->keep();
    pass(1ms);
    EXPECT_FALSE(hasEnded(u"slow.png"_s));
    diskIsQuick = true;
    EXPECT_TRUE(await([&] { return isCopied(u"slow.png"_s); }));
}

} // namespace
} // namespace morrowleaf
