// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/controlstyle.h"

#include "settingsui/hostpalette.h"
#include "settingsui/panelstyle.h"

#include <QCheckBox>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionSlider>

#include <algorithm>
#include <cmath>

namespace morrowleaf {

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr double handleRadius = 7.5; // points
constexpr double sliderRoom = handleRadius + PanelStyle::focusRoom;
constexpr int buttonHeight = 28;
constexpr int shortestThumb = 28;
constexpr QSize smallTrack(30, 17);
constexpr QSize regularTrack(38, 22);

// The position of the value in its range, from 0 to 1.
double fractionOf(const QStyleOptionSlider& option) {
    const double range = option.maximum - option.minimum;
    return range > 0 ? (option.sliderPosition - option.minimum) / range : 0;
}

double handleCentre(const QStyleOptionSlider& option) {
    const double fraction = option.upsideDown ? 1 - fractionOf(option) : fractionOf(option);
    return sliderRoom + fraction * (option.rect.width() - 2 * sliderRoom);
}

QRectF thumbOf(const QStyleOptionSlider& option) {
    const double range = option.maximum - option.minimum;
    const double room = option.rect.height() - 4;
    const double length =
        std::min(room, std::max<double>(shortestThumb, room * option.pageStep /
                                                           (range + std::max(option.pageStep, 1))));
    return {2, 2 + fractionOf(option) * (room - length), 4, length};
}

void drawButton(QPainter& painter, const QStyleOptionButton& option) {
    const QRectF shape(option.rect);
    const bool down = option.state.testFlag(QStyle::State_Sunken);
    const bool near = down || option.state.testFlag(QStyle::State_MouseOver);
    if (option.features.testFlag(QStyleOptionButton::Flat)) {
        painter.setPen(PanelStyle::ink(down ? 0.45 : near ? 0.9 : 0.6));
    } else {
        painter.setPen(Qt::NoPen);
        painter.setBrush(PanelStyle::ink(down ? 0.7 : near ? 0.96 : 0.88));
        painter.drawRoundedRect(shape, 7, 7);
        painter.setPen(QColor(20, 20, 24));
    }
    painter.drawText(shape, Qt::AlignCenter, option.text);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter.setPen(QPen(PanelStyle::focusRing(), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(shape.adjusted(1, 1, -1, -1), 7, 7);
    }
}

void drawSlider(QPainter& painter, const QStyleOptionSlider& option) {
    painter.setPen(Qt::NoPen);
    const double middle = option.rect.height() / 2.0;
    const double x = handleCentre(option);
    const QRectF track(sliderRoom - handleRadius, middle - 1.5,
                       option.rect.width() - 2 * (sliderRoom - handleRadius), 3);
    painter.setBrush(PanelStyle::ink(0.2));
    painter.drawRoundedRect(track, 1.5, 1.5);
    painter.setBrush(PanelStyle::ink(0.75));
    const double start = option.upsideDown ? track.right() : track.left();
    painter.drawRoundedRect(QRectF(start, track.top(), x - start, 3).normalized(), 1.5, 1.5);
    const QRectF handle(x - handleRadius, middle - handleRadius, 2 * handleRadius,
                        2 * handleRadius);
    painter.setBrush(QColor(0, 0, 0, 70));
    painter.drawEllipse(handle.adjusted(-0.5, 0.5, 0.5, 1.5));
    const bool held = option.state.testFlag(QStyle::State_Sunken);
    painter.setBrush(held ? QColor(225, 225, 228) : QColor(248, 248, 250));
    painter.drawEllipse(handle);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        paintFocusRing(painter, handle, handleRadius);
    }
}

void drawScrollBar(QPainter& painter, const QStyleOptionSlider& option) {
    if (option.maximum <= option.minimum) {
        return;
    }
    const bool held = option.state.testFlag(QStyle::State_Sunken);
    const bool near = option.state.testFlag(QStyle::State_MouseOver);
    painter.setPen(Qt::NoPen);
    painter.setBrush(PanelStyle::ink(held ? 0.5 : near ? 0.4 : 0.24));
    painter.drawRoundedRect(thumbOf(option), 2, 2);
}

void drawSwitch(QPainter& painter, const QStyleOptionButton& option, const QSize& trackSize) {
    const QPalette& palette = option.palette;
    painter.setPen(palette.color(QPalette::WindowText));
    painter.setLayoutDirection(option.direction);
    painter.drawText(option.rect, Qt::AlignLeft | Qt::AlignVCenter, option.text);

    const bool mirrored = option.direction == Qt::RightToLeft;
    const int behind = option.rect.width() - ControlStyle::switchOverhang - trackSize.width();
    const QRectF track(mirrored ? ControlStyle::switchOverhang : behind,
                       (option.rect.height() - trackSize.height()) / 2.0, trackSize.width(),
                       trackSize.height());
    const double radius = track.height() / 2;
    const QColor ink = palette.color(QPalette::Active, QPalette::WindowText);
    const bool on = option.state.testFlag(QStyle::State_On);
    painter.setOpacity(option.state.testFlag(QStyle::State_Enabled) ? 1 : 0.4);
    const bool isFull = hasFullContrast(palette);
    painter.setPen(isFull ? QPen(ink, 1) : QPen(Qt::NoPen));
    const QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
    painter.setBrush(
        on ? accent : withOpacity(ink, option.state.testFlag(QStyle::State_Sunken) ? 0.3 : 0.22));
    painter.drawRoundedRect(track, radius, radius);

    const double gap = 2;
    const double knob = track.height() - 2 * gap;
    const bool isPale = accent.lightness() > 200; // of 255: white would be lost on it
    painter.setPen(Qt::NoPen);
    painter.setBrush(on && (isPale || isFull)
                         ? palette.color(QPalette::Active, QPalette::HighlightedText)
                     : isFull ? ink
                              : QColor(Qt::white));
    painter.drawEllipse(QRectF(on != mirrored ? track.right() - gap - knob : track.left() + gap,
                               track.top() + gap, knob, knob));
    painter.setOpacity(1);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        paintFocusRing(painter, track, radius);
    }
}

} // namespace

