// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "settingsui/controlstyle.h"

#include <QFont>
#include <QRect>
#include <QWidget>

#include <optional>

class QScrollArea;
class QVBoxLayout;

namespace morrowleaf {

class BGStore;
class FileChooser;
class PhotoChooser;
class SettingsStore;
struct TextSetting;

// The area of a screen and the part of it that panels leave free; points, y down.
struct ScreenFrames {
    QRect whole;
    QRect visible;
};

// How the appearance editor is laid out.
struct InspectorSetup {
    bool glassCanBeDrawn = false;         // adds the switch "Liquid Glass"
    QFont face{};                         // the system font; its size is ignored
    std::optional<ScreenFrames> screen{}; // the main screen; std::nullopt without one
    bool highContrast = false;            // no faint texts, and nothing shines through
};

// The space above the header in points, so that the header is below a panel at the top of
// the screen.
double headerTopPadding(const std::optional<ScreenFrames>& screen);

// The appearance editor at the right edge of the quote screen. Every control writes its
// setting as soon as it changes. Tab moves through the controls, Space presses one,
// Return runs "Done". Main thread.
class Inspector : public QWidget {
    Q_OBJECT

public:
    static constexpr int width = 320; // points

    // The referenced objects must outlive the editor.
    Inspector(SettingsStore& store, BGStore& photos, FileChooser& files, InspectorSetup setup = {},
              QWidget* parent = nullptr);

    QSize sizeHint() const override { return {width, 600}; }

signals:
    void done(); // the user has finished
    // Emitted before and after the dialog that adds a photo. The overlay must be lowered in
    // between.
    void dialogOpening();
    void dialogClosed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    QWidget* makeHeader();
    QWidget* makeGroups();
    QWidget* makeFooter();
    void addGroup(QVBoxLayout& column, const QString& title, std::initializer_list<QWidget*> rows);
    QWidget* makePicker(const QString& name, const TextSetting& setting,
                        const std::vector<std::pair<QString, QString>>& entries);

    SettingsStore& store_;
    BGStore& photos_;
    InspectorSetup setup_;
    PhotoChooser* photoChooser_;
    ControlStyle controlStyle_{ControlStyle::SwitchSize::Small};
    QScrollArea* scroll_ = nullptr;
};

} // namespace morrowleaf
