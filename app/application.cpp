// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/application.h"

#include "app/appdelegate.h"
#include "app/commandline.h"
#include "app/introduction.h"
#include "app/language.h"
#include "app/requestqueue.h"
#include "app/resources.h"
#include "app/selftest.h"
#include "app/services.h"
#include "app/timing.h"
#include "base/stoptoken.h"
#include "photos/bgstore.h"
#include "platform/chooser.h"
#include "platform/launch.h"
#include "platform/system.h"
#include "screen/frameclock.h"
#include "settings/settingsfile.h"
#include "settings/settingsstore.h"
#include "settingsui/hostpalette.h"
#include "sources/fetchquote.h"
#include "textanim/fonts.h"

#include <QApplication>
#include <QThread>
#include <QThreadPool>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <thread>
#include <utility>

namespace morrowleaf {

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr int requestPatience = 1500; // milliseconds
constexpr std::chrono::milliseconds endLimit{800};

// The toolkit reports every damaged photo and every missing glyph. Such reports appear
// only if the user switches on a category of Qt's logging.
bool isLoggingOn() {
    return qEnvironmentVariable("QT_LOGGING_RULES").remove(u' ').contains("=true"_L1) ||
           !qEnvironmentVariableIsEmpty("QT_LOGGING_CONF");
}

// Keeps libraries, some of which write to standard error without asking anybody, from
// writing anything but a fatal error. Returns the stream for what the user has to know.
std::FILE* silenceLibraries() {
    if (isLoggingOn()) {
        return stderr;
    }
    std::FILE* const diverted = divertErrorOutput();
    static std::FILE* const errors = diverted != nullptr ? diverted : stderr;
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& message) {
        if (type == QtFatalMsg) {
            std::fputs(qPrintable(message + u'\n'), errors);
        }
    });
    return errors;
}

// Ends the process with a status if this is not destroyed in time after start(): a
// destructor in a library may wait for a bus or a display server that does not answer.
class EndLimit {
public:
    EndLimit() = default;
    ~EndLimit() {
        ended_.request();
        if (thread_.joinable()) {
            thread_.join();
        }
    }
    EndLimit(const EndLimit&) = delete;
    EndLimit& operator=(const EndLimit&) = delete;

    void start(int status) {
        thread_ = std::thread([status, ended = ended_.token()] {
            if (!ended.waitFor(endLimit)) {
                std::_Exit(status);
            }
        });
    }

private:
    StopSource ended_;
    std::thread thread_;
};

void print(const QString& text) {
    std::puts(qPrintable(text));
    std::fflush(stdout);
}

// Runs a mode that only prints, and needs no display.
void runPrintingMode(int& argc, char** argv, Mode mode) {
    if (mode == Mode::Version || mode == Mode::Help) {
        const QCoreApplication app(argc, argv);
        speakLanguageOfUser();
        return print(mode == Mode::Help ? helpText() : versionText());
    }
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
    print(registerLogin(*makeLoginItem()));
}

LaunchRequest launchRequest(const QStringList& arguments) {
    return {.action = arguments.contains("--settings"_L1) ? u"settings"_s : u"show"_s,
            .activationToken = activationToken()};
}

void carryOut(const LaunchRequest& request, AppDelegate& delegate) {
    if (!request.activationToken.isEmpty()) {
        setActivationToken(request.activationToken);
    }
    if (request.action == "settings"_L1) {
        delegate.openSettings();
    } else if (request.action == "edit-appearance"_L1) {
        delegate.editAppearance();
    } else if (request.action == "quit"_L1) {
        emit delegate.quitRequested();
    } else {
        delegate.show();
    }
}

// Shows what the arguments ask for or, if the bus started the program, what the bus
// delivers once the program has its name.
void launch(AppDelegate& delegate, RequestListener& requests, RequestQueue& queue,
            const QStringList& arguments, Starter starter) {
    auto launched = std::make_shared<bool>(false);
    QObject::connect(&requests, &RequestListener::requested, &queue, &RequestQueue::add);
    QObject::connect(&queue, &RequestQueue::due, &delegate,
                     [&delegate, launched](const LaunchRequest& request) {
                         if (!std::exchange(*launched, true)) {
                             delegate.prepare();
                         }
                         carryOut(request, delegate);
                     });
    const auto begin = [&delegate, launched, arguments] {
        if (!std::exchange(*launched, true)) {
            delegate.applicationDidFinishLaunching(arguments);
        }
    };
    switch (starter) {
    case Starter::User:
        begin();
        break;
    case Starter::Bus:
        QObject::connect(&requests, &RequestListener::reachable, &delegate, [&delegate, begin] {
            QTimer::singleShot(requestPatience, &delegate, begin);
        });
        break;
    }
    requests.listen();
}

