#include "quotes/bgstore.h"
#include "quotes/prefs.h"
#include "quotes/settingskeys.h"
#include "quotes/settingsstore.h"
#include "screen/ground/animationkinds.h"
#include "screen/ground/palettes.h"
#include "settingsui/inspector.h"
#include "settingsui/knob.h"
#include "settingsui/menupicker.h"
#include "settingsui/panelslider.h"
#include "settingsui/pickermenu.h"
#include "settingsui/swatch.h"
#include "settingsui/switch.h"

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

class InspectorTest : public ::testing::Test {
protected:
    InspectorTest() { registerAppDefaults(store); }

    Inspector& panel() {
        if (!window_) {
            window_ = std::make_unique<QWidget>();
            window_->resize(700, 900);
            panel_ = new Inspector(
                {.store = store,
                 .photos = photos,
                 .choosePhoto =
                     [this](QWidget*, auto picked) {
                         ++dialogs;
                         pick = std::move(picked);
                     },
                 .glassCanBeDrawn = glass,
                 .screen = {}},
                [this] { ++done; }, window_.get());
            panel_->setGeometry(380, 0, 320, 900);
            window_->show();
            QApplication::setActiveWindow(window_.get());
            EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));
        }
        return *panel_;
    }
    QWidget& window() {
        panel();
        return *window_;
    }
    template <typename T>
    T* named(const QString& name) {
        for (auto* found : panel().findChildren<T*>()) {
            if (found->accessibleName() == name || found->property("text") == name) {
                return found;
            }
        }
        ADD_FAILURE() << "no " << name.toStdString();
        return nullptr;
    }
    QList<PhotoSwatch*> photoSwatches() { return panel().findChildren<PhotoSwatch*>(); }
    QStringList marked() {
        QStringList names;
        for (const auto* swatch : panel().findChildren<Swatch*>()) {
            if (swatch->isMarked()) {
                names.append(swatch->accessibleName());
            }
        }
        return names;
    }
    void press(QWidget* widget) { QTest::mouseClick(widget, Qt::LeftButton); }
    void key(int code) {
        QTest::keyClick(window().windowHandle(), Qt::Key(code));
        QCoreApplication::processEvents();
    }
    QString picture(const QString& name) {
        QImage image(60, 40, QImage::Format_RGB32);
        image.fill(Qt::red);
        image.save(folder.filePath(name), "png");
        return folder.filePath(name);
    }
    template <typename Condition>
    bool await(Condition condition) {
        QElapsedTimer since;
        since.start();
        while (!condition() && since.elapsed() < 60'000) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        return condition();
    }
    void listOwn(const QStringList& paths) {
        store.set(K::customBGs, QJsonArray::fromStringList(paths));
    }
    bool readoutIs(const QString& name, const QString& text) {
        auto* slider = named<PanelSlider>(name);
        auto* knob = static_cast<Knob*>(slider->parentWidget());
        return knob->readout()->text() == text && slider->valueText() == text;
    }

    QTemporaryDir folder;
    SettingsStore store;
    BGStore photos{store, QStringLiteral(MORROWLEAF_RESOURCE_DIR "/Backgrounds"),
                   folder.filePath(QStringLiteral("own"))};
    bool glass = true;
    int done = 0;
    int dialogs = 0;
    std::function<void(std::optional<QString>)> pick;

private:
    std::unique_ptr<QWidget> window_;
    Inspector* panel_ = nullptr;
};

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
    EXPECT_EQ(dialogs, 1);
    pick(picture(QStringLiteral("new.png")));
    ASSERT_TRUE(await([&] { return !Prefs::bgImage(store).isEmpty(); }));
    EXPECT_EQ(Prefs::customBGs(store), QStringList{Prefs::bgImage(store)});
    EXPECT_TRUE(photoSwatches().last()->isMarked());
    EXPECT_TRUE(await([&] { return photoSwatches().last()->hasPicture(); }));
}

TEST_F(InspectorTest, ACancelledOrRefusedPhotoChangesNothing) {
    press(panel().findChild<AddTile*>());
    pick(std::nullopt);
    press(panel().findChild<AddTile*>());
    EXPECT_EQ(dialogs, 2);
    QSignalSpy changes(&store, &SettingsStore::changed);
    pick(QStringLiteral("/etc/passwd"));
    press(panel().findChild<AddTile*>());
    QTest::qWait(50);
    EXPECT_EQ(changes.count(), 0);
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
    EXPECT_EQ(named<PanelSlider>(QStringLiteral("Size"))->value(), 1.6);
    EXPECT_EQ(store.real(K::textScale), 7.0);
}

