// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include <functional>

class QLabel;

namespace morrowleaf {

class PanelSlider;
class SettingsStore;

// A slider and the readout of its value, in one row, bound to a key.
class Knob : public QWidget {
    Q_OBJECT

public:
    struct Range {
        double lowest;
        double highest;
        double fallback; // shown while the key has no value
    };
    using Readout = std::function<QString(double)>;

    Knob(const QString& name, SettingsStore& store, const QString& key, Range range,
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
