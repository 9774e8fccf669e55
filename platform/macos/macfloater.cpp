// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/macos/core/maccore.h"
#include "platform/macos/macparts.h"
#include "platform/macos/nativeview.h"

#include <QApplication>
#include <QEvent>
#include <QVariant>
#include <QWidget>

namespace morrowleaf {

namespace {

constexpr auto levelName = "morrowleafLevel"; // a property of windows

// The toolkit sets the level of its windows when they are shown, and of all of them when
// the program becomes active or inactive. This sets it again afterwards.
class MacFloater final : public QObject, public Floater {
public:
    MacFloater() {
        connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &MacFloater::applySoon);
    }

    void setFloating(QWidget& window, bool isFloating) override {
        window.setProperty(levelName,
                           static_cast<int>(isFloating ? MacLevelFloating : MacLevelNormal));
        window.installEventFilter(this);
        apply();
    }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Show) {
            applySoon();
        }
        return false;
    }

private:
    void applySoon() { QMetaObject::invokeMethod(this, &MacFloater::apply, Qt::QueuedConnection); }
    void apply() {
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            const QVariant level = window->property(levelName);
            if (level.isValid() && window->isVisible()) {
                macSetLevel(nativeView(*window), static_cast<MacLevel>(level.toInt()));
            }
        }
    }
};

} // namespace

std::unique_ptr<Floater> makeMacFloater() {
    return std::make_unique<MacFloater>();
}

} // namespace morrowleaf
