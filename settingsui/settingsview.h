// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "quotes/quote.h"
#include "settingsui/controlstyle.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace morrowleaf {

class FormCard;
class LoginItem;
struct MenuActions;
class SettingsStore;

// In points, with texts of the usual size.
inline constexpr QSize settingsViewSize(520, 545);

// The content of the settings window: when the quotation is shown and where it comes
// from. Its width is fixed and its height has a maximum, those of settingsViewSize or what
// larger texts of the desktop need; in less height its form scrolls. Every control writes
// its setting as soon as it changes. Main thread.
class SettingsView : public QWidget {
    Q_OBJECT

public:
    // `loader` is called with the source to test. The referenced objects must outlive the
    // view.
    SettingsView(SettingsStore& store, QuoteLoader loader, LoginItem& loginItem,
                 MenuActions& actions, QWidget* parent = nullptr);

    // Loads a quotation from the current source and shows the outcome. Does nothing while a
    // test is in progress.
    void test();

signals:
    // The system refused to change the login item; the switch shows the system's state
    // again.
    void loginItemRefused();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void addAppearance(FormCard& card);
    void addBehaviour(FormCard& card);
    void addQuotes(FormCard& card);
    QWidget* makeCloseAfter();
    QWidget* makeBottomBar();
    QWidget* makeNotice();
    QPushButton* makePresets();
    QWidget* makeLoginSwitch();
    void showTestResult(const QString& text);
    void passReturnOn(QKeyEvent& event);

    SettingsStore& store_;
    QuoteLoader loader_;
    LoginItem& loginItem_;
    MenuActions& actions_;
    ControlStyle switchStyle_{ControlStyle::SwitchSize::Regular};
    QPushButton* testButton_ = nullptr;
    QLabel* testResult_ = nullptr;
};

} // namespace morrowleaf
