// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/swatch.h"

#include "settingsui/panelstyle.h"

#include <QAccessible>
#include <QPainter>
#include <QPainterPath>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr int captionHeight = 15; // points
constexpr double captionSize = 8.5;

QPainterPath rounded(const QRectF& rect) {
    QPainterPath path;
    path.addRoundedRect(rect, PanelStyle::tileRadius, PanelStyle::tileRadius);
    return path;
}

} // namespace

Swatch::Swatch(const QString& name, const QFont& face, QWidget* parent)
    : QAbstractButton(parent)
    , face_(face) {
    setText(name);
    setAccessibleName(name);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Swatch::setMarked(bool marked) {
    if (marked == marked_) {
        return;
    }
    marked_ = marked;
    update();
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

QSize Swatch::sizeHint() const {
    return {40, PanelStyle::tileHeight + (hasCaption() ? captionHeight : 0)};
}

QFont Swatch::captionFont() const {
    QFont font = panelFont(face_, captionSize, marked_ ? QFont::DemiBold : QFont::Normal);
    const double needed = QFontMetricsF(font).horizontalAdvance(text());
    if (needed > width()) {
        font.setPointSizeF(font.pointSizeF() * width() / needed);
    }
    return font;
}

QRectF Swatch::tile() const {
    return {0, 0, double(width()), PanelStyle::tileHeight};
}

void Swatch::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF shape = tile();
    painter.save();
    paintTile(painter, shape);
    if (isDown()) {
        painter.fillPath(rounded(shape), QColor(0, 0, 0, 60));
    } else if (underMouse() && !marked_) {
        painter.fillPath(rounded(shape), PanelStyle::ink(0.06));
    }
    painter.restore();

    const double width = marked_ ? 2 : 1;
    painter.setPen(QPen(PanelStyle::ink(marked_ ? 0.9 : 0.12), width));
    painter.setBrush(Qt::NoBrush);
    const double half = width / 2;
    painter.drawRoundedRect(shape.adjusted(half, half, -half, -half), PanelStyle::tileRadius - half,
                            PanelStyle::tileRadius - half);
    if (hasFocus()) {
        // Drawn inside, because the neighbours leave no space outside.
        painter.setPen(QPen(PanelStyle::focusRing(), 2));
        painter.drawRoundedRect(shape.adjusted(1, 1, -1, -1), PanelStyle::tileRadius - 1,
                                PanelStyle::tileRadius - 1);
    }
    if (hasCaption()) {
        painter.setFont(captionFont());
        painter.setPen(PanelStyle::ink(marked_ ? 0.95 : 0.66));
        painter.drawText(
            QRectF(0, shape.bottom() + 1, this->width(), height() - shape.bottom() - 1),
            Qt::AlignHCenter | Qt::AlignVCenter, text());
    }
}

PaletteSwatch::PaletteSwatch(const QString& name, std::span<const QColor> colors, const QFont& face,
                             QWidget* parent)
    : Swatch(name, face, parent) {
    const double last = double(colors.size()) - 1;
    for (std::size_t i = 0; i < colors.size(); ++i) {
        stops_.append({last > 0 ? double(i) / last : 0, colors[i]});
    }
}

void PaletteSwatch::paintTile(QPainter& painter, const QRectF& tile) {
    QLinearGradient gradient(isRightToLeft() ? tile.topRight() : tile.topLeft(),
                             isRightToLeft() ? tile.bottomLeft() : tile.bottomRight());
    gradient.setStops(stops_);
    painter.fillPath(rounded(tile), gradient);
}

PhotoSwatch::PhotoSwatch(const QString& path, const QString& name, const QFont& face,
                         QWidget* parent)
    : Swatch(name, face, parent)
    , path_(path) {}

void PhotoSwatch::setPicture(const QImage& picture) {
    picture_ = picture;
    update();
}

QSize PhotoSwatch::pictureSize() const {
    return (tile().size() * devicePixelRatioF()).toSize().expandedTo({1, 1});
}

void PhotoSwatch::paintTile(QPainter& painter, const QRectF& tile) {
    if (picture_.isNull()) {
        painter.fillPath(rounded(tile), PanelStyle::ink(0.09));
        return;
    }
    // A brush instead of a clip, because only filled shapes have smooth edges.
    QBrush brush(picture_);
    brush.setTransform(
        QTransform::fromScale(tile.width() / picture_.width(), tile.height() / picture_.height()));
    painter.fillPath(rounded(tile), brush);
}

AddTile::AddTile(const QFont& face, QWidget* parent)
    : Swatch(tr("Add a photo"), face, parent) {
    setToolTip(tr("Add one of your own images, up to three"));
    // A tool tip takes the style sheet of its widget, but not the palette.
    setStyleSheet(
        u"QToolTip { color: %1; background: %2; border: 1px solid %3; padding: 3px; }"_s.arg(
            PanelStyle::ink(0.92).name(QColor::HexArgb), PanelStyle::menuGround().name(),
            PanelStyle::ink(0.16).name(QColor::HexArgb)));
    setAccessibleDescription(toolTip());
}

void AddTile::paintTile(QPainter& painter, const QRectF& tile) {
    painter.fillPath(rounded(tile), PanelStyle::ink(0.07));
    painter.setPen(QPen(PanelStyle::ink(0.75), 1.5, Qt::SolidLine, Qt::RoundCap));
    const QPointF c = tile.center();
    painter.drawLine(c - QPointF(5.5, 0), c + QPointF(5.5, 0));
    painter.drawLine(c - QPointF(0, 5.5), c + QPointF(0, 5.5));
}

RemoveButton::RemoveButton(const QString& name, QWidget* parent)
    : QAbstractButton(parent) {
    setAccessibleName(name);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::ArrowCursor);
}

void RemoveButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF c = QRectF(rect()).center();
    painter.setPen(QPen(QColor(0, 0, 0, 60), 1));
    painter.setBrush(underMouse() || hasFocus() ? QColor(255, 255, 255) : QColor(235, 235, 238));
    painter.drawEllipse(c, 5.5, 5.5);
    painter.setPen(QPen(QColor(40, 40, 46), 1.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(c - QPointF(2, 2), c + QPointF(2, 2));
    painter.drawLine(c - QPointF(-2, 2), c + QPointF(-2, 2));
    if (hasFocus()) {
        painter.setPen(QPen(PanelStyle::focusRing(), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(c, 7.5, 7.5);
    }
}

} // namespace morrowleaf
