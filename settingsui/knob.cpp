// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/knob.h"

#include "settingsui/binding.h"
#include "settingsui/panelstyle.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace morrowleaf {
namespace {

constexpr int readoutWidth = 46; // points
constexpr double millionth = 1e6;

int inMillionths(double value) {
    return static_cast<int>(std::lround(value * millionth));
}

} // namespace

PanelSlider::PanelSlider(double lowest, double highest, QWidget* parent)
    : FormSlider(parent) {
    setRange(inMillionths(lowest), inMillionths(highest));
    setSingleStep((maximum() - minimum()) / 100);
    setPageStep((maximum() - minimum()) / 10);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const auto announce = [this] { emit moved(real()); };
    connect(this, &FormSlider::valueChanged, this, announce);
    connect(this, &FormSlider::confirmed, this, announce);
}

double PanelSlider::lowest() const {
    return minimum() / millionth;
}

double PanelSlider::highest() const {
    return maximum() / millionth;
}

double PanelSlider::real() const {
    return value() / millionth;
}

void PanelSlider::showValue(double value) {
    const QSignalBlocker blocker(this);
    setValue(std::isnan(value) ? minimum() : inMillionths(std::clamp(value, lowest(), highest())));
}

void PanelSlider::moveTo(double value) {
    moveHandle(inMillionths(std::clamp(value, lowest(), highest())));
}

Knob::Knob(const QString& name, SettingsStore& store, const RealSetting& setting,
           const Readout& readout, const QFont& face, QStyle& style, QWidget* parent)
    : QWidget(parent)
    , slider_(new PanelSlider(setting.lowest, setting.highest, this))
    , readout_(panelLabel({}, panelFont(face, 11), 0.6, this)) {
    slider_->setStyle(&style);
    slider_->setAccessibleName(name);
    readout_->setFixedWidth(readoutWidth);
    // At the edge of the panel, whatever the direction of digits.
    readout_->setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignRight) |
                           Qt::AlignVCenter | Qt::AlignAbsolute);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(slider_);
    row->addWidget(readout_);

    auto* binding = new Binding(store, setting, this, [this, &store, setting, readout] {
        const double value = store.get(setting);
        slider_->showValue(value);
        showReadout(value, readout);
    });
    connect(slider_, &PanelSlider::moved, binding, [this, binding, readout](double value) {
        binding->set(value);
        showReadout(value, readout);
    });
}

void Knob::showReadout(double value, const Readout& readout) {
    readout_->setText(readout(value));
    slider_->setValueText(readout_->text());
}

} // namespace morrowleaf
