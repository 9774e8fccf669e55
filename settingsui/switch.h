// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCheckBox>

namespace morrowleaf {

// A check box that looks like a switch: its text at the left edge, the switch
// at the right one. Takes its colours from the palette.
class Switch : public QCheckBox {
    Q_OBJECT

public:
    // Points right of the track for its focus ring.
    static constexpr int overhang = 3;

    enum class Size { Small, Regular };
    Switch(const QString& text, Size size, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& pos) const override { return rect().contains(pos); }
    void paintEvent(QPaintEvent* event) override;

private:
    QSize track_; // points
};

} // namespace morrowleaf
