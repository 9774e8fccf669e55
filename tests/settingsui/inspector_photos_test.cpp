// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "tests/settingsui/inspectorfixture.h"

#include <QDir>
#include <QFile>
#include <QFileSystemWatcher>

namespace morrowleaf {
namespace {

TEST_F(InspectorTest, PhotoSwatchesShowTheirPicturesAtTheDevicesPixels) {
    panel();
    EXPECT_TRUE(await([&] {
        const auto all = photoSwatches();
        return std::all_of(all.begin(), all.end(), [](auto* s) { return s->hasPicture(); });
    }));
}

TEST_F(InspectorTest, AnUnreadablePhotoIsAPlainTileThatCanBeMarked) {
    listOwn({u"/missing.jpg"_s});
    store.set(K::bgImage, u"/missing.jpg"_s);
    panel();
    EXPECT_TRUE(photoSwatches().last()->isMarked());
    EXPECT_FALSE(photoSwatches().last()->hasPicture());
}

TEST_F(InspectorTest, AddTileGoesWithTheThirdOwnPhoto) {
    EXPECT_EQ(panel().findChildren<AddTile*>().size(), 1);
    EXPECT_EQ(panel().findChild<AddTile*>()->toolTip(),
              u"Add one of your own images, up to three"_s);
    EXPECT_EQ(panel().findChildren<RemoveButton*>().size(), 0);
    listOwn({u"/1"_s, u"/2"_s, u"/3"_s});
    EXPECT_EQ(panel().findChildren<AddTile*>().size(), 0);
    EXPECT_EQ(panel().findChildren<RemoveButton*>().size(), 3);
    press(panel().findChildren<RemoveButton*>().last());
    EXPECT_EQ(Prefs::customBGs(store), QStringList({u"/1"_s, u"/2"_s}));
    EXPECT_EQ(panel().findChildren<AddTile*>().size(), 1);
    EXPECT_TRUE(panel().findChild<AddTile*>()->isVisible());
}

TEST_F(InspectorTest, TheKeyboardStaysWhereAPhotoWasRemoved) {
    listOwn({u"/1"_s, u"/2"_s, u"/3"_s});
    panel().findChildren<RemoveButton*>()[1]->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_EQ(Prefs::customBGs(store), QStringList({u"/1"_s, u"/3"_s}));
    EXPECT_EQ(window().focusWidget(), photoSwatches().last());
    EXPECT_EQ(photoSwatches().last()->path(), u"/3"_s);
    key(Qt::Key_Tab);
    key(Qt::Key_Space);
    EXPECT_EQ(window().focusWidget(), panel().findChild<AddTile*>());
    named<PanelSlider>(u"Size"_s)->setFocus(Qt::TabFocusReason);
    listOwn({});
    EXPECT_TRUE(named<PanelSlider>(u"Size"_s)->hasFocus());
}

TEST_F(InspectorTest, RemovingTheChosenPhotoDeletesItAndTheChoice) {
    const QString own = picture(u"own.png"_s);
    listOwn({own});
    store.set(K::bgImage, own);
    store.set(K::palette, 1);
    press(panel().findChild<RemoveButton*>());
    EXPECT_EQ(Prefs::bgImage(store), QString());
    EXPECT_EQ(marked(), QStringList{Palette::all()[1].name});
    EXPECT_TRUE(await([&] { return !QFile::exists(own); }));
}

TEST_F(InspectorTest, AnAddedPhotoIsListedAndChosen) {
    press(panel().findChild<AddTile*>());
    press(panel().findChild<AddTile*>());
    EXPECT_EQ(files.asked, 1);
    pick(picture(u"new.png"_s));
    ASSERT_TRUE(await([&] { return !Prefs::bgImage(store).isEmpty(); }));
    EXPECT_EQ(Prefs::customBGs(store), QStringList{Prefs::bgImage(store)});
    EXPECT_TRUE(photoSwatches().last()->isMarked());
    EXPECT_TRUE(await([&] { return photoSwatches().last()->hasPicture(); }));
}

TEST_F(InspectorTest, AnAddedPhotoIsChosenEvenIfTheEditorHasClosed) {
    press(panel().findChild<AddTile*>());
    pick(picture(u"new.png"_s));
    closeEditor();
    ASSERT_TRUE(await([&] { return !Prefs::customBGs(store).isEmpty(); }));
    EXPECT_EQ(Prefs::bgImage(store), Prefs::customBGs(store).first());
}

TEST_F(InspectorTest, AnAddedPhotoIsNotCancelledOnceTheEditorIsOpenAgain) {
    press(panel().findChild<AddTile*>());
    pick(picture(u"new.png"_s));
    closeEditor();
    photos.awaitAdds(std::chrono::milliseconds(0)).reset(); // as if the ten seconds were over
    panel();
    ASSERT_TRUE(await([&] { return !Prefs::customBGs(store).isEmpty(); }));
    EXPECT_EQ(Prefs::bgImage(store), Prefs::customBGs(store).first());
}

TEST_F(InspectorTest, APhotoThatCouldNotBeDecodedIsTriedAgainWhenTheEditorOpens) {
    const QString own = folder.filePath(u"own.png"_s);
    listOwn({own});
    panel();
    QTest::qWait(300);
    EXPECT_FALSE(photoSwatches().last()->hasPicture());
    closeEditor();
    picture(u"own.png"_s);
    panel();
    EXPECT_TRUE(await([&] { return photoSwatches().last()->hasPicture(); }));
}

TEST_F(InspectorTest, OddNamesOfPhotosAreNoHindrance) {
    const QStringList names{u"\u05de\u05d5\u05e8\u05d9\u05d3 \u202e right to left.png"_s,
                            QString(80, QChar(0x4e2d)) + ".png"_L1, u"50% & <b>bold<b>\n#?.png"_s};
    for (qsizetype i = 0; i < names.size(); ++i) {
        press(panel().findChild<AddTile*>());
        pick(picture(names[i]));
        ASSERT_TRUE(await([&] { return Prefs::customBGs(store).size() == i + 1; }));
        ASSERT_TRUE(await([&] { return photoSwatches().last()->isMarked(); }));
        EXPECT_TRUE(await([&] { return photoSwatches().last()->hasPicture(); }));
        EXPECT_EQ(photoSwatches().last()->accessibleName(), u"Your photo %1"_s.arg(i + 1));
    }
}

TEST_F(InspectorTest, ShowsTheFirstHundredOfManyStoredPhotos) {
    QStringList paths;
    for (int i = 0; i < 500; ++i) {
        paths.append(u"/missing/%1.jpg"_s.arg(i));
    }
    listOwn(paths.first(100));
    EXPECT_EQ(panel().findChildren<RemoveButton*>().size(), 100);
    listOwn(paths);
    EXPECT_EQ(panel().findChildren<RemoveButton*>().size(), 100);
    EXPECT_EQ(panel().findChildren<AddTile*>().size(), 0);
    EXPECT_EQ(photoSwatches().last()->path(), paths[99]);
    press(panel().findChildren<RemoveButton*>().last());
    EXPECT_EQ(panel().findChildren<RemoveButton*>().size(), 100);
    EXPECT_EQ(photoSwatches().last()->path(), paths[100]);
    EXPECT_EQ(Prefs::customBGs(store).size(), 499);
    listOwn({});
    EXPECT_EQ(photoSwatches().size(), photos.builtins().size());
}

TEST_F(InspectorTest, ACancelledOrRefusedPhotoChangesNothing) {
    press(panel().findChild<AddTile*>());
    files.answer({.kind = FileAnswer::Kind::Cancelled, .path = {}});
    press(panel().findChild<AddTile*>());
    EXPECT_EQ(files.asked, 2);
    QSignalSpy changes(&store, &SettingsStore::changed);
    // The copy of a photo that ends early is made, refused and deleted.
    QFile damaged(picture(u"damaged.png"_s));
    ASSERT_TRUE(damaged.resize(damaged.size() / 2));
    const QDir own(folder.filePath(u"own"_s));
    ASSERT_TRUE(own.mkpath(u"."_s));
    QFileSystemWatcher watcher({own.path()});
    QSignalSpy copies(&watcher, &QFileSystemWatcher::directoryChanged);
    pick(damaged.fileName());
    press(panel().findChild<AddTile*>());
    EXPECT_TRUE(await([&] { return copies.count() > 0 && own.isEmpty(); }));
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(InspectorTest, AnnouncesADialogBeforeItOpensAndAfterItHasGone) {
    QStringList order;
    QObject::connect(&panel(), &Inspector::dialogOpening, &panel(), [&] {
        EXPECT_EQ(files.asked, 0);
        order.append(u"opening"_s);
    });
    QObject::connect(&panel(), &Inspector::dialogClosed, &panel(),
                     [&] { order.append(u"closed"_s); });
    press(panel().findChild<AddTile*>());
    EXPECT_EQ(order, QStringList{u"opening"_s});
    pick(u"/etc/passwd"_s);
    EXPECT_EQ(order, QStringList({u"opening"_s, u"closed"_s}));
}

TEST_F(InspectorTest, TheToolTipOfTheAddTileTakesThePanelsColours) {
    window();
    auto* tile = panel().findChild<AddTile*>();
    QHelpEvent help(QEvent::ToolTip, tile->rect().center(),
                    tile->mapToGlobal(tile->rect().center()));
    QCoreApplication::sendEvent(tile, &help);
    const QWidget* tip = nullptr;
    for (const QWidget* top : QApplication::topLevelWidgets()) {
        if (top->inherits("QTipLabel") && top->isVisible()) {
            tip = top;
        }
    }
    ASSERT_NE(tip, nullptr);
    const QImage drawn = const_cast<QWidget*>(tip)->grab().toImage();
    const QColor menu = PanelStyle::menuGround();
    int ground = 0;
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x) {
            ground += drawn.pixelColor(x, y) == menu ? 1 : 0;
        }
    }
    EXPECT_GT(ground, drawn.width() * drawn.height() / 2);
}

} // namespace
} // namespace morrowleaf
