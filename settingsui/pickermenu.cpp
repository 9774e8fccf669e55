// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/pickermenu.h"

#include "settingsui/panelstyle.h"

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace morrowleaf {
namespace {

constexpr int rowHeight = 26; // points
constexpr int edge = 5;       // points between the menu's outline and its rows
constexpr int shadow = 10;    // points around the outline
constexpr int nearPicker = 3; // points

class EntryDelegate : public QStyledItemDelegate {
public:
    EntryDelegate(int current, QObject* parent)
        : QStyledItemDelegate(parent)
        , current_(current) {}

    QSize sizeHint(const QStyleOptionViewItem& /*option*/,
                   const QModelIndex& /*index*/) const override {
        return {80, rowHeight};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        if (option.state.testFlag(QStyle::State_Selected)) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(PanelStyle::ink(0.16));
            painter->drawRoundedRect(option.rect, 4, 4);
        }
        painter->setFont(option.font);
        painter->setPen(PanelStyle::ink(0.92));
        painter->drawText(option.rect.adjusted(24, 0, -8, 0), Qt::AlignLeft | Qt::AlignVCenter,
                          index.data().toString());
        if (index.row() == current_) {
            painter->setPen(
                QPen(PanelStyle::ink(0.92), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            const QPointF c(option.rect.left() + 12.5, option.rect.center().y() + 0.5);
            painter->drawPolyline(
                QPolygonF{{c.x() - 4, c.y()}, {c.x() - 1, c.y() + 3.2}, {c.x() + 4, c.y() - 3.6}});
        }
        painter->restore();
    }

private:
    int current_;
};

} // namespace

PickerMenu::PickerMenu(const QString& name, const QStringList& texts, int current,
                       const QFont& font, QWidget* picker)
    : QWidget(picker->window())
    , picker_(picker)
    , focusBefore_(picker->window()->focusWidget())
    , list_(new QListWidget(this)) {
    list_->setAccessibleName(name);
    list_->setFont(font);
    list_->setItemDelegate(new EntryDelegate(current, list_));
    list_->addItems(texts);
    list_->setCurrentRow(current);
    list_->setFrameShape(QFrame::NoFrame);
    list_->setMouseTracking(true);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->viewport()->setAutoFillBackground(false);
    list_->setPalette(PanelStyle::palette());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(shadow + edge, shadow + edge, shadow + edge, shadow + edge);
    layout->addWidget(list_);
    connect(list_, &QListWidget::itemEntered, list_,
            qOverload<QListWidgetItem*>(&QListWidget::setCurrentItem));
    connect(list_, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { emit picked(list_->row(item)); });
}

QRect PickerMenu::place() const {
    const QWidget* window = parentWidget();
    const QPoint corner = picker_->mapTo(window, QPoint(0, 0));
    const int height = qMin(list_->count() * rowHeight + 2 * (edge + shadow), window->height());
    int top = corner.y() + picker_->height() + nearPicker - shadow;
    if (top + height > window->height()) {
        top = qMax(0, corner.y() - nearPicker + shadow - height);
    }
    return {corner.x() - shadow, top, picker_->width() + 2 * shadow, height};
}

void PickerMenu::popUp() {
    setGeometry(place());
    show();
    raise();
    list_->setFocus(Qt::PopupFocusReason);
    qApp->installEventFilter(this);
}

void PickerMenu::retire() {
    qApp->removeEventFilter(this);
    if (focusBefore_) {
        focusBefore_->setFocus(Qt::PopupFocusReason);
    } else {
        list_->clearFocus();
    }
    hide();
    deleteLater();
}

bool PickerMenu::keyPressed(int key) {
    switch (key) {
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        emit dismissed();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (list_->currentRow() >= 0) {
            emit picked(list_->currentRow());
        } else {
            emit dismissed();
        }
        return true;
    default:
        return false;
    }
}

bool PickerMenu::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        event->accept();
        return true;
    case QEvent::KeyPress:
        return keyPressed(static_cast<QKeyEvent*>(event)->key());
    case QEvent::MouseButtonPress: {
        const QPoint at = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
        const QRect outline = rect().adjusted(shadow, shadow, -shadow, -shadow);
        if (watched->isWindowType() && !outline.contains(mapFromGlobal(at))) {
            emit dismissed();
            return true;
        }
        return false;
    }
    case QEvent::WindowDeactivate:
    case QEvent::Resize:
        if (watched == parentWidget()) {
            emit dismissed();
        }
        return false;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void PickerMenu::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF outline = QRectF(rect()).adjusted(shadow, shadow, -shadow, -shadow);
    for (int i = shadow; i > 0; --i) {
        painter.setBrush(QColor(0, 0, 0, 7));
        painter.drawRoundedRect(outline.adjusted(-i, 2 - i, i, i), 8 + i, 8 + i);
    }
    painter.setPen(QPen(PanelStyle::ink(0.16), 1));
    painter.setBrush(PanelStyle::menuGround());
    painter.drawRoundedRect(outline.adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
}

} // namespace morrowleaf
