// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/binding.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;

const QString key = u"key"_s;
constexpr FlagSetting flagSetting{.key = "key"_L1, .initial = true};
constexpr TextSetting textSetting{.key = "key"_L1, .initial = {}, .fallback = "none"_L1};

TEST(Binding, ShowsAtOnceAndOnEveryChangeOfItsKey) {
    SettingsStore store;
    QObject control;
    int shown = 0;
    new Binding(store, key, &control, [&] { ++shown; });
    EXPECT_EQ(shown, 1);
    store.set(key, 1);
    EXPECT_EQ(shown, 2);
    store.set(u"other"_s, 1);
    EXPECT_EQ(shown, 2);
}

TEST(Binding, StoresWithoutShowingAgain) {
    SettingsStore store;
    QObject control;
    int shown = 0;
    auto* binding = new Binding(store, key, &control, [&] { ++shown; });
    EXPECT_TRUE(binding->set(5));
    EXPECT_EQ(store.integer(key), 5);
    EXPECT_EQ(shown, 1);
}

TEST(Binding, StoresNothingWhileItShows) {
    SettingsStore store;
    QObject control;
    Binding* binding = nullptr;
    bool stored = true;
    binding = new Binding(store, key, &control, [&] {
        if (binding != nullptr) {
            stored = binding->set(u"back"_s);
        }
    });
    store.set(key, u"from elsewhere"_s);
    EXPECT_FALSE(stored);
    EXPECT_EQ(store.text(key), u"from elsewhere"_s);
}

TEST(Binding, EndsWithItsControl) {
    SettingsStore store;
    auto control = std::make_unique<QObject>();
    int shown = 0;
    new Binding(store, key, control.get(), [&] { ++shown; });
    control.reset();
    store.set(key, 1);
    EXPECT_EQ(shown, 1);
}

TEST(Binding, TiesASwitch) {
    SettingsStore store;
    QPushButton button;
    button.setCheckable(true);
    bindSwitch(button, store, flagSetting);
    EXPECT_TRUE(button.isChecked());
    EXPECT_FALSE(store.value(key).has_value());
    button.click();
    EXPECT_EQ(store.value(key), QJsonValue(false));
    store.set(key, true);
    EXPECT_TRUE(button.isChecked());
    store.remove(key);
    EXPECT_TRUE(button.isChecked());
}

TEST(Binding, TiesATextAndLeavesTheCursorWhileTyping) {
    SettingsStore store;
    QLineEdit field;
    bindText(field, store, textSetting);
    EXPECT_EQ(field.text(), u"none"_s);
    store.set(key, u"abc"_s);
    EXPECT_EQ(field.text(), u"abc"_s);
    field.setCursorPosition(1);
    QTest::keyClicks(&field, u"X"_s);
    EXPECT_EQ(store.text(key), u"aXbc"_s);
    EXPECT_EQ(field.cursorPosition(), 2);
}

TEST(Binding, TiesAChoiceAndLeavesUnknownValuesAlone) {
    SettingsStore store;
    QComboBox box;
    box.addItem(u"One"_s, u"1"_s);
    box.addItem(u"Two"_s, u"2"_s);
    store.set(key, u"7"_s);
    QSignalSpy changes(&store, &SettingsStore::changed);
    bindChoice(box, store, textSetting);
    EXPECT_EQ(box.currentIndex(), -1);
    EXPECT_EQ(changes.count(), 0);
    store.set(key, u"2"_s);
    EXPECT_EQ(box.currentIndex(), 1);
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(store.text(key), u"1"_s);
}

} // namespace
} // namespace morrowleaf
