// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/quotecontent.h"

#include "platform/platform.h"
#include "settingsui/inspector.h"
#include "textanim/fonts.h"

#include <QScreen>

namespace morrowleaf {

namespace {

constexpr double faceSize = 13; // points; the editor sets its own sizes

InspectorFactory inspectorFactory(const ScreenSurroundings& around, Platform& platform,
                                  const EditingHooks& hooks) {
    InspectorSurroundings needs{
        .store = around.store,
        .photos = around.photos,
        .choosePhoto =
            photoDialog(*platform.fileChooser, hooks.lowerForDialog, hooks.restoreAfterDialog),
        .glassCanBeDrawn = hooks.glassCanBeDrawn,
        .face = nsFont(around.fonts, faceSize, FontDesign::Default).face,
        .screen = std::nullopt};
    if (const QScreen* screen = platform.mainScreen->current()) {
        needs.screen =
            ScreenFrames{.whole = screen->geometry(), .visible = screen->availableGeometry()};
    }
    return [needs](QWidget* parent, std::function<void()> onDone) -> QWidget* {
        return new Inspector(needs, std::move(onDone), parent);
    };
}

} // namespace

QuoteContent makeQuoteContent(const ScreenSurroundings& surroundings, Platform& platform,
                              const EditingHooks* editing) {
    std::optional<QuoteScreen::Editing> editor;
    if (editing != nullptr) {
        editor =
            QuoteScreen::Editing{.inspector = inspectorFactory(surroundings, platform, *editing),
                                 .onDone = editing->onDone};
    }
    auto* screen = new QuoteScreen(surroundings, std::move(editor));
    return {.widget = screen,
            .setBehind = [screen](const Behind& behind) { screen->setBehind(behind); }};
}

} // namespace morrowleaf
