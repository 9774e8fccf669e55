// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/application.h"

#include "app/desktoprun.h"
#include "app/launch.h"
#include "app/resources.h"
#include "app/selftest.h"
#include "platform/chooser.h"
#include "settings/settingsfile.h"
#include "settings/settingsstore.h"
#include "textanim/fonts.h"

#include <QGuiApplication>

#include <cstdio>

namespace morrowleaf {

namespace {

// The modes of one line work without a display.
void runLineMode(int& argc, char** argv, Mode mode) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    FontBook fonts;
    fonts.registerBundledFonts(fontFolder());
    if (mode == Mode::SelfTest) {
        SettingsStore store;
        const SettingsFile file(store, defaultSettingsPath());
        selftest(store);
        return;
    }
    std::puts(qPrintable(registerLogin(*makeLoginItem())));
    std::fflush(stdout);
}

} // namespace

int runApplication(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    // The toolkit would read, and refuse, arguments of its own.
    int ownName = argc > 0 ? 1 : 0;
    const Mode mode = modeFor(arguments);
    if (mode == Mode::Desktop) {
        return runOnDesktop(ownName, argv, arguments);
    }
    runLineMode(ownName, argv, mode);
    return 0;
}

} // namespace morrowleaf
