// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include <functional>

class QLabel;

namespace morrowleaf {

class PanelSlider;
class SettingsStore;
struct RealSetting;

// A slider and the readout of its value, in one row, bound to a setting over its range.
class Knob : public QWidget {
    Q_OBJECT

public:
    using Readout = std::function<QString(double)>;

    Knob(const QString& name, SettingsStore& store, const RealSetting& setting,
         const Readout& readout, const QFont& face, QWidget* parent = nullptr);

    PanelSlider* slider() const { return slider_; }
    QLabel* readout() const { return readout_; }

private:
    void tell(double value, const Readout& readout);

    PanelSlider* slider_;
    QLabel* readout_;
};

// "%.0f%%" of the value times 100, and "%.2f" of the value, in the C locale.
QString percentReadout(double value);
QString plainReadout(double value);

} // namespace morrowleaf
