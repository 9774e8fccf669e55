// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "screen/quotescreen.h"

#include "screen/quoteview.h"
#include "settings/settingstable.h"
#include "tests/screen/quotescreenfixture.h"
#include "tools/sourcepath.h"

#include <QAccessible>
#include <QApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace morrowleaf;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString lake = sourcePath(u"resources/Backgrounds/lake.jpg"_s);

int differing(const QImage& a, const QImage& b) {
    int count = a.size() == b.size() ? 0 : 1 << 30;
    for (int y = 0; count == 0 && y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor one = a.pixelColor(x, y);
            const QColor two = b.pixelColor(x, y);
            count += std::abs(one.red() - two.red()) + std::abs(one.green() - two.green()) +
                                 std::abs(one.blue() - two.blue()) >
                             6
                         ? 1
                         : 0;
        }
    }
    return count;
}

} // namespace

TEST_F(QuoteScreens, HeedsAWishForLittleMotionAtOnce) {
    store.set(K::screenAnim, u"drift"_s);
    auto screen = make();
    auto* inspector = new QWidget;
    screen->setInspector(inspector);
    screen->setWishes({.reducedMotion = true});
    screen->resize(900, 480);
    screen->show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return screen->view() != nullptr; }));
    EXPECT_EQ(inspector->x(), 900 - inspectorWidth);
    EXPECT_TRUE(screen->view()->state().settings.reducedMotion);
    screen->setWishes({});
    ASSERT_TRUE(QTest::qWaitFor([&] { return !screen->view()->state().settings.reducedMotion; }));
}

TEST_F(QuoteScreens, AsksForNoFramesOnceAStillScreenIsFinished) {
    const auto screen = shown();
    EXPECT_TRUE(screen->isAnimating());
    settle(*screen);
    const int frames = screen->frames;
    store.set(K::frequency, u"6h"_s); // a setting that the screen does not show
    QTest::qWait(200);
    EXPECT_EQ(screen->frames, frames);
    EXPECT_FALSE(screen->isAnimating());
    EXPECT_EQ(differing(screen->grab().toImage(), expected(*screen, 100)), 0);
}

TEST_F(QuoteScreens, DrawsTheSameInAWindowAsWithoutOne) {
    const auto screen = shown();
    for (const double after : {0.4, 0.8, 1.2, 2.0, 3.1}) {
        jumpTo(*screen, 50 + after);
        const QImage picture = screen->grab().toImage();
        EXPECT_EQ(differing(picture, expected(*screen, after)), 0) << after;
    }
}

TEST_F(QuoteScreens, RepaintsOnlyWhatMovesBetweenTicksOfTheBackdrop) {
    const auto screen = shown();
    jumpTo(*screen, 50 + 3.0); // only the hint is still moving
    jumpTo(*screen, 50 + 3.1);
    ASSERT_TRUE(QTest::qWaitFor([&] {
        time += 0.01;
        return screen->lastRegion.boundingRect().height() < 100;
    }));
    const QRect hint = screen->view()->rect(QuoteView::Element::Hint).toAlignedRect();
    EXPECT_TRUE(screen->lastRegion.boundingRect().intersects(hint));
    EXPECT_EQ(differing(screen->grab().toImage(), expected(*screen, time - 50)), 0);
}

TEST_F(QuoteScreens, ShowsASettingWithoutReplayingTheEntrance) {
    const auto screen = shown();
    settle(*screen);
    for (int palette = 1; palette < 9; ++palette) {
        store.set(K::palette, palette);
        ASSERT_TRUE(QTest::qWaitFor([&] {
            return screen->view()->state().palette.name == Palette::all()[size_t(palette)].name;
        }));
        EXPECT_EQ(screen->view()->lineAppearedAt(0), 0);
        EXPECT_EQ(differing(screen->grab().toImage(), expected(*screen, 100)), 0);
    }
    EXPECT_FALSE(screen->isAnimating());
    store.set(K::textAnim, u"rise"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return screen->view()->lineAppearedAt(0) > 0; }));
    EXPECT_EQ(screen->view()->lineAppearedAt(0), time - 50);
    EXPECT_TRUE(screen->isAnimating());
}