QMargins mirroredIn(const QWidget& widget, const QMargins& margins) {
    return widget.isRightToLeft()
               ? QMargins(margins.right(), margins.top(), margins.left(), margins.bottom())
               : margins;
}

QColor withOpacity(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

ControlStyle::ControlStyle(SwitchSize switchSize)
    : QProxyStyle(u"Fusion"_s)
    , switchTrack_(switchSize == SwitchSize::Small ? smallTrack : regularTrack) {}

void ControlStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (button == nullptr || (element != CE_PushButton && element != CE_CheckBox)) {
        return QProxyStyle::drawControl(element, option, painter, widget);
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (element == CE_PushButton) {
        drawButton(*painter, *button);
    } else {
        drawSwitch(*painter, *button, switchTrack_);
    }
    painter->restore();
}

void ControlStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (slider == nullptr || (control != CC_Slider && control != CC_ScrollBar)) {
        return QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (control == CC_Slider) {
        drawSlider(*painter, *slider);
    } else {
        drawScrollBar(*painter, *slider);
    }
    painter->restore();
}

QRect ControlStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                   SubControl part, const QWidget* widget) const {
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (slider == nullptr || (control != CC_Slider && control != CC_ScrollBar)) {
        return QProxyStyle::subControlRect(control, option, part, widget);
    }
    const QRect all = option->rect;
    if (control == CC_Slider) {
        constexpr int room = PanelStyle::focusRoom;
        const int left = static_cast<int>(std::lround(handleCentre(*slider) - handleRadius));
        const int diameter = static_cast<int>(2 * handleRadius);
        return part == SC_SliderHandle ? QRect(left, all.top(), diameter, all.height())
                                       : all.adjusted(room, 0, -room, 0);
    }
    const QRectF thumb = thumbOf(*slider);
    const int top = static_cast<int>(std::lround(thumb.top()));
    const int bottom = top + static_cast<int>(std::lround(thumb.height()));
    switch (part) {
    case SC_ScrollBarSlider:
        return {all.left(), top, all.width(), bottom - top};
    case SC_ScrollBarSubPage:
        return {all.left(), all.top(), all.width(), top - all.top()};
    case SC_ScrollBarAddPage:
        return {all.left(), bottom, all.width(), all.bottom() + 1 - bottom};
    case SC_ScrollBarGroove:
        return all.adjusted(0, 2, 0, -2);
    default:
        return {}; // no arrows
    }
}

QRect ControlStyle::subElementRect(SubElement element, const QStyleOption* option,
                                   const QWidget* widget) const {
    return element == SE_CheckBoxClickRect ? option->rect
                                           : QProxyStyle::subElementRect(element, option, widget);
}

QSize ControlStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                     const QSize& size, const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (button == nullptr || (type != CT_PushButton && type != CT_CheckBox)) {
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    }
    const QFontMetrics& metrics = button->fontMetrics;
    const int text = metrics.horizontalAdvance(button->text);
    if (type == CT_PushButton) {
        return {text + 2 * buttonPadding, buttonHeight};
    }
    return {text + 12 + switchTrack_.width() + switchOverhang,
            std::max(metrics.height(), switchTrack_.height() + 2 * switchOverhang)};
}

int ControlStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                              const QWidget* widget) const {
    switch (metric) {
    case PM_ScrollBarExtent:
        return scrollBarThickness;
    case PM_ScrollBarSliderMin:
        return shortestThumb;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int ControlStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* result) const {
    return hint == SH_ScrollBar_LeftClickAbsolutePosition
               ? 1
               : QProxyStyle::styleHint(hint, option, widget, result);
}

QPushButton* makeButton(const QString& text, ButtonKind kind, ControlStyle& style,
                        QWidget* parent) {
    auto* button = new QPushButton(text, parent);
    button->setStyle(&style);
    button->setFlat(kind == ButtonKind::Plain);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoDefault(false);
    return button;
}

QCheckBox* makeSwitch(const QString& text, ControlStyle& style, QWidget* parent) {
    auto* box = new QCheckBox(text, parent);
    box->setStyle(&style);
    box->setFocusPolicy(Qt::TabFocus);
    return box;
}

} // namespace morrowleaf
