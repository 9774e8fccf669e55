// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "tests/settingsui/inspectorfixture.h"

namespace morrowleaf {
namespace {

TEST_F(InspectorTest, ReturnRunsDoneFromAnywhereButAMenu) {
    window();
    key(Qt::Key_Return);
    EXPECT_EQ(done, 1);
    named<QPushButton>(u"Reset"_s)->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Enter);
    EXPECT_EQ(done, 2);
    press(named<QPushButton>(u"Done"_s));
    EXPECT_EQ(done, 3);

    auto* picker = named<MenuPicker>(u"Text reveal"_s);
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

TEST_F(InspectorTest, ReturnWithAModifierRunsDoneTooAndPressesNothing) {
    window();
    listOwn({u"/1"_s});
    auto* remove = panel().findChild<RemoveButton*>();
    ASSERT_NE(remove, nullptr);
    remove->setFocus(Qt::TabFocusReason);
    int expected = 0;
    for (const Qt::Key code : {Qt::Key_Return, Qt::Key_Enter}) {
        for (const Qt::KeyboardModifiers held :
             {Qt::KeyboardModifiers(Qt::ShiftModifier), Qt::KeyboardModifiers(Qt::ControlModifier),
              Qt::KeyboardModifiers(Qt::AltModifier), Qt::ShiftModifier | Qt::ControlModifier,
              Qt::KeypadModifier | Qt::ShiftModifier, Qt::KeyboardModifiers(Qt::KeypadModifier)}) {
            QTest::keyClick(window().windowHandle(), code, held);
            EXPECT_EQ(done, ++expected) << code << " with " << held;
        }
    }
    EXPECT_EQ(Prefs::customBGs(store), QStringList{u"/1"_s});
}

TEST_F(InspectorTest, ReturnRunsDoneAfterAClickBesideTheEditor) {
    window().setFocusPolicy(Qt::StrongFocus);
    QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, QPoint(20, 20));
    ASSERT_TRUE(window().hasFocus());
    key(Qt::Key_Return);
    EXPECT_EQ(done, 1);
    key(Qt::Key_Enter);
    EXPECT_EQ(done, 2);
}

// The key that has opened the editor may still be held.
TEST_F(InspectorTest, AHeldReturnDoesNotRunDoneAgain) {
    QWindow* handle = window().windowHandle();
    QTest::simulateEvent(handle, true, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    EXPECT_EQ(done, 0);
    key(Qt::Key_Return);
    EXPECT_EQ(done, 1);
}

// Stands for any other filter in the program that waits for Escape.
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
    auto* picker = named<MenuPicker>(u"Typeface"_s);
    picker->open();
    ASSERT_TRUE(picker->isOpen());
    key(Qt::Key_Escape);
    EXPECT_FALSE(picker->isOpen());
    EXPECT_EQ(editing.count, 0);
    EXPECT_FALSE(store.text(K::font) != u"fraunces"_s);
    key(Qt::Key_Escape);
    EXPECT_EQ(editing.count, 1);
}

TEST_F(InspectorTest, AMenuClosesByAPressBesideIt) {
    auto* picker = named<MenuPicker>(u"Typeface"_s);
    picker->open();
    QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, QPoint(20, 20));
    EXPECT_FALSE(picker->isOpen());
    picker->open();
    ASSERT_TRUE(picker->isOpen());
    QListWidget* list = picker->menu()->list();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(4)).center());
    EXPECT_EQ(store.text(K::font), u"mono"_s);
    EXPECT_FALSE(picker->isOpen());
}

TEST_F(InspectorTest, SpacePressesTheFocusedControl) {
    window();
    named<PaletteSwatch>(Palette::all()[1].name)->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_EQ(Prefs::paletteIndex(store), 1);
    named<QCheckBox>(u"Film grain"_s)->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_EQ(store.value(K::grain), QJsonValue(false));
}

