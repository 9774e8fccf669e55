// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/hostpalette.h"

#include <QApplication>
#include <QStyle>
#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

class ChangingWishes : public DesktopWishes {
public:
    Wishes current() const override { return wishes; }
    void change(const Wishes& next) {
        wishes = next;
        emit changed(next);
    }
    Wishes wishes;
};

Wishes wishFor(ColorPreference colors, const QColor& accent) {
    Wishes wishes;
    wishes.colors = colors;
    wishes.accent = accent;
    return wishes;
}

QColor shown(QPalette::ColorRole role) {
    return QApplication::palette().color(role);
}

TEST(HostPalette, FollowsColorsAndAccentWhileTheProgramRuns) {
    ChangingWishes wishes;
    followColors(wishes);
    const QPalette plain = QApplication::palette();
    const QColor orange(0xe6, 0x61, 0x00);
    wishes.change(wishFor(ColorPreference::None, orange));
    EXPECT_EQ(shown(QPalette::Highlight), orange);
    EXPECT_EQ(shown(QPalette::Window), plain.color(QPalette::Window));
    wishes.change(wishFor(ColorPreference::Dark, orange));
    EXPECT_EQ(shown(QPalette::Highlight), orange);
    EXPECT_LT(shown(QPalette::Window).lightness(), 80);
    wishes.change(wishFor(ColorPreference::Dark, {}));
    EXPECT_EQ(QApplication::palette(), hostPalette(ColorPreference::Dark));
    wishes.change({});
    EXPECT_EQ(shown(QPalette::Highlight), plain.color(QPalette::Highlight));
    EXPECT_EQ(shown(QPalette::Window), plain.color(QPalette::Window));
}

TEST(HostPalette, KeepsTextOnTheAccentLegible) {
    const auto text = [](const QColor& accent) {
        return hostPalette(ColorPreference::Light, accent).color(QPalette::HighlightedText);
    };
    EXPECT_EQ(text(QColor(0x1c, 0x5f, 0xb8)), QColor(Qt::white));
    EXPECT_EQ(text(QColor(0x35, 0x84, 0xe4)), QColor(Qt::black)); // white: 3.8 : 1
    EXPECT_EQ(text(QColor(0xf6, 0xd3, 0x2d)), QColor(Qt::black));
}

TEST(HostPalette, HasNothingFaintIfTheUserWishesHighContrast) {
    ChangingWishes wishes;
    followColors(wishes);
    Wishes wish = wishFor(ColorPreference::Dark, QColor(0xf6, 0xd3, 0x2d));
    EXPECT_FALSE(hasFullContrast(QApplication::palette()));
    wish.highContrast = true;
    wishes.change(wish);
    EXPECT_EQ(QApplication::palette(), highContrastPalette(ColorPreference::Dark));
    EXPECT_TRUE(hasFullContrast(QApplication::palette()));
    EXPECT_EQ(shown(QPalette::WindowText), QColor(Qt::white));
    wish.colors = ColorPreference::Light;
    wishes.change(wish);
    EXPECT_TRUE(hasFullContrast(QApplication::palette()));
    EXPECT_EQ(shown(QPalette::WindowText), QColor(Qt::black));
    wishes.change({});
    EXPECT_FALSE(hasFullContrast(hostPalette(ColorPreference::Light)));
    EXPECT_FALSE(hasFullContrast(hostPalette(ColorPreference::Dark)));
}

} // namespace
} // namespace morrowleaf