// Creates everything that needs the application object and runs until the program quits.
// The settings are in their file before `limit` begins to run.
int runUntilQuit(WindowSystem windowSystem, QThreadPool& workers, ToolkitGuard& guard,
                 const QStringList& arguments, Starter starter, EndLimit& limit) {
    Platform platform = makePlatform(windowSystem);
    // exit(), because quit() asks all windows to close first. What has not been accepted
    // by then is for the next instance.
    const auto quit = [&platform] {
        platform.requests.reset();
        QCoreApplication::exit(0);
    };
    QObject::connect(platform.sessionEvents.get(), &SessionEvents::quitRequested, qApp, quit);
    followColors(*platform.wishes);
    FontBook fonts;
    fonts.registerBundledFonts(fontFolder());
    SettingsStore store;
    SettingsFile file(store, defaultSettingsPath());
    BGStore photos(store, backgroundFolder(), ownPhotoFolder(), workers);
    QuoteFetcher fetcher;
    FrameClock frames(steadySeconds());
    const auto timing = makeSystemTiming(frames);
    const Services services{.store = store,
                            .fonts = fonts,
                            .photos = photos,
                            .loader = fetcher.loader(),
                            .platform = platform,
                            .timing = *timing,
                            .frames = frames};
    AppDelegate delegate(services);
    QObject::connect(&delegate, &AppDelegate::quitRequested, qApp, quit);
    QObject::connect(&delegate, &AppDelegate::showingEnded, qApp, &releaseFreeMemory,
                     Qt::QueuedConnection);
    RequestQueue queue;
    Introduction introduction(*platform.trayHost, *platform.notifications, *timing, workers,
                              stateFolder());
    QObject::connect(&introduction, &Introduction::settingsRequested, &delegate,
                     &AppDelegate::openSettings);
    guard.prepareFirstWindow();
    launch(delegate, *platform.requests, queue, arguments, starter);
    const int status = QApplication::exec();
    limit.start(status);
    return status;
}

// Returns `status`, or ends the process with it at once while a thread is busy: the end
// would wait for that, or destroy what it uses.
int end(int status, bool isBusy) {
    if (isBusy) {
        std::_Exit(status);
    }
    return status;
}

// Runs until the user quits, or passes the arguments to the instance that is already
// running. Returns the exit status.
int runOnDesktop(int& argc, char** argv, const QStringList& arguments, std::FILE* errors) {
    const auto guard = makeToolkitGuard();
    const WindowSystem windowSystem = chooseWindowSystem();
    if (const auto obstacle = findObstacle(windowSystem)) {
        std::fputs(qPrintable(*obstacle + u'\n'), errors);
        return 1;
    }
    const Starter starter = takeStarter();
    const auto instance = makeInstance(windowSystem);
    // The bus keeps its request for the instance.
    if (!instance->claim(starter == Starter::Bus ? std::nullopt
                                                 : std::optional(launchRequest(arguments)))) {
        return end(0, isWaitingForAnswer());
    }
    guard->prepareApplication();
    QApplication::setDesktopFileName(u"org.morrowleaf.Morrowleaf"_s);
    EndLimit limit;
    const QApplication app(argc, argv);
    QApplication::setApplicationName(u"Morrowleaf"_s);
    speakLanguageOfUser();
    QApplication::setQuitOnLastWindowClosed(false);
    QThreadPool workers;
    // Leaves one core free for drawing.
    workers.setMaxThreadCount(std::max(QThread::idealThreadCount() - 1, 1));
    const int status = runUntilQuit(windowSystem, workers, *guard, arguments, starter, limit);
    return end(status, !workers.waitForDone(0) || isWaitingForAnswer());
}

} // namespace

QString registerLogin(LoginItem& item) {
    if (const auto error = item.registerItem()) {
        return "login item failed: "_L1 + *error;
    }
    return item.status() == LoginItem::Status::Enabled
               ? u"login item: enabled"_s
               : u"login item: registered, pending approval"_s;
}

int runApplication(int argc, char** argv) {
    ignoreBrokenPipes();
    std::FILE* const errors = silenceLibraries();
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    // Hides the arguments from Qt, which would interpret some of them.
    int programName = argc > 0 ? 1 : 0;
    const Mode mode = modeFor(arguments);
    if (mode == Mode::Desktop) {
        return runOnDesktop(programName, argv, arguments, errors);
    }
    runPrintingMode(programName, argv, mode);
    return 0;
}

} // namespace morrowleaf
