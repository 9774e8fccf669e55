// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/menupicker.h"

#include "settingsui/panelstyle.h"
#include "settingsui/pickermenu.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace morrowleaf {

MenuPicker::MenuPicker(const QString& name, std::vector<Entry> entries, const QFont& face,
                       QWidget* parent)
    : QAbstractButton(parent)
    , entries_(std::move(entries))
    , face_(panelFont(face, 12)) {
    setAccessibleName(name);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::clicked, this, &MenuPicker::open);
}

MenuPicker::~MenuPicker() {
    delete menu_;
}

QString MenuPicker::currentText() const {
    return current_ < 0 ? QString() : entries_[std::size_t(current_)].text;
}

void MenuPicker::showValue(const QString& value) {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& entry) { return entry.value == value; });
    const int index = found == entries_.end() ? -1 : int(found - entries_.begin());
    if (index != current_) {
        current_ = index;
        update();
        QAccessibleValueChangeEvent event(this, currentText());
        QAccessible::updateAccessibility(&event);
    }
}

void MenuPicker::choose(int index) {
    if (index >= 0 && index < int(entries_.size())) {
        const QString value = entries_[std::size_t(index)].value;
        showValue(value);
        emit chosen(value);
    }
}

bool MenuPicker::isOpen() const {
    return menu_ && menu_->isVisible();
}

PickerMenu* MenuPicker::menu() const {
    return menu_;
}

void MenuPicker::open() {
    if (isOpen()) {
        return close();
    }
    QStringList texts;
    for (const Entry& entry : entries_) {
        texts.append(entry.text);
    }
    delete menu_;
    menu_ = new PickerMenu(accessibleName(), texts, current_, face_, this);
    connect(menu_, &PickerMenu::picked, this, [this](int index) {
        close();
        choose(index);
    });
    connect(menu_, &PickerMenu::dismissed, this, &MenuPicker::close);
    menu_->popUp();
    update();
}

void MenuPicker::close() {
    if (menu_) {
        PickerMenu* menu = menu_;
        menu_ = nullptr;
        menu->retire();
        update();
    }
}

void MenuPicker::hideEvent(QHideEvent* event) {
    close();
    QAbstractButton::hideEvent(event);
}

void MenuPicker::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up) {
        open();
    } else {
        QAbstractButton::keyPressEvent(event);
    }
}

void MenuPicker::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF shape = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(QPen(PanelStyle::ink(0.12), 1));
    painter.setBrush(PanelStyle::ink(isDown() || isOpen() ? 0.16 : underMouse() ? 0.12 : 0.09));
    painter.drawRoundedRect(shape, 6, 6);

    painter.setFont(face_);
    painter.setPen(PanelStyle::ink(0.92));
    painter.drawText(shape.adjusted(11, 0, -28, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     currentText());

    painter.setPen(QPen(PanelStyle::ink(0.65), 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    const QPointF c(shape.right() - 14, shape.center().y());
    for (const double side : {-1.0, 1.0}) {
        painter.drawPolyline(QPolygonF{{c.x() - 3.5, c.y() + side * 2.5},
                                       {c.x(), c.y() + side * 6},
                                       {c.x() + 3.5, c.y() + side * 2.5}});
    }
    if (hasFocus()) {
        painter.setPen(QPen(PanelStyle::focusRing(), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
    }
}

} // namespace morrowleaf
