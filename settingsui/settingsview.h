// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "quotes/quote.h"

#include <QCoreApplication>
#include <QWidget>

#include <functional>

class QLabel;
class QPushButton;

namespace morrowleaf {

class FormCard;
class LoginItem;
class SettingsStore;

// What the settings need of the world; all of it outlives the view.
struct SettingsSurroundings {
    SettingsStore& store;
    QuoteLoader loader;
    LoginItem& loginItem;
    std::function<void()> beep = [] {};
    std::function<void()> onShowNow = [] {};
    std::function<void()> onEditAppearance = [] {};
    std::function<void()> quit = [] { QCoreApplication::quit(); };
};

inline constexpr QSize settingsViewSize(520, 545); // points

// The content of the settings window: when the quotation shows and where it
// comes from. Every control writes its setting the moment it changes.
class SettingsView : public QWidget {
    Q_OBJECT

public:
    explicit SettingsView(SettingsSurroundings surroundings, QWidget* parent = nullptr);

    // Tries the source that is set and tells what came of it.
    void test();

private:
    void addAppearance(FormCard& card);
    void addBehaviour(FormCard& card);
    void addQuotes(FormCard& card);
    QWidget* makeCloseAfter();
    QWidget* makeBottomBar();
    QPushButton* makePresets();
    void tell(const QString& testResult);

    SettingsSurroundings around_;
    QPushButton* testButton_ = nullptr;
    QLabel* testResult_ = nullptr;
};

} // namespace morrowleaf
