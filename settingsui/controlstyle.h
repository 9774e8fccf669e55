// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QProxyStyle>

class QCheckBox;
class QPushButton;

namespace morrowleaf {

// `margins`, or their mirror image in a widget that is laid out from right to left: the
// margins of a layout stay as they are while its items change places.
QMargins mirroredIn(const QWidget& widget, const QMargins& margins);

// `color` with its opacity replaced by `opacity`, 0 to 1.
QColor withOpacity(QColor color, double opacity);

// Draws the controls of the appearance editor: buttons, sliders, vertical scroll bars,
// and check boxes as switches. The colours are those of the panel, except that a switch
// takes its own from the palette and fits any window. The base is Fusion, so that no
// desktop style changes sizes or behaviour.
//
// Set it on each control, because children do not inherit a style. Main thread.
class ControlStyle : public QProxyStyle {
    Q_OBJECT

public:
    static constexpr int buttonPadding = 14;     // points on either side of a button's text
    static constexpr int scrollBarThickness = 9; // points
    static constexpr int switchOverhang = 3;     // points behind a switch, for its focus ring

    enum class SwitchSize { Small, Regular };
    explicit ControlStyle(SwitchSize switchSize);

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;

private:
    QSize switchTrack_; // points
};

// Tab focuses a button and Space presses it. `style` must outlive the button.
enum class ButtonKind { Plain, Filled };
QPushButton* makeButton(const QString& text, ButtonKind kind, ControlStyle& style, QWidget* parent);
// A check box with its text at the leading edge and a switch at the other one. `style`
// must outlive it.
QCheckBox* makeSwitch(const QString& text, ControlStyle& style, QWidget* parent);

} // namespace morrowleaf
