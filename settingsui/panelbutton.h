// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPushButton>

namespace morrowleaf {

// A push button of the editor's footer.
class PanelButton : public QPushButton {
    Q_OBJECT

public:
    enum class Kind { Plain, Default };
    static constexpr int sidePadding = 14; // points

    PanelButton(const QString& text, Kind kind, QWidget* parent = nullptr);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Kind kind_;
};

} // namespace morrowleaf
