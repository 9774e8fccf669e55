// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/macos/core/maccore.h"
#include "tests/macos/fakes/macfakes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace {

class MacCore : public testing::Test {
protected:
    MacCore() {
        macfakes::reset();
        macfakes::addDisplay(1, 0, 0, 1440, 900);
        macfakes::addDisplay(7, 1440, -180, 2560, 1440); // its top is 360 above the first one's
        view = macfakes::makeView();
    }
    void TearDown() override {
        EXPECT_EQ(macfakes::liveObjects(), 0);
        EXPECT_EQ(macfakes::mistakes(), std::vector<std::string>{});
        macfakes::reset();
    }

    void* view = nullptr;
    macfakes::Window& window() { return macfakes::windowOf(view); }
    std::vector<std::string> kindsBehind() {
        std::vector<std::string> kinds;
        for (const macfakes::Layer& layer : macfakes::layersBehind(view)) {
            kinds.push_back(layer.kind);
        }
        return kinds;
    }
};

TEST_F(MacCore, FindsDisplaysByTheirCorners) {
    EXPECT_EQ(macDisplayAt(0, 0), 1U);
    EXPECT_EQ(macDisplayAt(1440, -360), 7U);
    EXPECT_EQ(macDisplayAt(1440.5, -360.5), 7U);
    EXPECT_EQ(macDisplayAt(1440, 0), 0U);
    EXPECT_EQ(macDisplayAt(1441, -360), 0U);
}

TEST_F(MacCore, TheMainDisplayIsTheOneWithTheKeyboardFocus) {
    EXPECT_EQ(macMainDisplay(), 1U);
    macfakes::setMainDisplay(7);
    EXPECT_EQ(macMainDisplay(), 7U);
    macfakes::setMainDisplay(0);
    EXPECT_EQ(macMainDisplay(), 0U);
}

TEST_F(MacCore, CoversAWholeDisplayAboveEverything) {
    ASSERT_TRUE(macCoverDisplay(view, 7, MacLevelScreenSaver));
    EXPECT_EQ(window().level, 1000);
    EXPECT_EQ(window().behaviour, 321U);
    EXPECT_FALSE(window().isOpaque);
    EXPECT_TRUE(window().isClear);
    EXPECT_FALSE(window().hasShadow);
    EXPECT_FALSE(window().isAnimated);
    EXPECT_EQ(window().x, 1440);
    EXPECT_EQ(window().y, -180);
    EXPECT_EQ(window().width, 2560);
    EXPECT_EQ(window().height, 1440);
}

TEST_F(MacCore, LeavesTheWindowAloneWithoutThatDisplay) {
    EXPECT_FALSE(macCoverDisplay(view, 2, MacLevelScreenSaver));
    EXPECT_EQ(window().level, 0);
    EXPECT_TRUE(window().isOpaque);
    EXPECT_EQ(window().width, 100);
}

TEST_F(MacCore, ChangesTheLevel) {
    macSetLevel(view, MacLevelFloating);
    EXPECT_EQ(window().level, 3);
    macSetLevel(view, MacLevelNormal);
    EXPECT_EQ(window().level, 0);
}

TEST_F(MacCore, ComesToTheFrontWithTheFocusAndGoes) {
    macSetAlpha(view, 0.25);
    macOrderFront(view);
    EXPECT_EQ(window().alpha, 0.25);
    EXPECT_TRUE(window().isOrderedIn);
    EXPECT_TRUE(window().isKey);
    EXPECT_EQ(macfakes::programCalls(), std::vector<std::string>{"activate, ignoring others"});
    macOrderOut(view);
    EXPECT_FALSE(window().isOrderedIn);
}

TEST_F(MacCore, PutsATintedBlurBehindTheView) {
    void* blur = macAddBackdrop(view, MacBackdropBlur);
    macTintBackdrop(blur, 0.1, 0.2, 0.3, 0.4);
    macSetBackdropOpacity(blur, 0.5);
    EXPECT_EQ(kindsBehind(), (std::vector<std::string>{"NSVisualEffectView", "NSBox"}));
    const macfakes::Layer tint = macfakes::layersBehind(view).back();
    EXPECT_EQ((std::vector<double>{tint.red, tint.green, tint.blue, tint.alpha}),
              (std::vector<double>{0.1, 0.2, 0.3, 0.4}));
    EXPECT_EQ(tint.opacity, 0.5);
    macRemoveBackdrop(blur);
    EXPECT_EQ(kindsBehind(), std::vector<std::string>{});
}