TEST_F(InspectorTest, TabGoesThroughEveryControlInVisualOrderAndRound) {
    listOwn({picture(u"own.png"_s)});
    store.set(K::transparency, 0.5);
    window();
    listOwn({});
    listOwn({picture(u"own.png"_s)});
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
    QStringList expected{u"Auto"_s};
    for (const Palette& palette : Palette::all()) {
        expected.append(palette.name);
    }
    expected += {u"Aurora"_s,       u"Dunes"_s,        u"Forest"_s,       u"Lake"_s,
                 u"Ridges"_s,       u"Sea"_s,          u"Your photo 1"_s, u"Remove your photo 1"_s,
                 u"Add a photo"_s,  u"Typeface"_s,     u"Size"_s,         u"Vignette"_s,
                 u"Transparency"_s, u"Liquid Glass"_s, u"Text reveal"_s,  u"Screen motion"_s,
                 u"Film grain"_s,   u"Reset"_s,        u"Done"_s};
    EXPECT_EQ(names, expected);
    key(Qt::Key_Backtab);
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(window().focusWidget())->text(QAccessible::Name),
        u"Done"_s);
}

TEST_F(InspectorTest, TellsRolesStatesAndValues) {
    store.set(K::palette, 0);
    const auto face = [&](QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget);
    };
    auto* swatch = face(named<PaletteSwatch>(Palette::all()[0].name));
    EXPECT_EQ(swatch->role(), QAccessible::RadioButton);
    EXPECT_TRUE(swatch->state().checked);
    EXPECT_FALSE(face(named<PaletteSwatch>(u"Auto"_s))->state().checked);
    face(named<PaletteSwatch>(u"Auto"_s))
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(Prefs::paletteIndex(store), -1);

    auto* slider = face(named<PanelSlider>(u"Size"_s));
    EXPECT_EQ(slider->role(), QAccessible::Slider);
    ASSERT_NE(slider->valueInterface(), nullptr);
    EXPECT_EQ(slider->valueInterface()->minimumValue().toDouble(), 0.7);
    EXPECT_EQ(slider->valueInterface()->maximumValue().toDouble(), 1.6);
    slider->valueInterface()->setCurrentValue(1.25);
    EXPECT_EQ(store.real(K::textScale), 1.25);
    EXPECT_EQ(slider->text(QAccessible::Value), u"125%"_s);

    auto* picker = face(named<MenuPicker>(u"Typeface"_s));
    EXPECT_EQ(picker->role(), QAccessible::ComboBox);
    EXPECT_EQ(picker->text(QAccessible::Value), u"Fraunces"_s);
    EXPECT_EQ(picker->text(QAccessible::Description), u"Fraunces"_s);
    EXPECT_EQ(face(named<QCheckBox>(u"Film grain"_s))->role(), QAccessible::CheckBox);
    EXPECT_EQ(face(panel().findChild<AddTile*>())->role(), QAccessible::Button);
    EXPECT_EQ(face(&panel())->role(), QAccessible::Grouping);
    EXPECT_EQ(face(&panel())->text(QAccessible::Name), u"Appearance"_s);
    auto* photos = face(panel().findChild<PhotoGroup*>());
    EXPECT_EQ(photos->role(), QAccessible::Grouping);
    EXPECT_EQ(photos->text(QAccessible::Name), u"Your photo"_s);
    EXPECT_EQ(face(panel().findChild<QLabel*>())->text(QAccessible::Name), u"APPEARANCE"_s);
}

TEST_F(InspectorTest, ScrollsWhereItIsLowerThanItsContent) {
    window().resize(1024, 600);
    panel().setGeometry(704, 0, 320, 600);
    QCoreApplication::processEvents();
    auto* done = named<QPushButton>(u"Done"_s);
    EXPECT_EQ(done->visibleRegion().boundingRect().size(), done->size());
    auto* grain = named<QCheckBox>(u"Film grain"_s);
    EXPECT_TRUE(grain->visibleRegion().isEmpty());
    named<MenuPicker>(u"Screen motion"_s)->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Tab);
    EXPECT_TRUE(grain->hasFocus());
    EXPECT_EQ(grain->visibleRegion().boundingRect().size(), grain->size());
}

TEST_F(InspectorTest, AMenuNearTheBottomOpensUpwards) {
    window().resize(1024, 600);
    panel().setGeometry(704, 0, 320, 600);
    auto* picker = named<MenuPicker>(u"Screen motion"_s);
    picker->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Tab);
    picker->open();
    EXPECT_TRUE(window().rect().contains(picker->menu()->geometry()));
}

} // namespace
} // namespace morrowleaf
