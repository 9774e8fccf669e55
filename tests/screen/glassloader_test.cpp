// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/pictureloaders.h"

#include "backdrop/glass.h"

#include <QSignalSpy>
#include <QThreadPool>

#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

QImage picture(QRgb colour) {
    QImage image(64, 40, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

TEST(GlassLoader, MakesTheGlassOnceForAPicture) {
    GlassLoader loader(*QThreadPool::globalInstance());
    QSignalSpy made(&loader, &GlassLoader::made);
    const QImage desktop = picture(0xFF102030);
    loader.setPicture(desktop, 1);
    EXPECT_EQ(loader.glass(), nullptr);
    ASSERT_TRUE(made.wait());
    const std::shared_ptr<const Glass> glass = loader.glass();
    ASSERT_NE(glass, nullptr);
    EXPECT_EQ(glass->size, desktop.size());
    loader.setPicture(desktop, 1);
    EXPECT_EQ(loader.glass(), glass);
    loader.setPicture(QImage(), 1);
    EXPECT_EQ(loader.glass(), nullptr);
}

TEST(GlassLoader, OnlyTheLastPictureCounts) {
    GlassLoader loader(*QThreadPool::globalInstance());
    QSignalSpy made(&loader, &GlassLoader::made);
    loader.setPicture(picture(0xFF000000), 1);
    loader.setPicture(picture(0xFFFFFFFF), 1);
    ASSERT_TRUE(made.wait());
    EXPECT_EQ(loader.glass()->clear.pixel(30, 20), 0xFFFFFFFFU);
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    EXPECT_EQ(made.size(), 1);
}

TEST(GlassLoader, EmitsNothingAndKeepsNothingOnceDestroyed) {
    int made = 0;
    const QImage desktop = picture(0xFF123456);
    {
        GlassLoader loader(*QThreadPool::globalInstance());
        QObject::connect(&loader, &GlassLoader::made, [&made] { ++made; });
        loader.setPicture(desktop, 1);
        EXPECT_FALSE(desktop.isDetached());
        QThreadPool::globalInstance()->waitForDone(); // its result is queued, not delivered
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(made, 0);
    EXPECT_TRUE(desktop.isDetached()) << "something still has its pixels";
}

} // namespace
} // namespace morrowleaf