TEST_F(MacCore, PutsTintedGlassBehindTheView) {
    for (const auto& [kind, style] :
         {std::pair(MacBackdropGlass, 0L), std::pair(MacBackdropClearGlass, 1L)}) {
        void* glass = macAddBackdrop(view, kind);
        macTintBackdrop(glass, 1, 0.5, 0, 0.25);
        EXPECT_EQ(kindsBehind(), std::vector<std::string>{"NSGlassEffectView"});
        const macfakes::Layer layer = macfakes::layersBehind(view).back();
        EXPECT_EQ(layer.style, style);
        EXPECT_EQ((std::vector<double>{layer.red, layer.green, layer.blue, layer.alpha}),
                  (std::vector<double>{1.0, 0.5, 0.0, 0.25}));
        macRemoveBackdrop(glass);
    }
}

std::vector<MacSessionEvent> seen;
void note(void* context, MacSessionEvent event) {
    EXPECT_EQ(context, &seen);
    seen.push_back(event);
}

TEST_F(MacCore, ReportsTheSessionUntilItIsEnded) {
    seen.clear();
    void* watch = macWatchSession(note, &seen);
    macfakes::postFromWorkspace("NSWorkspaceWillSleepNotification");
    macfakes::postFromWorkspace("NSWorkspaceDidWakeNotification");
    macfakes::postFromWorkspace("NSWorkspaceSessionDidResignActiveNotification");
    macfakes::postFromWorkspace("NSWorkspaceSessionDidBecomeActiveNotification");
    macfakes::postFromWorkspace("NSWorkspaceDidMountNotification");
    EXPECT_EQ(seen, (std::vector{MacWillSleep, MacDidWake, MacSessionDidResignActive,
                                 MacSessionDidBecomeActive}));
    macEndSession(watch);
    macfakes::postFromWorkspace("NSWorkspaceDidWakeNotification");
    macfakes::postToEverybody("com.apple.screenIsUnlocked", true);
    EXPECT_EQ(seen.size(), 4U);
}

TEST_F(MacCore, HearsOfTheLockAlsoWhileAnotherProgramIsInFront) {
    seen.clear();
    void* watch = macWatchSession(note, &seen);
    macfakes::postToEverybody("com.apple.screenIsLocked", false);
    macfakes::postToEverybody("com.apple.screenIsUnlocked", false);
    macfakes::postToEverybody("com.apple.screenIsUnlocked", true);
    EXPECT_EQ(seen, (std::vector{MacScreenIsLocked, MacScreenIsUnlocked, MacScreenIsUnlocked}));
    macEndSession(watch);
}

TEST_F(MacCore, SaysWhetherTheScreenIsLocked) {
    EXPECT_FALSE(macIsScreenLocked());
    macfakes::setScreenLocked(true);
    EXPECT_TRUE(macIsScreenLocked());
    macfakes::setHasSession(false);
    EXPECT_FALSE(macIsScreenLocked());
}

struct Watcher {
    int calls = 0;
    bool consumes = true;
};
bool watchInput(void* context) {
    auto* watcher = static_cast<Watcher*>(context);
    ++watcher->calls;
    return watcher->consumes;
}

constexpr unsigned short escape = 53;
constexpr unsigned short letter = 0; // A

TEST_F(MacCore, WatchesKeysAndTwoButtons) {
    Watcher watcher;
    void* watch = macWatchInput(MacAnyInput, watchInput, &watcher);
    EXPECT_TRUE(macfakes::pressKey(letter));
    EXPECT_TRUE(macfakes::pressKey(escape));
    EXPECT_TRUE(macfakes::pressButton(macfakes::Button::Left));
    EXPECT_TRUE(macfakes::pressButton(macfakes::Button::Right));
    EXPECT_FALSE(macfakes::pressButton(macfakes::Button::Other));
    EXPECT_EQ(watcher.calls, 4);
    watcher.consumes = false;
    EXPECT_FALSE(macfakes::pressKey(letter));
    macEndInput(watch);
    EXPECT_FALSE(macfakes::pressKey(letter));
    EXPECT_EQ(watcher.calls, 5);
}

