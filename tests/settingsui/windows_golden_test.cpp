// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "backdrop/backdrop.h"
#include "photos/bgstore.h"
#include "platform/null/nullplatform.h"
#include "settings/prefs.h"
#include "settings/settingsstore.h"
#include "settings/settingstable.h"
#include "settingsui/hostpalette.h"
#include "settingsui/inspector.h"
#include "settingsui/menuactions.h"
#include "settingsui/settingsview.h"
#include "settingsui/swatch.h"
#include "tests/fakes/fakefilechooser.h"
#include "tests/screen/goldenpictures.h"
#include "tests/screen/sceneforscreens.h"
#include "tools/sourcepath.h"

#include <QApplication>
#include <QPainter>
#include <QTest>
#include <algorithm>
#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;

int ratio() {
    return qRound(qApp->devicePixelRatio());
}

// Uses the bundled face instead of the host's, so that every machine draws the same.
QFont bundledFace() {
    return nsFont(shippedFonts(), 13, FontDesign::Default).face;
}

void expectGolden(const QString& name, const QImage& frame, int factor) {
    morrowleaf::expectGolden(u"%1@%2.png"_s.arg(name).arg(ratio()), forRecord(frame, factor));
}

// The right end of a screen, where the editor is.
class Ground : public QWidget {
public:
    Ground() {
        state_.screenAnim = ScreenAnim::Still;
        state_.grainOn = false;
        resize(400, 982);
    }
    void show(const Palette& palette) {
        state_.palette = palette;
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QImage image(size() * devicePixelRatioF(), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(devicePixelRatioF());
        BackdropPainter().paint(image, image.rect(), state_, 0);
        QPainter(this).drawImage(0, 0, image);
    }

private:
    BackdropState state_;
};

class EditorGolden : public testing::Test {
protected:
    EditorGolden() {
        registerAppDefaults(store_);
        auto* inspector = new Inspector(store_, photos_, files_,
                                        {.glassCanBeDrawn = true, .face = bundledFace()}, &ground_);
        inspector->setGeometry(80, 0, Inspector::width, ground_.height());
        ground_.QWidget::show();
        const auto swatches = inspector->findChildren<PhotoSwatch*>();
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                return std::all_of(swatches.begin(), swatches.end(),
                                   [](const auto* s) { return s->hasPicture(); });
            },
            60'000));
    }
    QImage editorOver(int palette) {
        store_.set(K::palette, palette);
        ground_.show(Palette::all()[static_cast<size_t>(palette)]);
        return ground_.grab().toImage();
    }

private:
    SettingsStore store_;
    FakeFileChooser files_;
    BGStore photos_{store_, sourcePath(u"resources/Backgrounds"_s), u"/nowhere"_s};
    Ground ground_;
};

QImage settingsIn(const QPalette& palette) {
    QApplication::setPalette(palette);
    QApplication::setFont(bundledFace());
    SettingsStore store;
    registerAppDefaults(store);
    const Platform platform = makeNullPlatform();
    MenuActions actions;
    SettingsView view(
        store, [](const QString&, const auto& done) { done(std::nullopt); }, *platform.loginItem,
        actions);
    view.show();
    view.test();
    QCoreApplication::processEvents();
    QImage image = view.grab().toImage();
    QApplication::setPalette(QPalette());
    return image;
}

TEST_F(EditorGolden, OverEveryPalette) {
    for (int palette = 0; palette < 9; ++palette) {
        const QString name = Palette::all()[static_cast<size_t>(palette)].name.toLower();
        expectGolden("editor-"_L1 + name, editorOver(palette), 2 * ratio());
    }
}

TEST_F(EditorGolden, InEveryDetail) {
    expectGolden(u"editor-detail"_s,
                 editorOver(7).copy(QRect(80 * ratio(), 0, 320 * ratio(), 540 * ratio())), 1);
}

TEST(SettingsGolden, LightAndDark) {
    QApplication::setStyle(u"Fusion"_s);
    expectGolden(u"settings-light"_s, settingsIn(hostPalette(ColorPreference::Light)), 1);
    expectGolden(u"settings-dark"_s, settingsIn(hostPalette(ColorPreference::Dark)), 1);
}

TEST(SettingsGolden, HighContrast) {
    QApplication::setStyle(u"Fusion"_s);
    expectGolden(u"settings-black-on-white"_s,
                 settingsIn(highContrastPalette(ColorPreference::Light)), 1);
    expectGolden(u"settings-white-on-black"_s,
                 settingsIn(highContrastPalette(ColorPreference::Dark)), 1);
}

TEST(SettingsGolden, AnotherLookIsSeen) {
    const QImage light = forRecord(settingsIn(hostPalette(ColorPreference::Light)), 1);
    QImage moved(light.size(), light.format());
    moved.fill(light.pixel(1, 1));
    QPainter(&moved).drawImage(0, 2 * ratio(), light);
    EXPECT_FALSE(comparePictures(light, moved).acceptable());
    EXPECT_FALSE(
        comparePictures(light, forRecord(settingsIn(hostPalette(ColorPreference::Dark)), 1))
            .acceptable());
}

} // namespace
} // namespace morrowleaf
