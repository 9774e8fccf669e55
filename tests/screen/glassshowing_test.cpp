// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/glassshowing.h"

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

TEST(GlassShowing, MakesTheGlassOnceForAPicture) {
    GlassShowing showing(*QThreadPool::globalInstance());
    QSignalSpy made(&showing, &GlassShowing::made);
    const QImage desktop = picture(0xFF102030);
    showing.want(desktop, 1);
    EXPECT_EQ(showing.glass(), nullptr);
    ASSERT_TRUE(made.wait());
    const std::shared_ptr<const Glass> glass = showing.glass();
    ASSERT_NE(glass, nullptr);
    EXPECT_EQ(glass->size, desktop.size());
    showing.want(desktop, 1);
    EXPECT_EQ(showing.glass(), glass);
    showing.want(QImage(), 1);
    EXPECT_EQ(showing.glass(), nullptr);
}

TEST(GlassShowing, OnlyTheLastPictureCounts) {
    GlassShowing showing(*QThreadPool::globalInstance());
    QSignalSpy made(&showing, &GlassShowing::made);
    showing.want(picture(0xFF000000), 1);
    showing.want(picture(0xFFFFFFFF), 1);
    ASSERT_TRUE(made.wait());
    EXPECT_EQ(showing.glass()->clear.pixel(30, 20), 0xFFFFFFFFU);
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    EXPECT_EQ(made.size(), 1);
}

TEST(GlassShowing, MayGoBeforeItsGlassIsMade) {
    {
        GlassShowing showing(*QThreadPool::globalInstance());
        showing.want(picture(0xFF123456), 1);
    }
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

} // namespace
} // namespace morrowleaf
