// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/appdelegate.h"
#include "app/services.h"
#include "photos/bgstore.h"
#include "platform/macos/macparts.h"
#include "platform/macos/nativeview.h"
#include "platform/null/nullplatform.h"
#include "screen/quotescreen.h"
#include "settings/settingsstore.h"
#include "settingsui/inspector.h"
#include "tests/fakes/fakefilechooser.h"
#include "tests/fakes/faketiming.h"
#include "tests/fakes/shippedfonts.h"
#include "tests/macos/fakes/macfakes.h"
#include "tests/macos/storyviews.h"

#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

// The controller and the whole backend, with stand-ins for the system and for time, and
// with two displays: the second is a Retina display, higher up.
class MacStory : public testing::Test {
protected:
    MacStory() {
        macfakes::reset();
        forgetViews();
        // The same displays, as the system counts.
        macfakes::addDisplay(1, 0, 0, 1440, 900);
        macfakes::addDisplay(7, 1440, 540, 1280, 720);
        setVersion(SystemVersion::BeforeGlass);
    }
    ~MacStory() override {
        delegate.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        platform = {};
        EXPECT_EQ(macfakes::liveObjects(), 0);
        EXPECT_EQ(macfakes::mistakes(), std::vector<std::string>{});
        macfakes::reset();
    }

    void setVersion(SystemVersion version) {
        platform = makeNullPlatform();
        addMacParts(platform, version);
        auto chooser = std::make_unique<FakeFileChooser>();
        files = chooser.get();
        platform.fileChooser = std::move(chooser);
    }
    void launch(const QStringList& arguments = {u"morrowleaf"_s}) {
        delegate = std::make_unique<AppDelegate>(services);
        delegate->applicationDidFinishLaunching(arguments);
    }
    void launchAndClose() {
        launch();
        delegate->dismiss(false);
        timing.pass(60);
        settle();
    }
    // Lets the screen draw, and delivers what is queued.
    void settle() {
        if (isShown()) {
            const_cast<QuoteWindow*>(delegate->window())->grab();
        }
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    bool isShown() const { return delegate->window() != nullptr; }
    void* view() const { return nativeView(*delegate->window()); }
    macfakes::Window& window() const { return macfakes::windowOf(view()); }
    Inspector* editor() const { return delegate->window()->findChild<Inspector*>(); }
    macfakes::Window& settings() const {
        return macfakes::windowOf(nativeView(*delegate->settingsWindow()));
    }

    SettingsStore store;
    Platform platform;
    FakeFileChooser* files = nullptr;
    FakeTiming timing;
    FrameClock frames{steadySeconds()};
    QTemporaryDir folder;
    BGStore photos{store, folder.path(), folder.path()};
    Services services{.store = store,
                      .fonts = shippedFonts(),
                      .photos = photos,
                      .loader = [](const QString&, const auto&) {},
                      .platform = platform,
                      .timing = timing,
                      .frames = frames};
    std::unique_ptr<AppDelegate> delegate;
};

} // namespace morrowleaf