TEST_F(QuoteScreens, ShowsALateQuotationAndItsAuthor) {
    store.set(K::source, u"https://quotes.example/"_s);
    const auto screen = shown();
    settle(*screen);
    const double rule = screen->view()->closing().rule.delay;
    ASSERT_TRUE(loaded);
    loaded(Quote{u"Something that came over the wire, rather late in the day"_s, u"Source"_s});
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return screen->view()->state().quote.author == u"Source"_s; }));
    EXPECT_EQ(screen->view()->closing().rule.delay, rule);
    EXPECT_EQ(screen->view()->lineAppearedAt(0), time - 50);
    EXPECT_EQ(screen->spokenTexts().author, u"Source"_s);
    settle(*screen);
    EXPECT_EQ(differing(screen->grab().toImage(), expected(*screen, 1000)), 0);
}

TEST_F(QuoteScreens, ALoadMayEndAfterTheScreenIsDestroyed) {
    store.set(K::source, u"https://quotes.example/"_s);
    { const auto screen = shown(); }
    loaded(Quote{u"Too late to be seen"_s, u"Source"_s});
    EXPECT_EQ(store.text(K::cachedText), u"Too late to be seen"_s);
}

TEST_F(QuoteScreens, SlidesTheEditorInWithoutMovingTheColumn) {
    auto* panel = new QWidget;
    const auto screen = shown(panel);
    EXPECT_EQ(panel->parentWidget(), screen.get());
    EXPECT_TRUE(panel->isVisible());
    const QRectF mark = screen->view()->rect(QuoteView::Element::Mark);
    EXPECT_NEAR(mark.center().x(), (640 - 320) / 2.0, 1);
    EXPECT_EQ(panel->x(), 640);
    EXPECT_EQ(panel->size(), QSize(320, 480));
    time = 50 + 0.14;
    ASSERT_TRUE(QTest::qWaitFor([&] { return panel->x() < 640; }));
    EXPECT_NEAR(panel->x(), 640 - 320 * 0.6846, 1.5);
    EXPECT_EQ(screen->view()->rect(QuoteView::Element::Mark), mark);
    settle(*screen);
    EXPECT_EQ(panel->x(), 320);
    screen->resize(700, 500);
    EXPECT_EQ(panel->geometry(), QRect(380, 0, 320, 500));
    EXPECT_EQ(screen->spokenTexts().hint, u"esc to finish"_s);
}

TEST_F(QuoteScreens, ShowsThePhotosPaletteBeforeItsPixels) {
    store.set(K::bgImage, lake);
    const auto screen = shown();
    EXPECT_EQ(screen->view()->state().palette.name, u"Photo"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] {
        time += 1;
        return screen->grab().toImage().pixelColor(320, 60) != QColor(15, 15, 19);
    }));
    settle(*screen);
    const QImage picture = screen->grab().toImage();
    EXPECT_NE(picture.pixel(100, 100), picture.pixel(100, 400));
    store.set(K::bgImage, u""_s);
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return screen->view()->state().palette.name == u"Midnight"_s; }));
    EXPECT_EQ(differing(screen->grab().toImage(), expected(*screen, 1000)), 0);
}

TEST_F(QuoteScreens, FallsBackToTheMeshForAPhotoThatCannotBeDecoded) {
    // A file that ends after the header of the picture.
    QFile whole(lake);
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    const QString broken = folder.filePath(u"broken.png"_s);
    QImage(64, 64, QImage::Format_RGB32).save(broken);
    QFile file(broken);
    ASSERT_TRUE(file.resize(40));
    store.set(K::bgImage, broken);
    const auto screen = shown();
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return screen->view()->state().palette.name == u"Midnight"_s; }));
    settle(*screen);
    EXPECT_EQ(differing(screen->grab().toImage(), expected(*screen, 1000)), 0);
}

TEST_F(QuoteScreens, TriesAPhotoThatCouldNotBeDecodedAgainAtTheNextShowing) {
    const QString late = folder.filePath(u"late.png"_s);
    store.set(K::bgImage, late);
    {
        const auto screen = shown();
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return screen->view()->state().palette.name == u"Midnight"_s; }));
        screen->resize(600, 400); // not a reason to expect it
        ASSERT_TRUE(QTest::qWaitFor([&] { return screen->view()->state().size.width() == 600; }));
        EXPECT_EQ(screen->view()->state().palette.name, u"Midnight"_s);
    }
    QImage red(64, 64, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(late));
    const auto screen = shown();
    ASSERT_TRUE(QTest::qWaitFor([&] {
        time += 1;
        return screen->grab().toImage().pixelColor(320, 60).red() > 60;
    }));
    EXPECT_EQ(screen->view()->state().palette.name, u"Photo"_s);
}

