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

const QString key = QStringLiteral("key");

TEST(Binding, ShowsAtOnceAndOnEveryChangeOfItsKey) {
    SettingsStore store;
    QObject control;
    int shown = 0;
    new Binding(store, key, &control, [&] { ++shown; });
    EXPECT_EQ(shown, 1);
    store.set(key, 1);
    EXPECT_EQ(shown, 2);
    store.set(QStringLiteral("other"), 1);
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
            stored = binding->set(QStringLiteral("back"));
        }
    });
    store.set(key, QStringLiteral("from elsewhere"));
    EXPECT_FALSE(stored);
    EXPECT_EQ(store.text(key), QStringLiteral("from elsewhere"));
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
    bindSwitch(button, store, key, true);
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
    bindText(field, store, key, QStringLiteral("none"));
    EXPECT_EQ(field.text(), QStringLiteral("none"));
    store.set(key, QStringLiteral("abc"));
    EXPECT_EQ(field.text(), QStringLiteral("abc"));
    field.setCursorPosition(1);
    QTest::keyClicks(&field, QStringLiteral("X"));
    EXPECT_EQ(store.text(key), QStringLiteral("aXbc"));
    EXPECT_EQ(field.cursorPosition(), 2);
}

TEST(Binding, TiesAChoiceAndLeavesUnknownValuesAlone) {
    SettingsStore store;
    QComboBox box;
    box.addItem(QStringLiteral("One"), QStringLiteral("1"));
    box.addItem(QStringLiteral("Two"), QStringLiteral("2"));
    store.set(key, QStringLiteral("7"));
    QSignalSpy changes(&store, &SettingsStore::changed);
    bindChoice(box, store, key, QStringLiteral("1"));
    EXPECT_EQ(box.currentIndex(), -1);
    EXPECT_EQ(changes.count(), 0);
    store.set(key, QStringLiteral("2"));
    EXPECT_EQ(box.currentIndex(), 1);
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_EQ(store.text(key), QStringLiteral("1"));
}

TEST(Binding, ReadsTheFallbackOnlyWithoutAnyValue) {
    SettingsStore store;
    EXPECT_EQ(realOr(store, key, 0.5), 0.5);
    EXPECT_TRUE(flagOr(store, key, true));
    EXPECT_EQ(integerOr(store, key, -1), -1);
    EXPECT_EQ(textOr(store, key, QStringLiteral("f")), QStringLiteral("f"));
    store.set(key, 0);
    EXPECT_EQ(realOr(store, key, 0.5), 0);
    EXPECT_FALSE(flagOr(store, key, true));
    EXPECT_EQ(integerOr(store, key, -1), 0);
}

} // namespace
} // namespace morrowleaf
