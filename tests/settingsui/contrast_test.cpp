// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// What people with weak eyes, and those who use no mouse, can see of the windows.
#include "settingsui/hostpalette.h"
#include "settingsui/panelstyle.h"
#include "tests/settingsui/inspectorfixture.h"
#include "tests/settingsui/settingsviewfixture.h"

#include <QComboBox>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace morrowleaf {
namespace {

constexpr double least = 4.5;

QColor over(const QColor& color, const QColor& ground) {
    const double alpha = color.alphaF();
    const auto mix = [alpha](double top, double below) {
        return static_cast<float>(top * alpha + below * (1 - alpha));
    };
    return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                            mix(color.blueF(), ground.blueF()));
}

double luminance(const QColor& color) {
    const auto linear = [](double level) {
        return level <= 0.04045 ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& text, const QColor& ground) {
    const double a = luminance(over(text, ground));
    const double b = luminance(ground);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST(Contrast, IsComputedAsUsual) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrast(QColor(118, 118, 118), Qt::white), 4.54, 0.01);
    EXPECT_NEAR(contrast(QColor(0, 0, 0, 127), Qt::white), 3.95, 0.02);
}

struct Scheme {
    ColorPreference colors;
    bool highContrast;
    double least() const { return highContrast ? 7 : 4.5; }
    QPalette palette() const {
        return highContrast ? highContrastPalette(colors) : hostPalette(colors);
    }
};

class ContrastOfSettings : public SettingsViewTest, public ::testing::WithParamInterface<Scheme> {
public:
    ContrastOfSettings() { QApplication::setPalette(GetParam().palette()); }
    ~ContrastOfSettings() override { QApplication::setPalette(QPalette()); }
};

TEST_P(ContrastOfSettings, IsEnoughForEveryText) {
    store.setKeptFileName(u"settings.broken-20261121-224501.json"_s);
    view();
    const QPalette host = GetParam().palette();
    const double least = GetParam().least();
    const QColor window = host.color(QPalette::Window);
    // Cards are a little lighter than the window: FormCard::paintEvent().
    const bool isDark = GetParam().colors == ColorPreference::Dark;
    const QColor card = over(QColor(255, 255, 255, isDark ? 13 : 191), window);
    int labels = 0;
    for (const auto* label : view().findChildren<QLabel*>()) {
        const QColor ink = label->palette().color(label->foregroundRole());
        EXPECT_GE(contrast(ink, card), least) << label->text().toStdString();
        EXPECT_GE(contrast(ink, window), least) << label->text().toStdString();
        ++labels;
    }
    EXPECT_GE(labels, 7);
    using Role = QPalette::ColorRole;
    for (const auto& [ink, ground] : {std::pair{Role::ButtonText, Role::Button},
                                      {Role::Text, Role::Base},
                                      {Role::PlaceholderText, Role::Base},
                                      {Role::HighlightedText, Role::Highlight},
                                      {Role::ToolTipText, Role::ToolTipBase}}) {
        EXPECT_GE(contrast(host.color(ink), host.color(ground)), least) << ink << " on " << ground;
    }
    // What is no text has to be told from its surroundings.
    EXPECT_GE(contrast(host.color(Role::Highlight), card), least * 2 / 3);
}

INSTANTIATE_TEST_SUITE_P(Schemes, ContrastOfSettings,
                         ::testing::Values(Scheme{ColorPreference::Light, false},
                                           Scheme{ColorPreference::Dark, false},
                                           Scheme{ColorPreference::Light, true},
                                           Scheme{ColorPreference::Dark, true}));

TEST_F(InspectorTest, ItsTextsHaveEnoughContrastOverAnyPicture) {
    // Those that are fixed are fainter: headings and readouts.
    constexpr std::array fixed{0.55, 0.4, 0.6};
    for (const QColor& picture : {QColor(Qt::black), QColor(Qt::white)}) {
        const QColor ground = over(PanelStyle::veil(), picture);
        for (const auto* label : panel().findChildren<QLabel*>()) {
            const QColor ink = label->palette().color(label->foregroundRole());
            const bool isFixed = std::any_of(fixed.begin(), fixed.end(), [&](double opacity) {
                return std::abs(ink.alphaF() - opacity) < 0.01;
            });
            if (!isFixed) {
                EXPECT_GE(contrast(ink, ground), least) << label->text().toStdString();
            }
        }
        // Captions of tiles, Reset, switches; the ring around what has the keyboard.
        for (const QColor& ink : {PanelStyle::ink(0.66), PanelStyle::ink(0.6),
                                  PanelStyle::palette().color(QPalette::WindowText)}) {
            EXPECT_GE(contrast(ink, ground), least);
        }
        EXPECT_GE(contrast(PanelStyle::focusRing(), ground), 3);
    }
    EXPECT_GE(contrast(PanelStyle::ink(0.92), PanelStyle::menuGround()), least);
}

TEST_F(InspectorTest, NoTextIsFaintIfTheUserWishesHighContrast) {
    highContrast = true;
    // The picture behind it no longer shows through.
    const QImage drawn = panel().grab().toImage();
    EXPECT_EQ(drawn.pixel(5, 5), PanelStyle::veil().rgb());
    const QColor ground = PanelStyle::veil().rgb();
    int labels = 0;
    for (const auto* label : panel().findChildren<QLabel*>()) {
        EXPECT_GE(contrast(label->palette().color(label->foregroundRole()), ground), 7)
            << label->text().toStdString();
        ++labels;
    }
    EXPECT_GE(labels, 8);
}

// Whether a picture of `window` changes around `widget` when that gets the keyboard.
void expectVisibleFocus(QWidget& window, QWidget& widget, QWidget& other) {
    other.setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    const QImage before = window.grab().toImage();
    widget.setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    const QRect place = QRect(widget.mapTo(&window, QPoint(-4, -4)), widget.size() + QSize(8, 8));
    const QImage after = window.grab().toImage();
    if (widget.hasFocus()) { // it may be switched off
        EXPECT_NE(before.copy(place), after.copy(place))
            << widget.metaObject()->className() << ' ' << widget.accessibleName().toStdString()
            << widget.property("text").toString().toStdString();
    }
}

int expectVisibleFocusEverywhere(QWidget& window) {
    window.setAttribute(Qt::WA_KeyboardFocusChange); // as the Tab key does
    QList<QWidget*> stops;
    for (auto* widget : window.findChildren<QWidget*>()) {
        if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isEnabled() &&
            widget->isVisible() && !widget->visibleRegion().isEmpty() &&
            widget->focusProxy() == nullptr) {
            stops.append(widget);
        }
    }
    for (int i = 0; i < stops.size(); ++i) {
        expectVisibleFocus(window, *stops[i], *stops[(i + stops.size() / 2) % stops.size()]);
    }
    return static_cast<int>(stops.size());
}

TEST_F(InspectorTest, ShowsWhatHasTheKeyboard) {
    window().grab(); // arranges everything
    EXPECT_GE(expectVisibleFocusEverywhere(window()), 20);
}

TEST_F(SettingsViewTest, ShowsWhatHasTheKeyboard) {
    QApplication::setActiveWindow(&view());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view()));
    EXPECT_GE(expectVisibleFocusEverywhere(view()), 8);
}

} // namespace
} // namespace morrowleaf
