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
    EXPECT_EQ(titles, QStringList({u"APPEARANCE"_s, u"PALETTE"_s, u"YOUR PHOTO"_s, u"TYPEFACE"_s,
                                   u"SIZE"_s, u"VIGNETTE"_s, u"TRANSPARENCY"_s, u"TEXT REVEAL"_s,
                                   u"SCREEN MOTION"_s, u"GRAIN"_s}));
}

TEST_F(InspectorTest, PaletteSwatchesAreAutoAndThePalettes) {
    QStringList names;
    for (const auto* swatch : panel().findChildren<PaletteSwatch*>()) {
        names.append(swatch->text());
    }
    QStringList expected{u"Auto"_s};
    for (const Palette& palette : Palette::all()) {
        expected.append(palette.name);
    }
    EXPECT_EQ(names, expected);
}

TEST_F(InspectorTest, PaletteSwatchesAreMarkedByIndexWithoutPhoto) {
    EXPECT_EQ(marked(), QStringList{u"Auto"_s});
    store.set(K::palette, 3);
    EXPECT_EQ(marked(), QStringList{Palette::all()[3].name});
    store.set(K::palette, 99);
    EXPECT_EQ(marked(), QStringList());
    store.set(K::palette, 3);
    store.set(K::bgImage, u"/not/listed.jpg"_s);
    EXPECT_EQ(marked(), QStringList());
}

TEST_F(InspectorTest, APaletteDropsThePhoto) {
    store.set(K::bgImage, u"/p.jpg"_s);
    press(named<PaletteSwatch>(Palette::all()[2].name));
    EXPECT_EQ(Prefs::paletteIndex(store), 2);
    EXPECT_EQ(Prefs::bgImage(store), QString());
    EXPECT_EQ(marked(), QStringList{Palette::all()[2].name});
    press(named<PaletteSwatch>(u"Auto"_s));
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

TEST_F(InspectorTest, KnobsGoBothWays) {
    EXPECT_TRUE(readoutIs(u"Size"_s, u"100%"_s));
    EXPECT_TRUE(readoutIs(u"Vignette"_s, u"0.55"_s));
    EXPECT_TRUE(readoutIs(u"Transparency"_s, u"0%"_s));
    store.set(K::transparency, 0.3);
    EXPECT_TRUE(readoutIs(u"Transparency"_s, u"30%"_s));

    auto* size = named<PanelSlider>(u"Size"_s);
    QTest::keyClick(size, Qt::Key_Home);
    EXPECT_EQ(store.real(K::textScale), 0.7);
    QTest::keyClick(size, Qt::Key_End);
    EXPECT_EQ(store.real(K::textScale), 1.6);
    EXPECT_TRUE(readoutIs(u"Size"_s, u"160%"_s));
    auto* vignette = named<PanelSlider>(u"Vignette"_s);
    QTest::keyClick(vignette, Qt::Key_End);
    EXPECT_EQ(store.real(K::vignette), 0.85);
    EXPECT_TRUE(readoutIs(u"Vignette"_s, u"0.85"_s));
}

TEST_F(InspectorTest, KnobsFollowTheMouseWithoutSteps) {
    auto* slider = named<PanelSlider>(u"Transparency"_s);
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
    EXPECT_TRUE(readoutIs(u"Size"_s, u"700%"_s));
    EXPECT_EQ(named<PanelSlider>(u"Size"_s)->real(), 1.6);
    EXPECT_EQ(store.real(K::textScale), 7.0);
}

TEST_F(InspectorTest, AKnobAtTheEndOfItsRangeStoresTheEndWhenMovedThere) {
    store.set(K::textScale, 7.0);
    QTest::keyClick(named<PanelSlider>(u"Size"_s), Qt::Key_End);
    EXPECT_EQ(store.real(K::textScale), 1.6);
    EXPECT_TRUE(readoutIs(u"Size"_s, u"160%"_s));
    store.set(K::textScale, 0.1);
    named<PanelSlider>(u"Size"_s)->moveTo(0.7);
    EXPECT_EQ(store.real(K::textScale), 0.7);
}

TEST_F(InspectorTest, ReadoutsRoundAsPrintfDoes) {
    store.set(K::textScale, 1.125);
    EXPECT_TRUE(readoutIs(u"Size"_s, u"112%"_s));
    store.set(K::textScale, 1.135);
    EXPECT_TRUE(readoutIs(u"Size"_s, u"114%"_s));
    store.set(K::vignette, 0.125);
    EXPECT_TRUE(readoutIs(u"Vignette"_s, u"0.12"_s));
}

TEST_F(InspectorTest, ReadoutsOfHugeValuesFit) {
    const auto readout = [&](const QString& name) {
        return static_cast<Knob*>(named<PanelSlider>(name)->parentWidget())->readout();
    };
    for (const double huge : {1e308, -1e308, 1e6, -1e6, 1e20}) {
        store.set(K::textScale, huge);
        store.set(K::vignette, huge);
        for (const QString& name : {u"Size"_s, u"Vignette"_s}) {
            EXPECT_LE(readout(name)->sizeHint().width(), readout(name)->QWidget::width())
                << readout(name)->text().toStdString();
            EXPECT_LE(named<PanelSlider>(name)->valueText().size(), 8);
        }
    }
}

TEST_F(InspectorTest, GlassSwitchNeedsTransparency) {
    auto* control = named<QCheckBox>(u"Liquid Glass"_s);
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
    EXPECT_EQ(switches, QStringList{u"Film grain"_s});
}

TEST_F(InspectorTest, GrainSwitchGoesBothWays) {
    auto* control = named<QCheckBox>(u"Film grain"_s);
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
            texts.append(entry.value + u'=' + entry.text);
        }
        return texts;
    };
    EXPECT_EQ(entriesOf(u"Typeface"_s),
              QStringList({u"fraunces=Fraunces"_s, u"serif=Serif (New York)"_s,
                           u"sans=Sans (SF Pro)"_s, u"rounded=Rounded"_s, u"mono=Mono"_s}));
    QStringList reveals;
    for (const auto kind : allTextAnims) {
        reveals.append(rawValue(kind) + u'=' + label(kind));
    }
    EXPECT_EQ(entriesOf(u"Text reveal"_s), reveals);
    EXPECT_EQ(entriesOf(u"Screen motion"_s).size(), qsizetype(allScreenAnims.size()));

    auto* typeface = named<MenuPicker>(u"Typeface"_s);
    EXPECT_EQ(typeface->currentText(), u"Fraunces"_s);
    typeface->choose(3);
    EXPECT_EQ(store.text(K::font), u"rounded"_s);
    store.set(K::font, u"comic"_s);
    EXPECT_EQ(typeface->currentText(), QString());
    EXPECT_EQ(store.text(K::font), u"comic"_s);
    named<MenuPicker>(u"Text reveal"_s)->choose(1);
    EXPECT_EQ(store.text(K::textAnim), rawValue(TextAnim::Handwrite));
    named<MenuPicker>(u"Screen motion"_s)->choose(4);
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
    BGStore none(bare, QString(), folder.filePath(u"own"_s));
    const Inspector inspector(bare, none, files);
    EXPECT_EQ(inspector.findChildren<MenuPicker*>().first()->currentText(), u"Serif (New York)"_s);
}

