// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "tests/settingsui/inspectorfixture.h"

namespace morrowleaf {
namespace {

TEST(InspectorLayout, ClearsAPanelAtTheTop) {
    const QRect whole(0, 0, 1000, 800);
    EXPECT_EQ(headerTopPadding(std::nullopt), 38);
    EXPECT_EQ(headerTopPadding(ScreenFrames{whole, whole}), 24);
    EXPECT_EQ(headerTopPadding(ScreenFrames{whole, QRect(0, 16, 1000, 784)}), 24);
    EXPECT_EQ(headerTopPadding(ScreenFrames{whole, QRect(0, 30, 1000, 770)}), 38);
    const QRect second(1000, 200, 1000, 800);
    EXPECT_EQ(headerTopPadding(ScreenFrames{second, second.adjusted(0, 50, 0, 0)}), 58);
}

TEST_F(InspectorTest, HasItsWidthAndTheGroupsInOrder) {
    EXPECT_EQ(Inspector::width, 320);
    EXPECT_EQ(panel().QWidget::width(), 320);
    QStringList titles;
    for (const auto* label : panel().findChildren<QLabel*>()) {
        if (label->text() == label->text().toUpper() && label->text().size() > 3 &&
            label->text().front().isLetter()) {
            titles.append(label->text());
        }
    }
    EXPECT_EQ(titles, QStringList({QStringLiteral("APPEARANCE"), QStringLiteral("PALETTE"),
                                   QStringLiteral("YOUR PHOTO"), QStringLiteral("TYPEFACE"),
                                   QStringLiteral("SIZE"), QStringLiteral("VIGNETTE"),
                                   QStringLiteral("TRANSPARENCY"), QStringLiteral("TEXT REVEAL"),
                                   QStringLiteral("SCREEN MOTION"), QStringLiteral("GRAIN")}));
}

TEST_F(InspectorTest, PaletteSwatchesAreAutoAndThePalettes) {
    QStringList names;
    for (const auto* swatch : panel().findChildren<PaletteSwatch*>()) {
        names.append(swatch->text());
    }
    QStringList expected{QStringLiteral("Auto")};
    for (const Palette& palette : Palette::all()) {
        expected.append(palette.name);
    }
    EXPECT_EQ(names, expected);
}

TEST_F(InspectorTest, PaletteSwatchesAreMarkedByIndexWithoutPhoto) {
    EXPECT_EQ(marked(), QStringList{QStringLiteral("Auto")});
    store.set(K::palette, 3);
    EXPECT_EQ(marked(), QStringList{Palette::all()[3].name});
    store.set(K::palette, 99);
    EXPECT_EQ(marked(), QStringList());
    store.set(K::palette, 3);
    store.set(K::bgImage, QStringLiteral("/not/listed.jpg"));
    EXPECT_EQ(marked(), QStringList());
}

TEST_F(InspectorTest, APaletteDropsThePhoto) {
    store.set(K::bgImage, QStringLiteral("/p.jpg"));
    press(named<PaletteSwatch>(Palette::all()[2].name));
    EXPECT_EQ(Prefs::paletteIndex(store), 2);
    EXPECT_EQ(Prefs::bgImage(store), QString());
    EXPECT_EQ(marked(), QStringList{Palette::all()[2].name});
    press(named<PaletteSwatch>(QStringLiteral("Auto")));
    EXPECT_EQ(Prefs::paletteIndex(store), -1);
}

TEST_F(InspectorTest, APhotoLeavesThePalette) {
    store.set(K::palette, 4);
    const QString path = photos.builtins().first();
    PhotoSwatch* swatch = photoSwatches().first();
    EXPECT_EQ(swatch->path(), path);
    press(swatch);
    EXPECT_EQ(Prefs::bgImage(store), path);
    EXPECT_EQ(Prefs::paletteIndex(store), 4);
    EXPECT_EQ(marked(), QStringList{swatch->accessibleName()});
}

TEST_F(InspectorTest, PhotoSwatchesShowTheirPicturesAtTheDevicesPixels) {
    panel();
    EXPECT_TRUE(await([&] {
        const auto all = photoSwatches();
        return std::all_of(all.begin(), all.end(), [](auto* s) { return s->hasPicture(); });
    }));
}

TEST_F(InspectorTest, AnUnreadablePhotoIsAPlainTileThatCanBeMarked) {
    listOwn({QStringLiteral("/missing.jpg")});
    store.set(K::bgImage, QStringLiteral("/missing.jpg"));
    panel();
    EXPECT_TRUE(photoSwatches().last()->isMarked());
    EXPECT_FALSE(photoSwatches().last()->hasPicture());
}

TEST_F(InspectorTest, AddTileGoesWithTheThirdOwnPhoto) {
    EXPECT_EQ(panel().findChildren<AddTile*>().size(), 1);
    EXPECT_EQ(panel().findChild<AddTile*>()->toolTip(),
              QStringLiteral("Add one of your own images, up to three"));
    EXPECT_EQ(panel().findChildren<RemoveButton*>().size(), 0);
    listOwn({QStringLiteral("/1"), QStringLiteral("/2"), QStringLiteral("/3")});
    EXPECT_EQ(panel().findChildren<AddTile*>().size(), 0);
    EXPECT_EQ(panel().findChildren<RemoveButton*>().size(), 3);
    press(panel().findChildren<RemoveButton*>().last());
    EXPECT_EQ(Prefs::customBGs(store), QStringList({QStringLiteral("/1"), QStringLiteral("/2")}));
    EXPECT_EQ(panel().findChildren<AddTile*>().size(), 1);
    EXPECT_TRUE(panel().findChild<AddTile*>()->isVisible());
}

TEST_F(InspectorTest, TheKeyboardStaysWhereAPhotoWasRemoved) {
    listOwn({QStringLiteral("/1"), QStringLiteral("/2"), QStringLiteral("/3")});
    panel().findChildren<RemoveButton*>()[1]->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_EQ(Prefs::customBGs(store), QStringList({QStringLiteral("/1"), QStringLiteral("/3")}));
    EXPECT_EQ(window().focusWidget(), photoSwatches().last());
    EXPECT_EQ(photoSwatches().last()->path(), QStringLiteral("/3"));
    key(Qt::Key_Tab);
    key(Qt::Key_Space);
    EXPECT_EQ(window().focusWidget(), panel().findChild<AddTile*>());
    named<PanelSlider>(QStringLiteral("Size"))->setFocus(Qt::TabFocusReason);
    listOwn({});
    EXPECT_TRUE(named<PanelSlider>(QStringLiteral("Size"))->hasFocus());
}

TEST_F(InspectorTest, RemovingTheChosenPhotoDeletesItAndTheChoice) {
    const QString own = picture(QStringLiteral("own.png"));
    listOwn({own});
    store.set(K::bgImage, own);
    store.set(K::palette, 1);
    press(panel().findChild<RemoveButton*>());
    EXPECT_FALSE(QFile::exists(own));
    EXPECT_EQ(Prefs::bgImage(store), QString());
    EXPECT_EQ(marked(), QStringList{Palette::all()[1].name});
}

TEST_F(InspectorTest, AnAddedPhotoIsListedAndChosen) {
    press(panel().findChild<AddTile*>());
    press(panel().findChild<AddTile*>());
    EXPECT_EQ(files.asked, 1);
    pick(picture(QStringLiteral("new.png")));
    ASSERT_TRUE(await([&] { return !Prefs::bgImage(store).isEmpty(); }));
    EXPECT_EQ(Prefs::customBGs(store), QStringList{Prefs::bgImage(store)});
    EXPECT_TRUE(photoSwatches().last()->isMarked());
    EXPECT_TRUE(await([&] { return photoSwatches().last()->hasPicture(); }));
}

TEST_F(InspectorTest, OddNamesOfPhotosAreNoHindrance) {
    const QStringList names{
        QStringLiteral("\u05de\u05d5\u05e8\u05d9\u05d3 \u202e right to left.png"),
        QString(80, QChar(0x4e2d)) + QStringLiteral(".png"),
        QStringLiteral("50% & <b>bold<b>\n#?.png")};
    for (qsizetype i = 0; i < names.size(); ++i) {
        press(panel().findChild<AddTile*>());
        pick(picture(names[i]));
        ASSERT_TRUE(await([&] { return Prefs::customBGs(store).size() == i + 1; }));
        ASSERT_TRUE(await([&] { return photoSwatches().last()->isMarked(); }));
        EXPECT_TRUE(await([&] { return photoSwatches().last()->hasPicture(); }));
        EXPECT_EQ(photoSwatches().last()->accessibleName(),
                  QStringLiteral("Your photo %1").arg(i + 1));
    }
}

TEST_F(InspectorTest, ManyStoredPhotosAreAllListed) {
    QStringList paths;
    for (int i = 0; i < 500; ++i) {
        paths.append(QStringLiteral("/missing/%1.jpg").arg(i));
    }
    listOwn(paths);
    EXPECT_EQ(panel().findChildren<RemoveButton*>().size(), 500);
    EXPECT_EQ(panel().findChildren<AddTile*>().size(), 0);
    listOwn({});
    EXPECT_EQ(photoSwatches().size(), photos.builtins().size());
}

TEST_F(InspectorTest, ACancelledOrRefusedPhotoChangesNothing) {
    press(panel().findChild<AddTile*>());
    files.answer({.kind = FileAnswer::Kind::Cancelled, .path = {}});
    press(panel().findChild<AddTile*>());
    EXPECT_EQ(files.asked, 2);
    QSignalSpy changes(&store, &SettingsStore::changed);
    pick(QStringLiteral("/etc/passwd"));
    press(panel().findChild<AddTile*>());
    QTest::qWait(50);
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(InspectorTest, AnnouncesADialogBeforeItOpensAndAfterItHasGone) {
    QStringList order;
    QObject::connect(&panel(), &Inspector::dialogOpening, &panel(), [&] {
        EXPECT_EQ(files.asked, 0);
        order.append(QStringLiteral("opening"));
    });
    QObject::connect(&panel(), &Inspector::dialogClosed, &panel(),
                     [&] { order.append(QStringLiteral("closed")); });
    press(panel().findChild<AddTile*>());
    EXPECT_EQ(order, QStringList{QStringLiteral("opening")});
    pick(QStringLiteral("/etc/passwd"));
    EXPECT_EQ(order, QStringList({QStringLiteral("opening"), QStringLiteral("closed")}));
}

TEST_F(InspectorTest, KnobsGoBothWays) {
    EXPECT_TRUE(readoutIs(QStringLiteral("Size"), QStringLiteral("100%")));
    EXPECT_TRUE(readoutIs(QStringLiteral("Vignette"), QStringLiteral("0.55")));
    EXPECT_TRUE(readoutIs(QStringLiteral("Transparency"), QStringLiteral("0%")));
    store.set(K::transparency, 0.3);
    EXPECT_TRUE(readoutIs(QStringLiteral("Transparency"), QStringLiteral("30%")));

    auto* size = named<PanelSlider>(QStringLiteral("Size"));
    QTest::keyClick(size, Qt::Key_Home);
    EXPECT_EQ(store.real(K::textScale), 0.7);
    QTest::keyClick(size, Qt::Key_End);
    EXPECT_EQ(store.real(K::textScale), 1.6);
    EXPECT_TRUE(readoutIs(QStringLiteral("Size"), QStringLiteral("160%")));
    auto* vignette = named<PanelSlider>(QStringLiteral("Vignette"));
    QTest::keyClick(vignette, Qt::Key_End);
    EXPECT_EQ(store.real(K::vignette), 0.85);
    EXPECT_TRUE(readoutIs(QStringLiteral("Vignette"), QStringLiteral("0.85")));
}

TEST_F(InspectorTest, KnobsFollowTheMouseWithoutSteps) {
    auto* slider = named<PanelSlider>(QStringLiteral("Transparency"));
    const int middle = slider->height() / 2;
    QTest::mousePress(slider, Qt::LeftButton, {}, {slider->QWidget::width() / 2, middle});
    EXPECT_NEAR(store.real(K::transparency), 0.5, 0.01);
    QTest::mouseMove(slider, {slider->QWidget::width() / 2 + 1, middle});
    QTest::mouseRelease(slider, Qt::LeftButton, {}, {5000, middle});
    slider->moveTo(0.123456);
    EXPECT_EQ(store.real(K::transparency), 0.123456);
}

TEST_F(InspectorTest, ValuesOutOfRangeAreShownAndKept) {
    store.set(K::textScale, 7.0);
    EXPECT_TRUE(readoutIs(QStringLiteral("Size"), QStringLiteral("700%")));
    EXPECT_EQ(named<PanelSlider>(QStringLiteral("Size"))->real(), 1.6);
    EXPECT_EQ(store.real(K::textScale), 7.0);
}

TEST_F(InspectorTest, GlassSwitchNeedsTransparency) {
    auto* control = named<QCheckBox>(QStringLiteral("Liquid Glass"));
    EXPECT_FALSE(control->isEnabled());
    store.set(K::transparency, 0.0099);
    EXPECT_FALSE(control->isEnabled());
    store.set(K::transparency, 0.01);
    EXPECT_TRUE(control->isEnabled());
    press(control);
    EXPECT_EQ(store.value(K::liquidGlass), QJsonValue(false));
    store.set(K::liquidGlass, true);
    EXPECT_TRUE(control->isChecked());
}

TEST_F(InspectorTest, GlassSwitchIsAbsentWhereGlassCannotBeDrawn) {
    glass = false;
    QStringList switches;
    for (const auto* control : panel().findChildren<QCheckBox*>()) {
        switches.append(control->text());
    }
    EXPECT_EQ(switches, QStringList{QStringLiteral("Film grain")});
}

TEST_F(InspectorTest, GrainSwitchGoesBothWays) {
    auto* control = named<QCheckBox>(QStringLiteral("Film grain"));
    EXPECT_TRUE(control->isChecked());
    press(control);
    EXPECT_EQ(store.value(K::grain), QJsonValue(false));
    store.set(K::grain, true);
    EXPECT_TRUE(control->isChecked());
}

TEST_F(InspectorTest, PickersListTheirEntriesAndGoBothWays) {
    const auto entriesOf = [&](const QString& name) {
        QStringList texts;
        for (const auto& entry : named<MenuPicker>(name)->entries()) {
            texts.append(entry.value + QLatin1Char('=') + entry.text);
        }
        return texts;
    };
    EXPECT_EQ(
        entriesOf(QStringLiteral("Typeface")),
        QStringList({QStringLiteral("fraunces=Fraunces"), QStringLiteral("serif=Serif (New York)"),
                     QStringLiteral("sans=Sans (SF Pro)"), QStringLiteral("rounded=Rounded"),
                     QStringLiteral("mono=Mono")}));
    QStringList reveals;
    for (const auto kind : allTextAnims) {
        reveals.append(rawValue(kind) + QLatin1Char('=') + label(kind));
    }
    EXPECT_EQ(entriesOf(QStringLiteral("Text reveal")), reveals);
    EXPECT_EQ(entriesOf(QStringLiteral("Screen motion")).size(), qsizetype(allScreenAnims.size()));

    auto* typeface = named<MenuPicker>(QStringLiteral("Typeface"));
    EXPECT_EQ(typeface->currentText(), QStringLiteral("Fraunces"));
    typeface->choose(3);
    EXPECT_EQ(store.text(K::font), QStringLiteral("rounded"));
    store.set(K::font, QStringLiteral("comic"));
    EXPECT_EQ(typeface->currentText(), QString());
    EXPECT_EQ(store.text(K::font), QStringLiteral("comic"));
    named<MenuPicker>(QStringLiteral("Text reveal"))->choose(1);
    EXPECT_EQ(store.text(K::textAnim), rawValue(TextAnim::Handwrite));
    named<MenuPicker>(QStringLiteral("Screen motion"))->choose(4);
    EXPECT_EQ(store.text(K::screenAnim), rawValue(ScreenAnim::Zoom));
}

TEST_F(InspectorTest, PickersOfferWhatTheTableOfSettingsLists) {
    panel();
    const std::pair<const char*, const TextSetting*> pickers[] = {
        {"Typeface", &K::font}, {"Text reveal", &K::textAnim}, {"Screen motion", &K::screenAnim}};
    for (const auto& [name, setting] : pickers) {
        auto* picker = named<MenuPicker>(QString::fromLatin1(name));
        for (size_t i = 0; i < setting->choices.size(); ++i) {
            picker->choose(int(i));
            EXPECT_EQ(store.get(*setting), setting->choices[i]);
        }
    }
    EXPECT_EQ(K::palette.highest, qint64(Palette::all().size()) - 1);
}

TEST_F(InspectorTest, WithoutDefaultsTheTypefaceIsSerif) {
    SettingsStore bare;
    BGStore none(bare, QString(), folder.filePath(QStringLiteral("own")));
    const Inspector inspector(bare, none, files);
    EXPECT_EQ(inspector.findChildren<MenuPicker*>().first()->currentText(),
              QStringLiteral("Serif (New York)"));
}

TEST_F(InspectorTest, ResetWritesTenKeysInOrder) {
    listOwn({QStringLiteral("/own.jpg")});
    store.set(K::bgImage, QStringLiteral("/own.jpg"));
    store.set(K::palette, 3);
    store.set(K::font, QStringLiteral("mono"));
    store.set(K::textScale, 1.5);
    store.set(K::vignette, 0.1);
    store.set(K::transparency, 0.4);
    store.set(K::liquidGlass, false);
    store.set(K::textAnim, QStringLiteral("blur"));
    store.set(K::screenAnim, QStringLiteral("zoom"));
    store.set(K::grain, false);
    store.set(K::dismiss, 30.0);
    panel();
    QStringList written;
    QObject::connect(&store, &SettingsStore::changed, &store,
                     [&](const QString& name) { written.append(name); });
    press(named<QPushButton>(QStringLiteral("Reset")));
    EXPECT_EQ(written,
              QStringList({K::bgImage, K::palette, K::font, K::textScale, K::vignette,
                           K::transparency, K::liquidGlass, K::textAnim, K::screenAnim, K::grain}));
    EXPECT_EQ(Prefs::bgImage(store), QString());
    EXPECT_EQ(Prefs::paletteIndex(store), -1);
    EXPECT_EQ(store.text(K::font), QStringLiteral("fraunces"));
    EXPECT_EQ(store.value(K::textScale), QJsonValue(1.0));
    EXPECT_EQ(store.value(K::vignette), QJsonValue(0.55));
    EXPECT_EQ(store.value(K::transparency), QJsonValue(0.0));
    EXPECT_EQ(store.value(K::liquidGlass), QJsonValue(true));
    EXPECT_EQ(store.text(K::textAnim), QStringLiteral("fade"));
    EXPECT_EQ(store.text(K::screenAnim), QStringLiteral("drift"));
    EXPECT_EQ(store.value(K::grain), QJsonValue(true));
    EXPECT_EQ(Prefs::customBGs(store), QStringList{QStringLiteral("/own.jpg")});
    EXPECT_EQ(store.real(K::dismiss), 30);
    EXPECT_EQ(done, 0);
}

} // namespace
} // namespace morrowleaf
