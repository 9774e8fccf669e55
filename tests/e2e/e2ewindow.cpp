// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// A plain window for sessions under test. It has one colour and prints a line on standard
// output for every activation, key and click.
//   e2e_window TITLE COLOUR X Y WIDTH HEIGHT [above|dock|grabbing|locker [FILE]]
// A grabbing window grabs keyboard and mouse, as games do, if FILE is given as soon as there
// is such a file; a locker is not managed.
#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

class Window final : public QWidget {
protected:
    bool event(QEvent* event) override {
        switch (event->type()) {
        case QEvent::WindowActivate:
            say("active");
            break;
        case QEvent::WindowDeactivate:
            say("inactive");
            break;
        case QEvent::KeyPress:
            say("key", static_cast<QKeyEvent*>(event)->text());
            break;
        case QEvent::KeyRelease:
            say("release", static_cast<QKeyEvent*>(event)->text());
            break;
        case QEvent::MouseButtonPress:
            say("click");
            break;
        default:
            break;
        }
        return QWidget::event(event);
    }

private:
    static void say(const char* what, const QString& text = {}) {
        std::printf("%s%s\n", what, qPrintable(text.isEmpty() ? text : u' ' + text));
        std::fflush(stdout);
    }
};

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    constexpr qsizetype needed = 7;
    if (arguments.size() < needed) {
        return 2;
    }
    Window window;
    window.setWindowTitle(arguments[1]);
    window.setPalette(QColor(arguments[2]));
    window.setGeometry(arguments[3].toInt(), arguments[4].toInt(), arguments[5].toInt(),
                       arguments[6].toInt());
    const QString kind = arguments.value(needed);
    if (kind == "above"_L1) {
        window.setWindowFlag(Qt::WindowStaysOnTopHint);
    }
    if (kind == "locker"_L1) {
        window.setWindowFlag(Qt::X11BypassWindowManagerHint);
    }
    if (kind == "dock"_L1) {
        window.setAttribute(Qt::WA_X11NetWmWindowTypeDock);
    }
    window.show();
    if (kind == "grabbing"_L1) {
        auto* handle = window.windowHandle();
        const QString file = arguments.value(needed + 1);
        QTimer grab;
        QObject::connect(&grab, &QTimer::timeout, handle, [&grab, handle, file] {
            if (!file.isEmpty() && !QFile::exists(file)) {
                return;
            }
            if (handle->setKeyboardGrabEnabled(true) && handle->setMouseGrabEnabled(true)) {
                grab.stop();
                std::puts("grabbed");
            } else {
                std::puts("refused");
            }
            std::fflush(stdout);
        });
        grab.start(50);
        return QApplication::exec();
    }
    return QApplication::exec();
}
