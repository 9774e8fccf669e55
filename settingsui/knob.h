// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settingsui/formcontrols.h"

#include <functional>

class QLabel;

namespace morrowleaf {

class SettingsStore;
struct RealSetting;

// A slider over a closed range of reals with a resolution of one millionth. Arrow keys
// move it by a hundredth of the range, page keys by a tenth.
class PanelSlider : public FormSlider {
    Q_OBJECT

public:
    PanelSlider(double lowest, double highest, QWidget* parent = nullptr);

    double lowest() const;
    double highest() const;
    double real() const;
    // Shows a value, clamped to the range; NaN shows as the lowest. Emits no signal.
    void showValue(double value);
    // Sets a value, clamped to the range, as the user would.
    void moveTo(double value);

    QSize sizeHint() const override { return {120, 24}; }

    // The value as screen readers announce it.
    QString valueText() const { return valueText_; }
    void setValueText(const QString& text) { valueText_ = text; }

signals:
    void moved(double value); // by the user, perhaps to where it already was

private:
    QString valueText_;
};

// A slider and its readout in one row, bound to a setting and its range. `style` draws
// the slider and must outlive the knob.
class Knob : public QWidget {
    Q_OBJECT

public:
    using Readout = std::function<QString(double)>;

    Knob(const QString& name, SettingsStore& store, const RealSetting& setting,
         const Readout& readout, const QFont& face, QStyle& style, QWidget* parent = nullptr);

    PanelSlider* slider() const { return slider_; }
    QLabel* readout() const { return readout_; }

private:
    void showReadout(double value, const Readout& readout);

    PanelSlider* slider_;
    QLabel* readout_;
};

} // namespace morrowleaf