TEST_F(MacCore, WatchesTheEscapeKeyAlone) {
    Watcher watcher;
    void* watch = macWatchInput(MacEscapeKey, watchInput, &watcher);
    EXPECT_FALSE(macfakes::pressKey(letter));
    EXPECT_FALSE(macfakes::pressButton(macfakes::Button::Left));
    EXPECT_EQ(watcher.calls, 0);
    EXPECT_TRUE(macfakes::pressKey(escape));
    macEndInput(watch);
}

TEST_F(MacCore, GivesNothingIfInputCannotBeWatched) {
    macfakes::refuseMonitors();
    Watcher watcher;
    EXPECT_EQ(macWatchInput(MacAnyInput, watchInput, &watcher), nullptr);
}

TEST_F(MacCore, SaysHowTheLoginItemStands) {
    for (const auto status :
         {MacLoginNotRegistered, MacLoginEnabled, MacLoginRequiresApproval, MacLoginNotFound}) {
        macfakes::setLoginStatus(status);
        EXPECT_EQ(macLoginStatus(), status);
    }
    macfakes::setLoginStatus(77); // of a later system
    EXPECT_EQ(macLoginStatus(), MacLoginNotFound);
}

TEST_F(MacCore, RegistersTheLoginItem) {
    std::array<char, 32> words{"untouched"};
    EXPECT_TRUE(macRegisterLogin(words.data(), words.size()));
    EXPECT_STREQ(words.data(), "");
    EXPECT_EQ(macLoginStatus(), MacLoginEnabled);
    EXPECT_TRUE(macUnregisterLogin(words.data(), words.size()));
    EXPECT_EQ(macLoginStatus(), MacLoginNotRegistered);
}

TEST_F(MacCore, GivesTheWordsOfARefusalAsFarAsTheyFit) {
    macfakes::refuseLogin("Operation not permitted");
    std::array<char, 32> words{};
    EXPECT_FALSE(macRegisterLogin(words.data(), words.size()));
    EXPECT_STREQ(words.data(), "Operation not permitted");
    std::array<char, 10> few{};
    EXPECT_FALSE(macUnregisterLogin(few.data(), few.size()));
    EXPECT_STREQ(few.data(), "Operation");
}

TEST_F(MacCore, KeepsOutOfTheDock) {
    macBecomeAccessory();
    EXPECT_EQ(macfakes::programCalls(), std::vector<std::string>{"become accessory"});
}

TEST_F(MacCore, DrawsTheSymbolIntoTheMiddle) {
    constexpr unsigned size = 16; // the symbol is 16 points wide and 12 high
    std::array<unsigned char, size * size * 4> pixels{};
    ASSERT_TRUE(macDrawStatusSymbol(pixels.data(), size));
    const auto alpha = [&pixels](unsigned x, unsigned y) { return pixels[(y * size + x) * 4 + 3]; };
    EXPECT_EQ(alpha(8, 1), 0);
    EXPECT_EQ(alpha(8, 2), 255);
    EXPECT_EQ(alpha(0, 8), 255);
    EXPECT_EQ(alpha(15, 13), 255);
    EXPECT_EQ(alpha(8, 14), 0);
}

TEST_F(MacCore, SaysIfThereIsNoSymbol) {
    macfakes::setHasSymbols(false);
    std::array<unsigned char, 64> pixels{};
    EXPECT_FALSE(macDrawStatusSymbol(pixels.data(), 4));
    EXPECT_TRUE(std::all_of(pixels.begin(), pixels.end(), [](auto byte) { return byte == 0; }));
}

// So that the silence of the others means something.
TEST(MacFakes, CountWhatIsNotFreedAndWhatIsFreedTwice) {
    macfakes::reset();
    void* view = macfakes::makeView();
    void* blur = macAddBackdrop(view, MacBackdropBlur);
    EXPECT_EQ(macfakes::liveObjects(), 3);
    macRemoveBackdrop(blur);
    EXPECT_EQ(macfakes::liveObjects(), 0);
    macRemoveBackdrop(blur);
    EXPECT_EQ(macfakes::mistakes(), std::vector<std::string>{"NSView is released too often"});
    macfakes::reset();
    EXPECT_EQ(macfakes::mistakes(), std::vector<std::string>{});
}

} // namespace
