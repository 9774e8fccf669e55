// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/eventmonitor.h"
#include "app/quotewindow.h"
#include "app/settingswindow.h"
#include "app/statusitem.h"
#include "app/timing.h"
#include "settingsui/menuactions.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <limits>
#include <memory>
#include <vector>

namespace morrowleaf {

class Inspector;
class OverlayWindow;
class QuoteScreen;
struct DesktopView;
struct Services;

// The controller: decides when the quotation is shown and closed, and owns the windows,
// the menu's actions and the status item. Main thread.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    // `services` must outlive the controller.
    explicit AppDelegate(const Services& services);
    ~AppDelegate() override;

    // Does everything that belongs to a launch except opening the first window. Call this
    // instead of applicationDidFinishLaunching() when a request will decide what opens.
    void prepare();
    // Prepares, then opens the settings window when "--settings" is among the
    // arguments, and shows the quotation otherwise.
    void applicationDidFinishLaunching(const QStringList& arguments);

    // Shows the quotation on the main screen and ends an earlier showing first. Does
    // nothing more while no monitor is on. A click, a key or the automatic close ends the
    // showing; with `editing`, only Escape or the editor's button does; with `preview`,
    // only the next call of present() does.
    void present(bool preview, bool editing);
    // Ends the current showing, if any, with a fade if `animated`.
    void dismiss(bool animated);

    // Null while nothing is shown; a window that is fading out does not count.
    const QuoteWindow* window() const { return window_.get(); }
    // Null until the settings are first opened.
    const QWidget* settingsWindow() const { return settingsWindow_.get(); }
    // Null until the desktop has a tray.
    const StatusItem* statusItem() const { return statusItem_.get(); }

public slots:
    void show();
    void editAppearance();
    void openSettings();

signals:
    void quitRequested();
    void showingEnded(); // the last quote window has left the screen

private:
    void trigger();
    void presentAfterLocker();
    void installStatusItem();
    DesktopView captureDesktop(QuoteWindow& window, QScreen& screen, bool editing);
    QuoteScreen* makeQuoteScreen(const DesktopView& desktop);
    void addInspector(QuoteScreen& screen, OverlayWindow& overlay);
    void lowerSettingsForDialog();
    void handleLoss(const QuoteWindow* window);
    void removeWindow(const QuoteWindow* window);

    const Services& services_;
    MenuActions actions_;
    std::unique_ptr<QuoteWindow> window_;
    std::unique_ptr<EventMonitor> monitor_;
    Task autoDismiss_;
    std::unique_ptr<QObject> waiting_; // for the screen locker to leave the screen
    double lastShown_ = -std::numeric_limits<double>::infinity(); // seconds, by now() of the timing
    std::unique_ptr<StatusItem> statusItem_;
    std::unique_ptr<SettingsWindow> settingsWindow_;
    QPointer<Inspector> choosing_; // whose dialog is open
    std::vector<std::unique_ptr<QuoteWindow>> fadingOut_;
};

} // namespace morrowleaf