TEST_F(QuoteScreens, FadesALatePhotoInOverTheOneBefore) {
    QImage first(1280, 960, QImage::Format_RGB32);
    first.fill(QColor(200, 40, 40));
    ASSERT_TRUE(first.save(folder.filePath(u"first.png"_s)));
    first.fill(QColor(40, 200, 40));
    ASSERT_TRUE(first.save(folder.filePath(u"second.png"_s)));
    store.set(K::vignette, 0);
    store.set(K::grain, false);
    store.set(K::bgImage, folder.filePath(u"first.png"_s));
    const auto screen = shown();
    // A pixel well above the text.
    const auto ground = [&] { return screen->grab().toImage().pixelColor(20, 100); };
    ASSERT_TRUE(QTest::qWaitFor([&] {
        time += 1;
        return ground().red() > 130;
    }));
    settle(*screen);

    const int frames = screen->frames;
    store.set(K::bgImage, folder.filePath(u"second.png"_s));
    ASSERT_TRUE(QTest::qWaitFor([&] { return screen->frames > frames; }));
    time += 5; // the decoder took its time
    ASSERT_TRUE(QTest::qWaitFor([&] { return screen->isAnimating(); }));
    EXPECT_GT(ground().red(), 130);
    time += 0.15;
    ASSERT_TRUE(QTest::qWaitFor([&] { return ground().red() < 110; }));
    EXPECT_GT(ground().red(), 50);
    EXPECT_GT(ground().green(), 50);
    settle(*screen);
    EXPECT_GT(ground().green(), 130);
    EXPECT_LT(ground().red(), 40);
}

TEST_F(QuoteScreens, DropsAPhotoThatIsNoLongerWanted) {
    for (int i = 0; i < 8; ++i) {
        store.set(K::bgImage, lake);
        const auto screen = shown();
        store.set(K::bgImage, u""_s);
        QTest::qWait(5);
    }
    const auto screen = shown();
    QTest::qWait(300);
    EXPECT_EQ(screen->view()->state().palette.name, u"Midnight"_s);
}

TEST_F(QuoteScreens, DrawsInAParentAtAnOffset) {
    QWidget window;
    window.resize(700, 560);
    CountingScreen* screen = make(&window).release();
    screen->setGeometry(30, 40, 640, 480);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    ASSERT_TRUE(QTest::qWaitFor([&] { return screen->view() != nullptr; }));
    time += 100;
    ASSERT_TRUE(QTest::qWaitFor([&] { return !screen->isAnimating(); }));
    QTest::qWait(20);
    const QImage whole = QApplication::primaryScreen()->grabWindow(window.winId()).toImage();
    ASSERT_FALSE(whole.isNull());
    const double ratio = window.devicePixelRatioF();
    const QRect place = QRectF(30 * ratio, 40 * ratio, 640 * ratio, 480 * ratio).toRect();
    EXPECT_EQ(differing(whole.copy(place), expected(*screen, 100)), 0);
}

TEST_F(QuoteScreens, ExposesItsTextsToScreenReaders) {
    const auto screen = shown();
    settle(*screen);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(screen.get());
    ASSERT_TRUE(spoken);
    const SpokenTexts texts = screen->spokenTexts();
    EXPECT_EQ(spoken->text(QAccessible::Name), texts.quotation + u" — "_s + texts.author);
    ASSERT_EQ(spoken->childCount(), 5);
    QStringList heard;
    for (int i = 0; i < 5; ++i) {
        QAccessibleInterface* child = spoken->child(i);
        ASSERT_TRUE(child);
        EXPECT_EQ(child->role(), QAccessible::StaticText);
        EXPECT_FALSE(child->state().invisible);
        EXPECT_FALSE(child->rect().isEmpty());
        EXPECT_EQ(spoken->indexOfChild(child), i);
        EXPECT_EQ(child->parent(), spoken);
        heard += child->text(QAccessible::Name);
    }
    EXPECT_EQ(heard, texts.all());
    EXPECT_EQ(heard.first(), u"Good morning"_s);
    EXPECT_FALSE(spoken->child(5));
    EXPECT_FALSE(spoken->child(-1));
    const QPoint middle = spoken->child(2)->rect().center();
    EXPECT_EQ(spoken->childAt(middle.x(), middle.y()), spoken->child(2));
}
