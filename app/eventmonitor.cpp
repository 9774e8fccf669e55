#include "app/eventmonitor.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace morrowleaf {

namespace {

EventMask kindOf(const QEvent& event) {
    switch (event.type()) {
    case QEvent::KeyPress:
        return isKeyDown(static_cast<const QKeyEvent&>(event)) ? keyDown : 0;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        switch (static_cast<const QMouseEvent&>(event).button()) {
        case Qt::LeftButton:
            return leftMouseDown;
        case Qt::RightButton:
            return rightMouseDown;
        default:
            return 0;
        }
    default:
        return 0;
    }
}

bool isBefore(quint64 timestamp, quint32 since) {
    if (since == 0 || timestamp == 0) {
        return false;
    }
    // The server's clock wraps every 49 days.
    return static_cast<qint32>(static_cast<quint32>(timestamp) - since) < 0;
}

} // namespace

bool isKeyDown(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_Mode_switch:
        return false;
    default:
        return true;
    }
}

EventMonitor::EventMonitor(EventMask mask, quint32 since, Consumes consumes)
    : mask_(mask)
    , since_(since)
    , consumes_(std::move(consumes)) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool EventMonitor::eventFilter(QObject* /*receiver*/, QEvent* event) {
    if ((kindOf(*event) & mask_) == 0 ||
        isBefore(static_cast<const QInputEvent*>(event)->timestamp(), since_)) {
        return false;
    }
    // The answer may destroy this monitor.
    const auto consumes = consumes_;
    return consumes(*event);
}

} // namespace morrowleaf
