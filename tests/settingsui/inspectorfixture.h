// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#pragma once

#include "look/animationkinds.h"
#include "look/palettes.h"
#include "photos/bgstore.h"
#include "settings/prefs.h"
#include "settings/settingsstore.h"
#include "settings/settingstable.h"
#include "settingsui/inspector.h"
#include "settingsui/knob.h"
#include "settingsui/menupicker.h"
#include "settingsui/panelstyle.h"
#include "settingsui/photogroup.h"
#include "settingsui/swatch.h"
#include "tests/fakes/fakefilechooser.h"
#include "tools/sourcepath.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace morrowleaf {

using namespace Qt::Literals::StringLiterals;

class InspectorTest : public ::testing::Test {
protected:
    InspectorTest() { registerAppDefaults(store); }

    Inspector& panel() {
        if (!window_) {
            window_ = std::make_unique<QWidget>();
            window_->resize(700, 900);
            panel_ = new Inspector(store, photos, files,
                                   {.glassCanBeDrawn = glass, .highContrast = highContrast},
                                   window_.get());
            QObject::connect(panel_, &Inspector::done, panel_, [this] { ++done; });
            panel_->setGeometry(380, 0, 320, 900);
            window_->show();
            QApplication::setActiveWindow(window_.get());
            EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));
        }
        return *panel_;
    }
    void closeEditor() {
        window_.reset();
        panel_ = nullptr;
    }
    QWidget& window() {
        panel();
        return *window_;
    }
    template <typename T>
    T* named(const QString& name) {
        for (auto* found : panel().findChildren<T*>()) {
            if (found->accessibleName() == name || found->property("text") == name) {
                return found;
            }
        }
        ADD_FAILURE() << "no " << name.toStdString();
        return nullptr;
    }
    QList<PhotoSwatch*> photoSwatches() { return panel().findChildren<PhotoSwatch*>(); }
    QStringList marked() {
        QStringList names;
        for (const auto* swatch : panel().findChildren<Swatch*>()) {
            if (swatch->isMarked()) {
                names.append(swatch->accessibleName());
            }
        }
        return names;
    }
    void press(QWidget* widget) { QTest::mouseClick(widget, Qt::LeftButton); }
    void key(int code) {
        QTest::keyClick(window().windowHandle(), Qt::Key(code));
        QCoreApplication::processEvents();
    }
    QString picture(const QString& name) {
        QImage image(60, 40, QImage::Format_RGB32);
        image.fill(Qt::red);
        image.save(folder.filePath(name), "png");
        return folder.filePath(name);
    }
    void pick(const QString& path) {
        files.answer({.kind = FileAnswer::Kind::Chosen, .path = path});
    }
    template <typename Condition>
    bool await(Condition condition) {
        QElapsedTimer since;
        since.start();
        while (!condition() && since.elapsed() < 60'000) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        return condition();
    }
    void listOwn(const QStringList& paths) { store.set(K::customBGs, paths); }
    bool readoutIs(const QString& name, const QString& text) {
        auto* slider = named<PanelSlider>(name);
        auto* knob = static_cast<Knob*>(slider->parentWidget());
        return knob->readout()->text() == text && slider->valueText() == text;
    }

    QTemporaryDir folder;
    SettingsStore store;
    BGStore photos{store, sourcePath(u"resources/Backgrounds"_s), folder.filePath(u"own"_s)};
    bool glass = true;
    bool highContrast = false;
    int done = 0;
    FakeFileChooser files;

private:
    std::unique_ptr<QWidget> window_;
    Inspector* panel_ = nullptr;
};

} // namespace morrowleaf
