// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/knob.h"

#include "settingsui/binding.h"
#include "settingsui/panelslider.h"
#include "settingsui/panelstyle.h"

#include <QHBoxLayout>

namespace morrowleaf {
namespace {

constexpr int readoutWidth = 46; // points

} // namespace

Knob::Knob(const QString& name, SettingsStore& store, const RealSetting& setting,
           const Readout& readout, const QFont& face, QWidget* parent)
    : QWidget(parent)
    , slider_(new PanelSlider(setting.lowest, setting.highest, this))
    , readout_(panelLabel({}, panelFont(face, 11), 0.6, this)) {
    slider_->setAccessibleName(name);
    readout_->setFixedWidth(readoutWidth);
    readout_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(slider_);
    row->addWidget(readout_);

    auto* binding = new Binding(store, setting, this, [this, &store, setting, readout] {
        const double value = store.get(setting);
        slider_->showValue(value);
        tell(value, readout);
    });
    connect(slider_, &PanelSlider::moved, binding, [this, binding, readout](double value) {
        binding->set(value);
        tell(value, readout);
    });
}

void Knob::tell(double value, const Readout& readout) {
    readout_->setText(readout(value));
    slider_->setValueText(readout_->text());
}

QString percentReadout(double value) {
    return QString::asprintf("%.0f%%", value * 100);
}
QString plainReadout(double value) {
    return QString::asprintf("%.2f", value);
}

} // namespace morrowleaf
