// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/appdelegate.h"

#include "base/curves.h"
#include "settings/settingskeys.h"
#include "settings/settingsstore.h"
#include "tests/fakes/fakeplatform.h"
#include "tests/fakes/faketiming.h"

#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include <limits>

namespace morrowleaf {

class AppDelegateTest : public testing::Test {
protected:
    AppSurroundings surroundings() {
        return {
            .store = store,
            .platform = desktop.platform,
            .timing = timing,
            .makeQuoteScreen =
                [this](const EditingHooks* editing) {
                    ++screensMade;
                    hooks = editing != nullptr ? std::optional(*editing) : std::nullopt;
                    content = new QWidget;
                    return QuoteContent{.widget = content,
                                        .setBehind = [this](const Behind& b) { behind = b; }};
                },
            .makeSettingsView =
                [this](std::function<void()> onShowNow, std::function<void()> onEditAppearance) {
                    ++viewsMade;
                    showNow = std::move(onShowNow);
                    edit = std::move(onEditAppearance);
                    auto* view = new QLineEdit;
                    view->setFixedSize(520, 545);
                    return view;
                },
            .terminate = [this] { ++terminations; }};
    }

    void launch(const QStringList& arguments = {"morrowleaf"}) {
        delegate = std::make_unique<AppDelegate>(surroundings());
        delegate->applicationDidFinishLaunching(arguments);
    }
    // A launch whose showing is long over.
    void launchAndClose() {
        launch();
        delegate->dismiss(false);
        timing.pass(60);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(top().window, &event);
    }
    void click(Qt::MouseButton button) { QTest::mousePress(content, button); }

    OverlayRecord& top() { return *desktop.overlays.back(); }
    bool isShown() const { return delegate->window() != nullptr; }
    qsizetype showings() const { return static_cast<qsizetype>(desktop.overlays.size()); }
    void wake() { emit desktop.platform.sessionEvents->didWake(); }
    void activate() { emit desktop.platform.sessionEvents->sessionDidBecomeActive(); }
    void unlock() { emit desktop.platform.sessionEvents->screenIsUnlocked(); }

    SettingsStore store;
    FakeDesktop desktop;
    FakeTiming timing;
    int screensMade = 0;
    int viewsMade = 0;
    int terminations = 0;
    QWidget* content = nullptr;
    std::optional<EditingHooks> hooks;
    std::optional<Behind> behind;
    std::function<void()> showNow;
    std::function<void()> edit;
    std::unique_ptr<AppDelegate> delegate;
};

} // namespace morrowleaf
