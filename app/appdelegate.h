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
#include <QStringList>

#include <limits>
#include <memory>
#include <vector>

namespace morrowleaf {

class OverlayWindow;
class QuoteScreen;
struct Behind;
struct Services;

// The controller: decides when the quotation is shown and when it goes away,
// and owns the windows, the menu's actions and the status item.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    // `services` outlive the controller.
    explicit AppDelegate(const Services& services);
    ~AppDelegate() override;

    // Does everything of a launch except opening the first window. Call it when
    // the launch was asked for something else.
    void prepare();
    // Prepares, then opens the settings window when "--settings" is among the
    // arguments, and shows the quotation otherwise.
    void applicationDidFinishLaunching(const QStringList& arguments);

    // Shows the quotation on the main screen, in place of an earlier showing;
    // does nothing while there is no screen. A click, a key or time ends the
    // showing; with `editing`, Escape or the editor does; with `preview`, only
    // the next call does.
    void present(bool preview, bool editing);
    // Ends the showing, if there is one, with or without a fade.
    void dismiss(bool animated);

    // Null while nothing is shown; a window that fades out no longer counts.
    const QuoteWindow* window() const { return window_.get(); }
    // Null until first opened.
    const QWidget* settingsWindow() const { return settingsWindow_.get(); }
    // Null until there is a panel to hold it.
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
    void installStatusItem();
    Behind captureBehind(QuoteWindow& window, QScreen& screen, bool editing);
    QuoteScreen* makeQuoteScreen(const Behind& behind);
    void addInspector(QuoteScreen& screen, OverlayWindow& overlay);
    void handleLoss(const QuoteWindow* window);
    void removeWindow(const QuoteWindow* window);

    const Services& services_;
    MenuActions actions_;
    std::unique_ptr<QuoteWindow> window_;
    std::unique_ptr<EventMonitor> monitor_;
    Task autoDismiss_;
    double lastShown_ = -std::numeric_limits<double>::infinity(); // of the timing's now()
    std::unique_ptr<StatusItem> statusItem_;
    std::unique_ptr<SettingsWindow> settingsWindow_;
    std::vector<std::unique_ptr<QuoteWindow>> fadingOut_;
};

} // namespace morrowleaf
