// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/appdelegate.h"

#include "app/services.h"
#include "base/curves.h"
#include "photos/bgstore.h"
#include "screen/quotescreen.h"
#include "settings/settingsstore.h"
#include "settingsui/inspector.h"
#include "settingsui/settingsview.h"
#include "tests/fakes/fakeplatform.h"
#include "tests/fakes/faketiming.h"
#include "tests/fakes/shippedfonts.h"

#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

class AppDelegateTest : public testing::Test {
protected:
    // Deletes what the delegate has left to the event loop, which uses the members.
    void TearDown() override {
        delegate.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void launch(const QStringList& arguments = {u"morrowleaf"_s}) {
        delegate = std::make_unique<AppDelegate>(services);
        delegate->applicationDidFinishLaunching(arguments);
    }
    // Launches the program and ends the showing long before the test.
    void launchAndClose() {
        launch();
        delegate->dismiss(false);
        timing.pass(60);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(top().window, &event);
    }
    void click(Qt::MouseButton button) { QTest::mousePress(content(), button); }
    // Presses the button with that text in `window`.
    static void pressButton(const QWidget* window, const QString& text) {
        for (auto* button : window->findChildren<QAbstractButton*>()) {
            if (button->text() == text) {
                return button->click();
            }
        }
        ADD_FAILURE() << "no button " << text.toStdString();
    }

    OverlayRecord& top() { return *desktop.overlays.back(); }
    // The content of the last showing's window, and its editor, null without one.
    QuoteScreen* content() { return top().window->findChild<QuoteScreen*>(); }
    Inspector* editor() { return top().window->findChild<Inspector*>(); }
    // Covers the content, so that the colour of every pixel is known.
    void paintBlue() {
        auto* cover = new QWidget(content());
        cover->setGeometry(content()->rect());
        QPalette blue;
        blue.setColor(QPalette::Window, Qt::blue);
        cover->setPalette(blue);
        cover->setAutoFillBackground(true);
        cover->show();
    }
    bool isShown() const { return delegate->window() != nullptr; }
    qsizetype showings() const { return static_cast<qsizetype>(desktop.overlays.size()); }
    void wake() { emit desktop.platform.sessionEvents->didWake(); }
    void activate() { emit desktop.platform.sessionEvents->sessionDidBecomeActive(); }
    void unlock() { emit desktop.platform.sessionEvents->screenIsUnlocked(); }

    SettingsStore store;
    FakeDesktop desktop;
    FakeTiming timing;
    FrameClock frames{steadySeconds()};
    QTemporaryDir folder;
    BGStore photos{store, folder.path(), folder.path()};
    Services services{.store = store,
                      .fonts = shippedFonts(),
                      .photos = photos,
                      .loader = [](const QString&, const auto&) {},
                      .platform = desktop.platform,
                      .timing = timing,
                      .frames = frames};
    std::unique_ptr<AppDelegate> delegate;
};

} // namespace morrowleaf
