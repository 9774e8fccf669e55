// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/eventmonitor.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <array>

namespace morrowleaf {

namespace {

// A user who turns the volume down does not want to dismiss the quotation.
bool operatesMachine(int key) {
    static constexpr std::array keys{Qt::Key_VolumeDown,
                                     Qt::Key_VolumeMute,
                                     Qt::Key_VolumeUp,
                                     Qt::Key_MicMute,
                                     Qt::Key_MicVolumeDown,
                                     Qt::Key_MicVolumeUp,
                                     Qt::Key_MediaPlay,
                                     Qt::Key_MediaPause,
                                     Qt::Key_MediaTogglePlayPause,
                                     Qt::Key_MediaStop,
                                     Qt::Key_MediaPrevious,
                                     Qt::Key_MediaNext,
                                     Qt::Key_MediaRecord,
                                     Qt::Key_AudioRewind,
                                     Qt::Key_AudioForward,
                                     Qt::Key_AudioRepeat,
                                     Qt::Key_AudioRandomPlay,
                                     Qt::Key_MonBrightnessDown,
                                     Qt::Key_MonBrightnessUp,
                                     Qt::Key_KeyboardLightOnOff,
                                     Qt::Key_KeyboardBrightnessDown,
                                     Qt::Key_KeyboardBrightnessUp,
                                     Qt::Key_Display,
                                     Qt::Key_ScreenSaver,
                                     Qt::Key_Eject,
                                     Qt::Key_PowerOff,
                                     Qt::Key_PowerDown,
                                     Qt::Key_Sleep,
                                     Qt::Key_Standby,
                                     Qt::Key_Suspend,
                                     Qt::Key_Hibernate,
                                     Qt::Key_WakeUp,
                                     Qt::Key_Battery,
                                     Qt::Key_Bluetooth,
                                     Qt::Key_WLAN,
                                     Qt::Key_UWB,
                                     Qt::Key_TouchpadToggle,
                                     Qt::Key_TouchpadOn,
                                     Qt::Key_TouchpadOff};
    return std::find(keys.begin(), keys.end(), key) != keys.end();
}

bool isTyping(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_Mode_switch:
    case Qt::Key_Eisu_Shift:
    case Qt::Key_Kana_Shift:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
    case Qt::Key_Kana_Lock:
        return false;
    case 0:
    case Qt::Key_unknown:
        // Qt has no names for higher-level shift keys and for special keys of some
        // machines.
        return !event.text().isEmpty();
    default:
        return !operatesMachine(event.key());
    }
}

bool isBefore(quint64 timestamp, quint32 since) {
    if (since == 0 || timestamp == 0) {
        return false;
    }
    // The X server's clock wraps every 49 days.
    return static_cast<qint32>(static_cast<quint32>(timestamp) - since) < 0;
}

bool isMenuOrDialogInFront(const QWidget& window) {
    const QWidget* modal = QApplication::activeModalWidget();
    return QApplication::activePopupWidget() != nullptr || (modal != nullptr && modal != &window);
}

} // namespace

EventMonitor::EventMonitor(EndedBy endedBy, const QWidget& window, quint32 since, InputTaps& taps)
    : endedBy_(endedBy)
    , window_(window)
    , since_(since)
    , tap_(taps.tap(endedBy == EndedBy::Escape ? TappedInput::EscapeKey
                                               : TappedInput::ButtonsAndKeys,
                    [this] { return takeTapped(); })) {
    if (!tap_) {
        QCoreApplication::instance()->installEventFilter(this);
    }
}

void EventMonitor::stop() {
    isStopped_ = true;
    QCoreApplication::instance()->removeEventFilter(this);
}

bool EventMonitor::takeTapped() {
    if (isStopped_ || (endedBy_ == EndedBy::Escape && isMenuOrDialogInFront(window_))) {
        return false;
    }
    emit endRequested();
    return true;
}

bool EventMonitor::endsShowing(const QEvent& event) const {
    switch (event.type()) {
    case QEvent::KeyPress: {
        const auto& key = static_cast<const QKeyEvent&>(event);
        return endedBy_ == EndedBy::Escape
                   ? key.key() == Qt::Key_Escape && !isMenuOrDialogInFront(window_)
                   : isTyping(key);
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        const Qt::MouseButton button = static_cast<const QMouseEvent&>(event).button();
        return endedBy_ == EndedBy::AnyInput &&
               (button == Qt::LeftButton || button == Qt::RightButton);
    }
    default:
        return false;
    }
}

bool EventMonitor::eventFilter(QObject* /*receiver*/, QEvent* event) {
    if (!endsShowing(*event) ||
        isBefore(static_cast<const QInputEvent*>(event)->timestamp(), since_)) {
        return false;
    }
    emit endRequested();
    return true;
}

} // namespace morrowleaf
