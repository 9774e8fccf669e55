// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/loginitem.h"
#include "settings/prefs.h"
#include "settings/settingsstore.h"
#include "settings/settingstable.h"
#include "settingsui/form.h"
#include "settingsui/menuactions.h"
#include "settingsui/settingsview.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

class FakeLogin : public LoginItem {
public:
    Status status() const override { return current; }
    std::optional<QString> registerItem() override { return change(Status::Enabled); }
    std::optional<QString> unregisterItem() override { return change(Status::NotRegistered); }

    Status current = Status::NotRegistered;
    bool refuses = false;
    int calls = 0;

private:
    std::optional<QString> change(Status wanted) {
        ++calls;
        if (refuses) {
            return u"no"_s;
        }
        current = wanted;
        return std::nullopt;
    }
};

class SettingsViewTest : public ::testing::Test {
protected:
    SettingsViewTest() { registerAppDefaults(store); }

    SettingsView& view() {
        if (!view_) {
            view_ = std::make_unique<SettingsView>(
                store,
                [this](const QString& source, auto done) {
                    asked.append(source);
                    answer = std::move(done);
                },
                login, actions);
            view_->show();
        }
        return *view_;
    }
    QPushButton* button(const QString& text) {
        for (auto* found : view().findChildren<QPushButton*>()) {
            if (found->text() == text) {
                return found;
            }
        }
        return nullptr;
    }
    template <typename T>
    T* only() {
        const auto found = view().findChildren<T*>();
        EXPECT_EQ(found.size(), 1);
        return found.value(0);
    }
    QCheckBox* switchNamed(const QString& text) {
        for (auto* found : view().findChildren<QCheckBox*>()) {
            if (found->text() == text) {
                return found;
            }
        }
        return nullptr;
    }
    bool shows_(const QString& text) {
        for (const auto* label : view().findChildren<QLabel*>()) {
            if (label->text() == text && label->isVisible()) {
                return true;
            }
        }
        return false;
    }
    void click(QWidget* widget) { QTest::mouseClick(widget, Qt::LeftButton); }

    SettingsStore store;
    FakeLogin login;
    QStringList asked;
    std::function<void(std::optional<Quote>)> answer;
    MenuActions actions;

private:
    std::unique_ptr<SettingsView> view_;
};

} // namespace morrowleaf