TEST_F(InspectorTest, ResetWritesTenKeysInOrder) {
    listOwn({u"/own.jpg"_s});
    store.set(K::bgImage, u"/own.jpg"_s);
    store.set(K::palette, 3);
    store.set(K::font, u"mono"_s);
    store.set(K::textScale, 1.5);
    store.set(K::vignette, 0.1);
    store.set(K::transparency, 0.4);
    store.set(K::liquidGlass, false);
    store.set(K::textAnim, u"blur"_s);
    store.set(K::screenAnim, u"zoom"_s);
    store.set(K::grain, false);
    store.set(K::dismiss, 30.0);
    panel();
    QStringList written;
    QObject::connect(&store, &SettingsStore::changed, &store,
                     [&](const QString& name) { written.append(name); });
    press(named<QPushButton>(u"Reset"_s));
    EXPECT_EQ(written,
              QStringList({K::bgImage, K::palette, K::font, K::textScale, K::vignette,
                           K::transparency, K::liquidGlass, K::textAnim, K::screenAnim, K::grain}));
    EXPECT_EQ(Prefs::bgImage(store), QString());
    EXPECT_EQ(Prefs::paletteIndex(store), -1);
    EXPECT_EQ(store.text(K::font), u"fraunces"_s);
    EXPECT_EQ(store.value(K::textScale), QJsonValue(1.0));
    EXPECT_EQ(store.value(K::vignette), QJsonValue(0.55));
    EXPECT_EQ(store.value(K::transparency), QJsonValue(0.0));
    EXPECT_EQ(store.value(K::liquidGlass), QJsonValue(true));
    EXPECT_EQ(store.text(K::textAnim), u"fade"_s);
    EXPECT_EQ(store.text(K::screenAnim), u"drift"_s);
    EXPECT_EQ(store.value(K::grain), QJsonValue(true));
    EXPECT_EQ(Prefs::customBGs(store), QStringList{u"/own.jpg"_s});
    EXPECT_EQ(store.real(K::dismiss), 30);
    EXPECT_EQ(done, 0);
}

} // namespace
} // namespace morrowleaf
