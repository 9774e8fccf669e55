// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/hostpalette.h"

#include <QApplication>
#include <QStyle>

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
};

constexpr Shades lightShades{0xfff3f3f4, 0xffffffff, 0xfff7f7f8, 0xfffbfbfc,
                             0xff1d1d21, 0xff9a9aa1, 0xff85858d, 0xff3a6fd8};
constexpr Shades darkShades{0xff262629, 0xff1c1c1f, 0xff222225, 0xff4b4b51,
                            0xffececef, 0xff77777e, 0xff8b8b93, 0xff5b8def};

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
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, shades.accent);
    palette.setColor(QPalette::ToolTipBase, shades.base);
    palette.setColor(QPalette::ToolTipText, shades.ink);
    return palette;
}

} // namespace

QPalette hostPalette(ColorPreference preference) {
    switch (preference) {
    case ColorPreference::Light:
        return paletteOf(lightShades);
    case ColorPreference::Dark:
        return paletteOf(darkShades);
    case ColorPreference::None:
        break;
    }
    return QApplication::style()->standardPalette();
}

void followColorScheme(ColorScheme& scheme) {
    const auto apply = [](ColorPreference preference) {
        // An empty palette restores the colours of style and desktop.
        QApplication::setPalette(preference == ColorPreference::None ? QPalette()
                                                                     : hostPalette(preference));
    };
    QObject::connect(&scheme, &ColorScheme::changed, qApp, apply);
    if (scheme.preference() != ColorPreference::None) {
        apply(scheme.preference());
    }
}

} // namespace morrowleaf
