// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/panelstyle.h"

#include <QGuiApplication>
#include <QLocale>
#include <QPainter>
#include <QScreen>

namespace morrowleaf {
namespace {

class Divider : public QWidget {
public:
    Divider(double opacity, QWidget* parent)
        : QWidget(parent)
        , opacity_(opacity) {
        setFixedHeight(1);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter(this).fillRect(rect(), PanelStyle::ink(0.5 * opacity_));
    }

private:
    double opacity_;
};

} // namespace

namespace PanelStyle {

QColor veil() {
    return {17, 17, 21, 224};
}
QColor menuGround() {
    return {38, 38, 44};
}
QColor ink(double opacity) {
    return QColor::fromRgbF(1, 1, 1, float(opacity));
}
QColor focusRing() {
    return {126, 182, 255};
}

QPalette palette() {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(17, 17, 21));
    palette.setColor(QPalette::Base, menuGround());
    palette.setColor(QPalette::Button, QColor(58, 58, 64));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::BrightText, QPalette::Light}) {
        palette.setColor(role, QColor(255, 255, 255, 222));
        palette.setColor(QPalette::Disabled, role, QColor(255, 255, 255, 88));
    }
    palette.setColor(QPalette::Highlight, QColor(236, 234, 228));
    palette.setColor(QPalette::HighlightedText, QColor(22, 22, 26));
    palette.setColor(QPalette::ToolTipBase, menuGround());
    palette.setColor(QPalette::ToolTipText, Qt::white);
    return palette;
}

} // namespace PanelStyle

QFont panelFont(const QFont& face, double size, QFont::Weight weight, double tracking) {
    QFont font(face);
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double dpi = screen ? screen->logicalDotsPerInchY() : 96;
    font.setPointSizeF(size * 72 / dpi);
    font.setWeight(weight);
    // It would tear the letters of the Arabic script apart.
    if (tracking != 0 && QLocale().script() != QLocale::ArabicScript) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, tracking);
    }
    return font;
}

QLabel* panelLabel(const QString& text, const QFont& font, double opacity, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(font);
    QPalette palette = PanelStyle::palette();
    palette.setColor(QPalette::WindowText, PanelStyle::ink(opacity));
    label->setPalette(palette);
    return label;
}

QWidget* panelDivider(double opacity, QWidget* parent) {
    return new Divider(opacity, parent);
}

void paintFocusRing(QPainter& painter, const QRectF& shape, double radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(PanelStyle::focusRing(), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(shape.adjusted(-2, -2, 2, 2), radius + 2, radius + 2);
    painter.restore();
}

} // namespace morrowleaf
