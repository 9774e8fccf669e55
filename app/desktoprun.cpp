// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/desktoprun.h"

#include "app/appdelegate.h"
#include "app/quotecontent.h"
#include "app/resources.h"
#include "app/timing.h"
#include "photos/bgstore.h"
#include "platform/chooser.h"
#include "settings/settingsfile.h"
#include "settings/settingsstore.h"
#include "settingsui/hostpalette.h"
#include "settingsui/settingsview.h"
#include "sources/fetchquote.h"
#include "textanim/fonts.h"

#include <QApplication>
#include <QThread>
#include <QThreadPool>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace morrowleaf {

namespace {

constexpr auto startedByBus = "DBUS_STARTER_BUS_TYPE";
constexpr int requestPatience = 1500; // milliseconds

LaunchRequest requestOf(const QStringList& arguments) {
    return {.action = arguments.contains("--settings") ? "settings" : "show",
            .activationToken = qEnvironmentVariable("XDG_ACTIVATION_TOKEN")};
}

void serve(AppDelegate& delegate, const LaunchRequest& request) {
    if (!request.activationToken.isEmpty()) {
        // The toolkit takes it from there for the next window.
        qputenv("XDG_ACTIVATION_TOKEN", request.activationToken.toUtf8());
    }
    if (request.action == "settings") {
        delegate.openSettings();
    } else if (request.action == "edit-appearance") {
        delegate.editAppearance();
    } else if (request.action == "quit") {
        QCoreApplication::exit(0);
    } else {
        delegate.show();
    }
}

// Where the bus started the program, a request follows at once and says what
// the launch is for.
void launch(AppDelegate& delegate, SingleInstance& instance, const QStringList& arguments) {
    const bool requestFollows = qEnvironmentVariableIsSet(startedByBus);
    qunsetenv(startedByBus);
    auto launched = std::make_shared<bool>(false);
    QObject::connect(&instance, &SingleInstance::requested, &delegate,
                     [&delegate, launched](const LaunchRequest& request) {
                         if (!std::exchange(*launched, true)) {
                             delegate.prepare();
                         }
                         serve(delegate, request);
                     });
    const auto begin = [&delegate, launched, arguments] {
        if (!std::exchange(*launched, true)) {
            delegate.applicationDidFinishLaunching(arguments);
        }
    };
    if (requestFollows) {
        QTimer::singleShot(requestPatience, &delegate, begin);
    } else {
        begin();
    }
}

// Everything between the start and the end of the application object.
int runUntilQuit(QApplication& app, WindowSystem windowSystem, QThreadPool& workers,
                 const QStringList& arguments) {
    Platform platform = makePlatform(windowSystem);
    if (!platform.instance->claim(requestOf(arguments))) {
        return 0;
    }
    QObject::connect(platform.quitRequests.get(), &QuitRequests::requested, &app,
                     [] { QCoreApplication::exit(0); });
    followColorScheme(*platform.colorScheme);
    FontBook fonts;
    fonts.registerBundledFonts(fontFolder());
    SettingsStore store;
    SettingsFile file(store, defaultSettingsPath());
    BGStore photos(store, backgroundFolder(), ownPhotoFolder(), workers);
    QuoteFetcher fetcher;
    const ScreenSurroundings screen{.store = store,
                                    .fonts = fonts,
                                    .photos = photos,
                                    .clock = [] { return Moment::now(); },
                                    .random = secureRandomIndex(),
                                    .loader = fetcher.loader()};
    // Asking windows whether they agree is for programs with documents.
    const auto terminate = [] { QCoreApplication::exit(0); };
    const auto timing = makeSystemTiming();
    AppDelegate delegate({.store = store,
                          .platform = platform,
                          .timing = *timing,
                          .makeQuoteScreen =
                              [&](const EditingHooks* editing) {
                                  return makeQuoteContent(screen, platform, editing);
                              },
                          .makeSettingsView =
                              [&](auto onShowNow, auto onEditAppearance) {
                                  return new SettingsView(
                                      {.store = store,
                                       .loader = fetcher.loader(),
                                       .loginItem = *platform.loginItem,
                                       .beep = [] { QApplication::beep(); },
                                       .onShowNow = std::move(onShowNow),
                                       .onEditAppearance = std::move(onEditAppearance),
                                       .quit = terminate});
                              },
                          .terminate = terminate});
    QObject::connect(&delegate, &AppDelegate::showingEnded, &app, platform.giveMemoryBack,
                     Qt::QueuedConnection);
    launch(delegate, *platform.instance, arguments);
    return QApplication::exec();
}

} // namespace

int runOnDesktop(int& argc, char** argv, const QStringList& arguments) {
    const WindowSystem windowSystem = chooseWindowSystem();
    if (!isReachable(windowSystem)) {
        std::fputs("There is no display to show anything on.\n", stderr);
        return 1;
    }
    QApplication::setDesktopFileName("org.morrowleaf.Morrowleaf");
    QApplication app(argc, argv);
    QApplication::setApplicationName("Morrowleaf");
    QApplication::setQuitOnLastWindowClosed(false);
    QThreadPool workers;
    // One core stays with the picture.
    workers.setMaxThreadCount(std::max(QThread::idealThreadCount() - 1, 1));
    const int status = runUntilQuit(app, windowSystem, workers, arguments);
    if (!workers.waitForDone(0)) {
        // A photo is still being decoded, for nobody, and would be waited for.
        std::_Exit(status);
    }
    return status;
}

} // namespace morrowleaf
