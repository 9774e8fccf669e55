// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/form.h"

#include "settingsui/controlstyle.h"
#include "settingsui/hostpalette.h"
#include "settingsui/panelaccessible.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

namespace morrowleaf {
namespace {

constexpr int sideRoom = 14; // points inside the frame
constexpr int rowHeight = 40;
constexpr double radius = 8;

} // namespace

FormCard::FormCard(const QString& title, QWidget* parent)
    : QWidget(parent)
    , column_(new QVBoxLayout(this))
    , frame_(new QWidget(this)) {
    makeAccessibleGroup(*this, title);
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(6);
    auto* heading = new QLabel(title, this);
    QFont font = heading->font();
    font.setWeight(QFont::DemiBold);
    heading->setFont(font);
    heading->setContentsMargins(sideRoom, 0, sideRoom, 0);
    column_->addWidget(heading);
    auto* rows = new QVBoxLayout(frame_);
    rows->setContentsMargins(
        mirroredIn(*this, {sideRoom, 0, sideRoom - ControlStyle::switchOverhang, 0}));
    rows->setSpacing(0);
    column_->addWidget(frame_);
}

void FormCard::addRow(QWidget* row) {
    if (frame_->layout()->count() > 0) {
        separated_.append(row);
    }
    addContinuation(row);
}

void FormCard::addContinuation(QWidget* row) {
    row->setMinimumHeight(rowHeight);
    // Aligns the visible edges; a switch's focus ring extends beyond them.
    auto* room = new QHBoxLayout;
    const bool isSwitch = qobject_cast<QCheckBox*>(row) != nullptr;
    room->setContentsMargins(
        mirroredIn(*this, {0, 0, isSwitch ? 0 : ControlStyle::switchOverhang, 0}));
    room->addWidget(row);
    static_cast<QVBoxLayout*>(frame_->layout())->addLayout(room);
}

void FormCard::addRow(const QString& label, QWidget* control) {
    auto* row = new QWidget(frame_);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    auto* text = new QLabel(label, row);
    text->setBuddy(control);
    line->addWidget(text);
    line->addStretch(1);
    line->addWidget(control);
    control->setAccessibleName(label);
    addRow(row);
}

void FormCard::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = palette().color(QPalette::WindowText);
    const bool dark = ink.lightness() > 127;
    const bool isFull = hasFullContrast(palette());
    painter.setPen(QPen(withOpacity(ink, isFull ? 1 : dark ? 0.1 : 0.12), 1));
    painter.setBrush(dark ? withOpacity(Qt::white, 0.05) : withOpacity(Qt::white, 0.75));
    painter.drawRoundedRect(QRectF(frame_->geometry()).adjusted(0.5, 0.5, -0.5, -0.5), radius,
                            radius);
    for (const QWidget* row : std::as_const(separated_)) {
        const int y = row->mapTo(this, QPoint(0, 0)).y();
        painter.fillRect(QRect(frame_->x() + sideRoom, y, frame_->width() - 2 * sideRoom, 1),
                         withOpacity(ink, isFull ? 1 : 0.09));
    }
}

} // namespace morrowleaf
