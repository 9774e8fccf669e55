// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "settingsui/menupicker.h"

#include "settingsui/panelstyle.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>

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
        const auto placed = [&option](const QRect& rect) {
            return QStyle::visualRect(option.direction, option.rect, rect);
        };
        painter->setLayoutDirection(option.direction);
        painter->drawText(placed(option.rect.adjusted(24, 0, -8, 0)),
                          Qt::AlignLeft | Qt::AlignVCenter, index.data().toString());
        if (index.row() == current_) {
            painter->setPen(
                QPen(PanelStyle::ink(0.92), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            const QRect mark = placed({option.rect.left(), option.rect.top(), 25, rowHeight});
            const QPointF c(mark.x() + 12.5, option.rect.center().y() + 0.5);
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

QRect PickerMenu::findPlace() const {
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
    setGeometry(findPlace());
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

bool PickerMenu::handleKey(int key) {
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
        return handleKey(static_cast<QKeyEvent*>(event)->key());
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
        // Screen readers do not ask for the value of a combo box that has a name.
        setAccessibleDescription(currentText());
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
    painter.setLayoutDirection(layoutDirection());
    painter.drawText(isRightToLeft() ? shape.adjusted(28, 0, -11, 0)
                                     : shape.adjusted(11, 0, -28, 0),
                     Qt::AlignLeft | Qt::AlignVCenter, currentText());

    painter.setPen(QPen(PanelStyle::ink(0.65), 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    const QPointF c(isRightToLeft() ? shape.left() + 14 : shape.right() - 14, shape.center().y());
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
