// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/eventmonitor.h"
#include "app/quotewindow.h"
#include "app/settingswindow.h"
#include "app/statusitem.h"
#include "app/timing.h"
#include "backdrop/backdropstate.h"
#include "platform/platform.h"

#include <QObject>
#include <QStringList>

#include <limits>
#include <vector>

namespace morrowleaf {

class SettingsStore;

// Escape, by the number that keyboards give it in the event monitor's terms.
inline constexpr int escapeKeyCode = 53;
inline constexpr EventMask closingEvents = leftMouseDown | rightMouseDown | keyDown;

// What fills a quote window.
struct QuoteContent {
    QWidget* widget = nullptr;
    std::function<void(const Behind&)> setBehind; // may be empty
};

// What the appearance editor may ask of the window around it.
struct EditingHooks {
    std::function<void()> onDone;
    std::function<void()> lowerForDialog;
    std::function<void()> restoreAfterDialog;
    bool glassCanBeDrawn = false; // the desktop behind the window is known
};

// What the controller works with; all of it outlives the controller.
struct AppSurroundings {
    SettingsStore& store;
    Platform& platform;
    Timing& timing;
    // A fresh quote screen, the appearance editor in it when hooks are given.
    std::function<QuoteContent(const EditingHooks* editing)> makeQuoteScreen;
    std::function<QWidget*(std::function<void()> onShowNow, std::function<void()> onEditAppearance)>
        makeSettingsView;
    std::function<void()> terminate;
};

// Decides when the quotation is shown and when it goes away, and owns the
// windows and the status item.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    explicit AppDelegate(AppSurroundings surroundings);
    ~AppDelegate() override;

    // Everything of a launch but its first window, for one that was asked for
    // something else.
    void prepare();
    // With "--settings" among the arguments the settings window opens,
    // otherwise the quotation is shown.
    void applicationDidFinishLaunching(const QStringList& arguments);

    // Without `preview` the screen is covered, and a click, a key or time
    // closes it; with `editing` only Escape or the editor does.
    void present(bool preview, bool editing);
    void dismiss(bool animated);

    const QuoteWindow* window() const { return window_.get(); }
    const QWidget* settingsWindow() const { return settingsWindow_.get(); }
    const StatusItem* statusItem() const { return statusItem_.get(); }

public slots:
    void show();
    void editAppearance();
    void openSettings();

signals:
    void showingEnded(); // the last quote window has left the screen

private:
    void trigger();
    void installStatusItem();
    Behind lookBehind(QuoteWindow& window, QScreen& screen, bool editing);
    void installMonitor(bool editing);
    void lose(const QuoteWindow* window);
    void leave(const QuoteWindow* window);

    AppSurroundings around_;
    std::unique_ptr<QuoteWindow> window_;
    std::unique_ptr<EventMonitor> monitor_;
    Task autoDismiss_;
    double lastShown_ = -std::numeric_limits<double>::infinity(); // of the timing's now()
    std::unique_ptr<StatusItem> statusItem_;
    std::unique_ptr<SettingsWindow> settingsWindow_;
    std::vector<std::unique_ptr<QuoteWindow>> fadingOut_;
};

} // namespace morrowleaf
