// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settingsui/photochooser.h"

#include <QFont>
#include <QRect>
#include <QWidget>

#include <functional>
#include <optional>

class QScrollArea;
class QVBoxLayout;

namespace morrowleaf {

class BGStore;
class SettingsStore;

// Where a screen is and which part of it panels leave free; points, y down.
struct ScreenFrames {
    QRect whole;
    QRect visible;
};

// What the editor needs of the world; all of it outlives the editor.
struct InspectorSurroundings {
    SettingsStore& store;
    BGStore& photos;
    PhotoChooser choosePhoto;
    bool glassCanBeDrawn = false;
    QFont face{};                         // the system font; its size is of no meaning
    std::optional<ScreenFrames> screen{}; // of the main screen, nothing without one
};

// Room above the header, so that it clears a panel at the screen's top.
double headerTopPadding(const std::optional<ScreenFrames>& screen);

// The appearance editor at the right edge of the quote screen. Every control
// writes its setting the moment it changes. Keys: Tab goes through the
// controls, Space presses one, Return runs `onDone`.
class Inspector : public QWidget {
    Q_OBJECT

public:
    static constexpr int width = 320; // points

    explicit Inspector(
        const InspectorSurroundings& surroundings, std::function<void()> onDone = [] {},
        QWidget* parent = nullptr);

    QSize sizeHint() const override { return {width, 600}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    QWidget* makeHeader();
    QWidget* makeGroups();
    QWidget* makeFooter();
    void addGroup(QVBoxLayout& column, const QString& title, std::initializer_list<QWidget*> rows);
    QWidget* makePicker(const QString& name, const QString& key, const QString& fallback,
                        const std::vector<std::pair<QString, QString>>& entries);
    void reset();

    InspectorSurroundings around_;
    std::function<void()> onDone_;
    QScrollArea* scroll_ = nullptr;
};

} // namespace morrowleaf
