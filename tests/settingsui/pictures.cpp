// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Draws the appearance editor and the settings window into picture files for inspection:
// pictures FOLDER [light|dark]

#include "backdrop/backdrop.h"
#include "photos/bgstore.h"
#include "photos/photo.h"
#include "platform/null/nullplatform.h"
#include "settings/prefs.h"
#include "settings/settingsstore.h"
#include "settings/settingstable.h"
#include "settingsui/hostpalette.h"
#include "settingsui/inspector.h"
#include "settingsui/menuactions.h"
#include "settingsui/menupicker.h"
#include "settingsui/settingsview.h"
#include "textanim/fonts.h"
#include "tools/sourcepath.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFontDatabase>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStandardPaths>
#include <QStyle>

using namespace morrowleaf;

namespace {

using namespace Qt::Literals::StringLiterals;

// A backdrop that does not move, behind the editor.
class Ground : public QWidget {
public:
    BackdropState state;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const double ratio = devicePixelRatioF();
        QImage image(size() * ratio, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        painter_.paint(image, image.rect(), state, 700'000'000);
        QPainter(this).drawImage(0, 0, image);
    }

private:
    BackdropPainter painter_;
};

void settle(int milliseconds) {
    QElapsedTimer since;
    since.start();
    while (since.elapsed() < milliseconds) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
}

void drawSettings(const QString& folder, SettingsStore& store, const QString& name) {
    const Platform platform = makeNullPlatform();
    MenuActions actions;
    Quote quote{u"What we know is a drop, what we do not know is an ocean, "
                "and the ocean is deep"_s,
                u"Isaac Newton"_s};
    SettingsView view(
        store, [&quote](const QString&, const auto& done) { done(quote); }, *platform.loginItem,
        actions);
    view.show();
    settle(100);
    view.grab().save(folder + u"/settings-%1.png"_s.arg(name));
    view.test();
    view.findChild<QLineEdit*>()->setFocus(Qt::TabFocusReason);
    settle(100);
    view.grab().save(folder + u"/settings-%1-tested.png"_s.arg(name));
    quote.text = (QString(150, u'W') + u" and more of it. "_s).repeated(20);
    view.test();
    store.setKeptFileName(u"settings.broken-20261121-224501.json"_s);
    settle(100);
    QScrollBar* bar = view.findChild<QScrollArea*>()->verticalScrollBar();
    bar->setValue(bar->maximum() - 200);
    settle(100);
    view.grab().save(folder + u"/settings-%1-long.png"_s.arg(name));
    store.setKeptFileName({});
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    const QApplication app(argc, argv);
    const QString folder = QString::fromLocal8Bit(argc > 1 ? argv[1] : ".");
    QDir().mkpath(folder);
    FontBook fonts;
    fonts.registerBundledFonts(sourcePath(u"resources/Fonts"_s));
    const QFont face = nsFont(fonts, 12, FontDesign::Default).face;
    SettingsStore store;
    registerAppDefaults(store);

    QApplication::setPalette(hostPalette(ColorPreference::Light));
    drawSettings(folder, store, u"light"_s);
    QApplication::setPalette(hostPalette(ColorPreference::Dark));
    drawSettings(folder, store, u"dark"_s);

    const Platform platform = makeNullPlatform();
    BGStore photos(store, sourcePath(u"resources/Backgrounds"_s), folder + "/own"_L1);
    store.set(K::customBGs, QStringList{photos.builtins().value(1), u"/missing.jpg"_s});
    const auto draw = [&](const QString& name, const BackdropState& state, QSize size) {
        Ground ground;
        ground.state = state;
        ground.resize(size);
        auto* inspector = new Inspector(
            store, photos, *platform.fileChooser,
            {.glassCanBeDrawn = true,
             .face = face,
             .screen = ScreenFrames{QRect(QPoint(), size), QRect(QPoint(0, 28), size)}},
            &ground);
        inspector->setGeometry(size.width() - Inspector::width, 0, Inspector::width, size.height());
        ground.show();
        settle(400);
        ground.grab().save(folder + u"/panel-%1.png"_s.arg(name));
        auto* picker = inspector->findChildren<MenuPicker*>().first();
        picker->setFocus(Qt::TabFocusReason);
        picker->open();
        settle(50);
        ground.grab().save(folder + u"/panel-%1-menu.png"_s.arg(name));
    };
    BackdropState state;
    state.screenAnim = ScreenAnim::Still;
    int index = 0;
    for (const Palette& palette : Palette::all()) {
        state.palette = palette;
        store.set(K::palette, index++);
        draw(palette.name.toLower(), state, {900, 982});
    }
    draw(u"small"_s, state, {1024, 600});
    const QString photo = photos.builtins().value(0);
    QFile file(photo);
    if (file.open(QIODevice::ReadOnly)) {
        state.palette = Palette::photo();
        state.hasPhoto = true;
        store.set(K::bgImage, photo);
        state.photo = decodePhoto(file, QSize(900, 982) * app.devicePixelRatio());
        draw(u"photo"_s, state, {900, 982});
        draw(u"tall"_s, state, {900, 1300});
    }
    return 0;
}
