// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/hostpalette.h"

#include <QApplication>
#include <QStyle>

#include <cmath>

namespace morrowleaf {
namespace {

struct Shades {
    QRgb window;
    QRgb base;
    QRgb alternate;
    QRgb button;
    QRgb ink;
    QRgb faint; // disabled text
    QRgb hint;  // placeholder
    QRgb accent;
    QRgb onAccent; // text
};

constexpr Shades lightShades{0xfff3f3f4, 0xffffffff, 0xfff7f7f8, 0xfffbfbfc, 0xff1d1d21,
                             0xff9a9aa1, 0xff72727a, 0xff3a6fd8, 0xffffffff};
constexpr Shades darkShades{0xff262629, 0xff1c1c1f, 0xff222225, 0xff4b4b51, 0xffececef,
                            0xff77777e, 0xff8b8b93, 0xff5b8def, 0xff0d0d10};
constexpr Shades blackOnWhite{0xffffffff, 0xffffffff, 0xfff0f0f0, 0xffffffff, 0xff000000,
                              0xff595959, 0xff454545, 0xff0039a6, 0xffffffff};
constexpr Shades whiteOnBlack{0xff000000, 0xff2b2b2b, 0xff333333, 0xff565656, 0xffffffff,
                              0xffb0b0b0, 0xffc8c8c8, 0xff8ab8ff, 0xff000000};

QPalette paletteOf(const Shades& shades) {
    QPalette palette(QColor(shades.button), QColor(shades.window));
    palette.setColor(QPalette::Base, shades.base);
    palette.setColor(QPalette::AlternateBase, shades.alternate);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, shades.ink);
        palette.setColor(QPalette::Disabled, role, shades.faint);
    }
    palette.setColor(QPalette::PlaceholderText, shades.hint);
    palette.setColor(QPalette::Highlight, shades.accent);
    palette.setColor(QPalette::HighlightedText, shades.onAccent);
    palette.setColor(QPalette::Link, shades.accent);
    palette.setColor(QPalette::ToolTipBase, shades.base);
    palette.setColor(QPalette::ToolTipText, shades.ink);
    return palette;
}

// From 0 to 1.
double luminance(const QColor& color) {
    const auto linear = [](double level) {
        return level <= 0.04045 ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

void setAccent(QPalette& palette, const QColor& accent) {
    constexpr double bright = 1.05 / 4.5 - 0.05; // white has a contrast of 4.5 : 1 up to it
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Highlight, accent);
        palette.setColor(group, QPalette::HighlightedText,
                         luminance(accent) < bright ? Qt::white : Qt::black);
        palette.setColor(group, QPalette::Link, accent);
    }
}

} // namespace

QPalette hostPalette(ColorPreference preference, const QColor& accent) {
    QPalette palette = preference == ColorPreference::Light ? paletteOf(lightShades)
                       : preference == ColorPreference::Dark
                           ? paletteOf(darkShades)
                           : QApplication::style()->standardPalette();
    if (accent.isValid()) {
        setAccent(palette, accent);
    }
    return palette;
}

QPalette highContrastPalette(ColorPreference preference) {
    const QPalette own = QApplication::style()->standardPalette();
    const bool isDark =
        preference == ColorPreference::Dark ||
        (preference == ColorPreference::None && own.color(QPalette::Window).lightness() < 128);
    return paletteOf(isDark ? whiteOnBlack : blackOnWhite);
}

bool hasFullContrast(const QPalette& palette) {
    return std::abs(luminance(palette.color(QPalette::WindowText)) -
                    luminance(palette.color(QPalette::Window))) > 0.999;
}

void followColors(DesktopWishes& wishes) {
    const auto apply = [](const Wishes& now) {
        QPalette palette; // empty: leaves the colours of style and desktop
        if (now.highContrast) {
            palette = highContrastPalette(now.colors);
        } else if (now.colors != ColorPreference::None) {
            palette = hostPalette(now.colors, now.accent);
        } else if (now.accent.isValid()) {
            setAccent(palette, now.accent);
        }
        QApplication::setPalette(palette);
    };
    QObject::connect(&wishes, &DesktopWishes::changed, qApp, apply);
    if (wishes.current() != Wishes()) {
        apply(wishes.current());
    }
}

} // namespace morrowleaf