TEST_F(InspectorTest, GlassSwitchNeedsTransparency) {
    auto* control = named<Switch>(QStringLiteral("Liquid Glass"));
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
    for (const auto* control : panel().findChildren<Switch*>()) {
        switches.append(control->text());
    }
    EXPECT_EQ(switches, QStringList{QStringLiteral("Film grain")});
}

TEST_F(InspectorTest, GrainSwitchGoesBothWays) {
    auto* control = named<Switch>(QStringLiteral("Film grain"));
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

TEST_F(InspectorTest, WithoutDefaultsTheTypefaceIsSerif) {
    SettingsStore bare;
    BGStore none(bare, QString(), folder.filePath(QStringLiteral("own")));
    const Inspector inspector({.store = bare, .photos = none, .choosePhoto = {}, .screen = {}});
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

TEST_F(InspectorTest, ReturnRunsDoneFromAnywhereButAMenu) {
    window();
    key(Qt::Key_Return);
    EXPECT_EQ(done, 1);
    named<QPushButton>(QStringLiteral("Reset"))->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Enter);
    EXPECT_EQ(done, 2);
    press(named<QPushButton>(QStringLiteral("Done")));
    EXPECT_EQ(done, 3);

    auto* picker = named<MenuPicker>(QStringLiteral("Text reveal"));
    picker->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    ASSERT_TRUE(picker->isOpen());
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_FALSE(picker->isOpen());
    EXPECT_EQ(done, 3);
    EXPECT_EQ(store.text(K::textAnim), rawValue(allTextAnims[1]));
    EXPECT_TRUE(picker->hasFocus());
}

// Stands for whatever waits for Escape in the program.
class EscapeCounter : public QObject {
public:
    EscapeCounter() { qApp->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::KeyPress &&
            static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            ++count;
            return true;
        }
        return false;
    }
};

TEST_F(InspectorTest, EscapeInAMenuClosesOnlyTheMenu) {
    window();
    EscapeCounter editing;
    auto* picker = named<MenuPicker>(QStringLiteral("Typeface"));
    picker->open();
    ASSERT_TRUE(picker->isOpen());
    key(Qt::Key_Escape);
    EXPECT_FALSE(picker->isOpen());
    EXPECT_EQ(editing.count, 0);
    EXPECT_FALSE(store.text(K::font) != QStringLiteral("fraunces"));
    key(Qt::Key_Escape);
    EXPECT_EQ(editing.count, 1);
}

TEST_F(InspectorTest, AMenuClosesByAPressBesideIt) {
    auto* picker = named<MenuPicker>(QStringLiteral("Typeface"));
    picker->open();
    QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, QPoint(20, 20));
    EXPECT_FALSE(picker->isOpen());
    picker->open();
    ASSERT_TRUE(picker->isOpen());
    QListWidget* list = picker->menu()->list();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(4)).center());
    EXPECT_EQ(store.text(K::font), QStringLiteral("mono"));
    EXPECT_FALSE(picker->isOpen());
}

TEST_F(InspectorTest, SpacePressesTheFocusedControl) {
    window();
    named<PaletteSwatch>(Palette::all()[1].name)->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_EQ(Prefs::paletteIndex(store), 1);
    named<Switch>(QStringLiteral("Film grain"))->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_EQ(store.value(K::grain), QJsonValue(false));
}

