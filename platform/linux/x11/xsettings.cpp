// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/x11/xsettings.h"

#include "platform/desktopwishes.h"
#include "platform/linux/x11/x11connection.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QtEndian>

namespace morrowleaf {

namespace {

constexpr auto selectionName = "_XSETTINGS_S0";
constexpr auto propertyName = "_XSETTINGS_SETTINGS";

// Reads a value of that protocol, whose first byte says the order of bytes.
class Reader {
public:
    explicit Reader(const QByteArray& bytes)
        : bytes_(bytes) {}

    bool isBroken() const { return broken_; }
    void setLittleEndian(bool isLittle) { little_ = isLittle; }

    template <typename T>
    T number() {
        const char* at = take(sizeof(T));
        return at == nullptr ? T{} : little_ ? qFromLittleEndian<T>(at) : qFromBigEndian<T>(at);
    }
    // Padded to a multiple of four bytes.
    QByteArray text(quint32 length) {
        constexpr quint32 unit = 4;
        const char* at = take(length);
        take((unit - length % unit) % unit);
        return at == nullptr ? QByteArray() : QByteArray(at, static_cast<qsizetype>(length));
    }
    void skip(quint32 length) { take(length); }

private:
    const char* take(quint32 length) {
        if (broken_ || bytes_.size() - at_ < static_cast<qsizetype>(length)) {
            broken_ = true;
            return nullptr;
        }
        const char* at = bytes_.constData() + at_;
        at_ += length;
        return at;
    }

    const QByteArray& bytes_;
    qsizetype at_ = 0;
    bool little_ = true;
    bool broken_ = false;
};

class XSettingsWishes final : public DesktopWishes, public QAbstractNativeEventFilter {
public:
    XSettingsWishes()
        : manager_(x11::atom("MANAGER"))
        , selection_(x11::atom(selectionName))
        , property_(x11::atom(propertyName)) {
        // A new owner announces itself to the clients that listen on the root window.
        x11::listenTo(x11::rootWindow(), XCB_EVENT_MASK_STRUCTURE_NOTIFY);
        QCoreApplication::instance()->installNativeEventFilter(this);
        follow();
    }
    ~XSettingsWishes() override { QCoreApplication::instance()->removeNativeEventFilter(this); }

    Wishes current() const override { return wishes_; }

    bool nativeEventFilter(const QByteArray& /*type*/, void* message,
                           qintptr* /*result*/) override {
        const auto* event = static_cast<const xcb_generic_event_t*>(message);
        const auto type = event->response_type & 0x7F;
        if (type == XCB_CLIENT_MESSAGE) {
            const auto* sent = reinterpret_cast<const xcb_client_message_event_t*>(event);
            if (sent->type == manager_ && sent->data.data32[1] == selection_) {
                follow();
            }
        } else if (type == XCB_PROPERTY_NOTIFY) {
            const auto* change = reinterpret_cast<const xcb_property_notify_event_t*>(event);
            if (change->window == owner_ && change->atom == property_) {
                read();
            }
        }
        return false;
    }

private:
    void follow() {
        owner_ = x11::selectionOwner(selectionName);
        if (owner_ != XCB_WINDOW_NONE) {
            x11::listenTo(owner_, XCB_EVENT_MASK_PROPERTY_CHANGE);
        }
        read();
    }

    void read() {
        Wishes next;
        if (owner_ != XCB_WINDOW_NONE) {
            const auto settings = integersInXSettings(x11::bytesOf(owner_, propertyName));
            next.reducedMotion = settings.value("Gtk/EnableAnimations", 1) == 0;
        }
        if (next != wishes_) {
            wishes_ = next;
            // Not from within the filter of native events.
            QMetaObject::invokeMethod(
                this, [this] { emit changed(wishes_); }, Qt::QueuedConnection);
        }
    }

    xcb_atom_t manager_;
    xcb_atom_t selection_;
    xcb_atom_t property_;
    xcb_window_t owner_ = XCB_WINDOW_NONE;
    Wishes wishes_;
};

} // namespace

QMap<QByteArray, int> integersInXSettings(const QByteArray& property) {
    enum : quint8 { Integer, Text, Color };
    constexpr quint32 colorBytes = 8;
    Reader reader(property);
    reader.setLittleEndian(reader.number<quint8>() == 0);
    reader.skip(3);
    reader.number<quint32>(); // serial number
    const auto count = reader.number<quint32>();
    QMap<QByteArray, int> integers;
    for (quint32 i = 0; i < count && !reader.isBroken(); ++i) {
        const auto type = reader.number<quint8>();
        reader.skip(1);
        const QByteArray name = reader.text(reader.number<quint16>());
        reader.number<quint32>(); // serial number of the last change
        if (type == Integer) {
            integers.insert(name, reader.number<qint32>());
        } else if (type == Text) {
            reader.text(reader.number<quint32>());
        } else if (type == Color) {
            reader.skip(colorBytes);
        } else {
            return {};
        }
    }
    return reader.isBroken() ? QMap<QByteArray, int>() : integers;
}

std::unique_ptr<DesktopWishes> makeXSettingsWishes() {
    return std::make_unique<XSettingsWishes>();
}

} // namespace morrowleaf