TEST_F(InspectorTest, TabGoesThroughEveryControlInVisualOrderAndRound) {
    listOwn({picture(QStringLiteral("own.png"))});
    store.set(K::transparency, 0.5);
    window();
    QStringList names;
    for (int i = 0; i < 60; ++i) {
        key(Qt::Key_Tab);
        auto* at = window().focusWidget();
        ASSERT_NE(at, nullptr);
        const auto* face = QAccessible::queryAccessibleInterface(at);
        const QString name = face->text(QAccessible::Name);
        EXPECT_FALSE(name.isEmpty());
        if (!names.isEmpty() && name == names.first()) {
            break;
        }
        EXPECT_FALSE(at->visibleRegion().isEmpty()) << name.toStdString();
        names.append(name);
    }
    QStringList expected{QStringLiteral("Auto")};
    for (const Palette& palette : Palette::all()) {
        expected.append(palette.name);
    }
    expected += {QStringLiteral("Aurora"),       QStringLiteral("Dunes"),
                 QStringLiteral("Forest"),       QStringLiteral("Lake"),
                 QStringLiteral("Ridges"),       QStringLiteral("Sea"),
                 QStringLiteral("Your photo 1"), QStringLiteral("Remove your photo 1"),
                 QStringLiteral("Add a photo"),  QStringLiteral("Typeface"),
                 QStringLiteral("Size"),         QStringLiteral("Vignette"),
                 QStringLiteral("Transparency"), QStringLiteral("Liquid Glass"),
                 QStringLiteral("Text reveal"),  QStringLiteral("Screen motion"),
                 QStringLiteral("Film grain"),   QStringLiteral("Reset"),
                 QStringLiteral("Done")};
    EXPECT_EQ(names, expected);
    key(Qt::Key_Backtab);
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(window().focusWidget())->text(QAccessible::Name),
        QStringLiteral("Done"));
}

TEST_F(InspectorTest, TellsRolesStatesAndValues) {
    store.set(K::palette, 0);
    const auto face = [&](QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget);
    };
    auto* swatch = face(named<PaletteSwatch>(Palette::all()[0].name));
    EXPECT_EQ(swatch->role(), QAccessible::RadioButton);
    EXPECT_TRUE(swatch->state().checked);
    EXPECT_FALSE(face(named<PaletteSwatch>(QStringLiteral("Auto")))->state().checked);
    face(named<PaletteSwatch>(QStringLiteral("Auto")))
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(Prefs::paletteIndex(store), -1);

    auto* slider = face(named<PanelSlider>(QStringLiteral("Size")));
    EXPECT_EQ(slider->role(), QAccessible::Slider);
    ASSERT_NE(slider->valueInterface(), nullptr);
    EXPECT_EQ(slider->valueInterface()->minimumValue().toDouble(), 0.7);
    EXPECT_EQ(slider->valueInterface()->maximumValue().toDouble(), 1.6);
    slider->valueInterface()->setCurrentValue(1.25);
    EXPECT_EQ(store.real(K::textScale), 1.25);
    EXPECT_EQ(slider->text(QAccessible::Value), QStringLiteral("125%"));

    auto* picker = face(named<MenuPicker>(QStringLiteral("Typeface")));
    EXPECT_EQ(picker->role(), QAccessible::ComboBox);
    EXPECT_EQ(picker->text(QAccessible::Value), QStringLiteral("Fraunces"));
    EXPECT_EQ(face(named<Switch>(QStringLiteral("Film grain")))->role(), QAccessible::CheckBox);
    EXPECT_EQ(face(panel().findChild<AddTile*>())->role(), QAccessible::Button);
    EXPECT_EQ(face(panel().findChild<QLabel*>())->text(QAccessible::Name),
              QStringLiteral("APPEARANCE"));
}

TEST_F(InspectorTest, ScrollsWhereItIsLowerThanItsContent) {
    window().resize(1024, 600);
    panel().setGeometry(704, 0, 320, 600);
    QCoreApplication::processEvents();
    auto* done = named<QPushButton>(QStringLiteral("Done"));
    EXPECT_EQ(done->visibleRegion().boundingRect().size(), done->size());
    auto* grain = named<Switch>(QStringLiteral("Film grain"));
    EXPECT_TRUE(grain->visibleRegion().isEmpty());
    named<MenuPicker>(QStringLiteral("Screen motion"))->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Tab);
    EXPECT_TRUE(grain->hasFocus());
    EXPECT_EQ(grain->visibleRegion().boundingRect().size(), grain->size());
}

TEST_F(InspectorTest, AMenuNearTheBottomOpensUpwards) {
    window().resize(1024, 600);
    panel().setGeometry(704, 0, 320, 600);
    auto* picker = named<MenuPicker>(QStringLiteral("Screen motion"));
    picker->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Tab);
    picker->open();
    EXPECT_TRUE(window().rect().contains(picker->menu()->geometry()));
}

} // namespace
} // namespace morrowleaf
