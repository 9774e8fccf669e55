// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

// Draws every screen in every language of the program, in one of accents with texts 40 %
// longer, in that language from right to left, and with texts that the desktop has made
// half as large again. With MORROWLEAF_PICTURES the pictures are kept in the folder of that
// name.

#include "photos/bgstore.h"
#include "platform/null/nullplatform.h"
#include "quotes/quote.h"
#include "screen/quoteview.h"
#include "settings/prefs.h"
#include "settings/settingsstore.h"
#include "settings/settingstable.h"
#include "settingsui/formcontrols.h"
#include "settingsui/hostpalette.h"
#include "settingsui/inspector.h"
#include "settingsui/menuactions.h"
#include "settingsui/menupicker.h"
#include "settingsui/settingsview.h"
#include "settingsui/swatch.h"
#include "tests/fakes/pseudotranslator.h"
#include "tests/fakes/shippedfonts.h"
#include "tools/sourcepath.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr QSize screenSize(1280, 720);

struct Language {
    QString name;
    Qt::LayoutDirection direction;
    double textScale = 1; // of the desktop
    QString label() const { return textScale > 1 ? name + u" large"_s : name; }
};

void PrintTo(const Language& language, std::ostream* out) {
    *out << language.label().toStdString();
}

const QString pseudo = u"accents"_s;
const QString mirroredPseudo = u"accents from right to left"_s;

std::vector<Language> allLanguages() {
    std::vector<Language> all{
        {u"en"_s, Qt::LeftToRight}, {pseudo, Qt::LeftToRight}, {mirroredPseudo, Qt::RightToLeft}};
    const QDir folder(sourcePath(u"translations"_s));
    for (const QString& file : folder.entryList({u"*.ts"_s})) {
        const QString name = file.sliced(11).chopped(3); // morrowleaf_ and .ts
        all.push_back({name, QLocale(name).textDirection()});
    }
    for (const QString& name : {u"en"_s, u"de"_s, u"ja"_s}) {
        all.push_back({name, Qt::LeftToRight, 1.5});
    }
    return all;
}

class ScreensTest : public ::testing::TestWithParam<Language> {
public:
    ~ScreensTest() override {
        if (translator_) {
            QCoreApplication::removeTranslator(translator_.get());
        }
        QLocale::setDefault(QLocale::c());
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QApplication::setPalette(QPalette());
        QApplication::setFont(font_);
    }
    ScreensTest(const ScreensTest&) = delete;
    ScreensTest& operator=(const ScreensTest&) = delete;

protected:
    ScreensTest() {
        const QString& name = GetParam().name;
        if (isPseudo()) {
            translator_ = std::make_unique<PseudoTranslator>();
        } else if (name != "en"_L1) {
            translator_ = std::make_unique<QTranslator>();
            EXPECT_TRUE(translator_->load(u":/i18n/morrowleaf_"_s + name));
        }
        if (translator_) {
            QCoreApplication::installTranslator(translator_.get());
        }
        QLocale::setDefault(isPseudo() ? QLocale::c() : QLocale(name));
        QGuiApplication::setLayoutDirection(GetParam().direction);
        QApplication::setPalette(hostPalette(ColorPreference::Light));
        QFont font = font_;
        font.setPointSizeF(font.pointSizeF() * GetParam().textScale);
        QApplication::setFont(font);
        registerAppDefaults(store);
    }
    static bool isPseudo() { return GetParam().name.startsWith(pseudo); }

    void keep(const QPixmap& picture, const QString& screen) const {
        const QString folder = qEnvironmentVariable("MORROWLEAF_PICTURES");
        if (!folder.isEmpty()) {
            picture.save(folder +
                         u"/%1-%2.png"_s.arg(screen, GetParam().label()).replace(u' ', u'-'));
        }
    }

    // Names and numbers are the same in all languages.
    static void expectTranslated(const QString& text, const char* what) {
        static const QStringList same{u"Fraunces"_s, u"0.55"_s};
        if (isPseudo() && !text.isEmpty() && !same.contains(text)) {
            EXPECT_TRUE(text.contains(PseudoTranslator::first, Qt::CaseInsensitive) &&
                        text.contains(PseudoTranslator::last))
                << what << " is not translated, or is cut: " << text.toStdString();
        }
    }
    static void expectRoom(double needed, double there, const QString& text) {
        EXPECT_LE(needed, there + 0.5) << "cut: " << text.toStdString();
    }

    static void checkLabel(const QLabel& label) {
        expectTranslated(label.text(), "a label");
        expectRoom(label.minimumSizeHint().width(), label.width(), label.text());
        const int height =
            label.wordWrap() ? label.heightForWidth(label.width()) : label.sizeHint().height();
        expectRoom(height, label.height(), label.text());
    }
    static void checkButton(const QAbstractButton& button) {
        expectTranslated(button.text(), "a button");
        if (qobject_cast<const QPushButton*>(&button) != nullptr ||
            qobject_cast<const QCheckBox*>(&button) != nullptr) {
            expectRoom(button.sizeHint().width(), button.width(), button.text());
            expectRoom(button.sizeHint().height(), button.height(), button.text());
        }
        if (const auto* swatch = qobject_cast<const PaletteSwatch*>(&button)) {
            const QFontMetricsF metrics(swatch->captionFont());
            expectRoom(metrics.horizontalAdvance(swatch->text()), swatch->width(), swatch->text());
            EXPECT_GE(swatch->captionFont().pointSizeF(), 8.5 * 0.75 * 0.6)
                << swatch->text().toStdString() << " is too small";
        }
    }
    static void checkField(const QLineEdit& field) {
        expectTranslated(field.placeholderText(), "a placeholder");
        const QMargins margins = field.textMargins();
        expectRoom(field.fontMetrics().horizontalAdvance(field.placeholderText()),
                   field.width() - margins.left() - margins.right() - 8, field.placeholderText());
    }
    static void checkPicker(MenuPicker& picker) {
        picker.open();
        const auto* list = picker.menu()->findChild<QListWidget*>();
        for (int row = 0; row < list->count(); ++row) {
            const QString text = list->item(row)->text();
            expectTranslated(text, "an entry");
            expectRoom(QFontMetrics(list->font()).horizontalAdvance(text), picker.width() - 39,
                       text);
        }
        picker.close();
    }
    static void checkTexts(const QWidget& window) {
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (!widget->isVisibleTo(&window)) {
                continue;
            }
            expectTranslated(widget->accessibleName(), "a name for screen readers");
            expectTranslated(widget->toolTip(), "a tool tip");
            if (auto* label = qobject_cast<QLabel*>(widget)) {
                checkLabel(*label);
            } else if (auto* picker = qobject_cast<MenuPicker*>(widget)) {
                checkPicker(*picker);
            } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
                checkButton(*button);
            } else if (auto* field = qobject_cast<QLineEdit*>(widget)) {
                checkField(*field);
            } else if (auto* choice = qobject_cast<QComboBox*>(widget)) {
                expectTranslated(choice->currentText(), "a choice");
                expectRoom(choice->sizeHint().width(), choice->width(), choice->currentText());
            }
        }
    }
    // Siblings lie beside each other and inside their parent.
    static void checkPlaces(const QWidget& window) {
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            const QWidget* parent = widget->parentWidget();
            if (!widget->isVisibleTo(&window) || widget->size().isEmpty()) {
                continue;
            }
            const auto* area = qobject_cast<const QScrollArea*>(parent->parentWidget());
            if (area != nullptr && area->widget() == widget) {
                EXPECT_LE(widget->width(), parent->width()) << "wider than its window";
                continue;
            }
            EXPECT_TRUE(parent->rect().contains(widget->geometry()))
                << widget->metaObject()->className()
                << " sticks out: " << widget->property("text").toString().toStdString();
            for (const QObject* other : parent->children()) {
                const auto* beside = qobject_cast<const QWidget*>(other);
                if (beside != nullptr && beside != widget && beside->isVisibleTo(&window)) {
                    EXPECT_FALSE(beside->geometry().intersects(widget->geometry()))
                        << widget->property("text").toString().toStdString() << " overlaps "
                        << beside->property("text").toString().toStdString();
                }
            }
        }
    }

    SettingsStore store;

private:
    QFont font_ = QApplication::font();
    std::unique_ptr<QTranslator> translator_;
};

TEST_P(ScreensTest, SettingsWindow) {
    const Platform platform = makeNullPlatform();
    MenuActions actions;
    QMenu menu;
    menu.addActions({&actions.showQuote, &actions.editAppearance, &actions.openSettings});
    menu.addSeparator();
    menu.addAction(&actions.quit);
    for (const QAction* action : menu.actions()) {
        expectTranslated(action->text(), "an action");
    }
    store.setKeptFileName(u"settings.broken-20261121-224501.json"_s);
    QuoteLoader loader = [](const QString&, const auto& done) { done(std::nullopt); };
    SettingsView window(store, loader, *platform.loginItem, actions);
    window.test();
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    checkTexts(window);
    checkPlaces(window);
    EXPECT_LE(window.height(), screenSize.height());
    if (GetParam().textScale == 1 && !isPseudo()) {
        EXPECT_EQ(window.size(), settingsViewSize);
    }
    keep(window.grab(), u"settings"_s);
    auto* area = window.findChild<QScrollArea*>();
    const QSize whole = area->widget()->sizeHint();
    area->widget()->resize(area->viewport()->width(), whole.height());
    keep(area->widget()->grab(), u"settings-form"_s);
    menu.popup({});
    keep(menu.grab(), u"menu"_s);
}

TEST_P(ScreensTest, AppearanceEditor) {
    const Platform platform = makeNullPlatform();
    QTemporaryDir folder;
    BGStore photos(store, sourcePath(u"resources/Backgrounds"_s), folder.filePath(u"own"_s));
    store.set(K::customBGs, QStringList{photos.builtins().value(1), u"/missing.jpg"_s});
    store.set(K::transparency, 0.5);
    QWidget window;
    window.resize(screenSize);
    auto* editor =
        new Inspector(store, photos, *platform.fileChooser, {.glassCanBeDrawn = true}, &window);
    editor->setGeometry(screenSize.width() - Inspector::width, 0, Inspector::width,
                        screenSize.height());
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    checkTexts(window);
    for (const auto* swatch : editor->findChildren<QAbstractButton*>()) {
        EXPECT_FALSE(swatch->accessibleName().isEmpty() && swatch->text().isEmpty());
    }
    keep(editor->grab(), u"editor"_s);
    auto* area = editor->findChild<QScrollArea*>();
    keep(area->widget()->grab(), u"editor-groups"_s);
    auto* picker = editor->findChild<MenuPicker*>();
    picker->open();
    keep(window.grab(editor->geometry()), u"editor-menu"_s);
}

TEST_P(ScreensTest, QuoteScreen) {
    for (const double inset : {0.0, double(Inspector::width)}) {
        QuoteViewState state;
        state.quote = {u"What we know is a drop, what we do not know is an ocean"_s,
                       u"Isaac Newton"_s};
        state.palette = Palette::all().front();
        state.mainScreen = screenSize;
        state.size = screenSize;
        state.sideInset = inset;
        state.moment = {1'763'110'800, QTimeZone::utc()}; // 14 November 2025, 9 o'clock
        state.locale = isPseudo() ? QLocale(QLocale::English) : QLocale(GetParam().name);
        const QuoteView view(state, shippedFonts());
        using Element = QuoteView::Element;
        const QRectF greeting = view.rect(Element::Greeting);
        const QRectF date = view.rect(Element::Today);
        const QRectF left(0, 0, screenSize.width() - inset, screenSize.height());
        for (const Element element : {Element::Greeting, Element::Today, Element::Hint}) {
            EXPECT_TRUE(left.contains(view.rect(element)));
            EXPECT_GE(view.rect(element).height(), 10);
        }
        EXPECT_FALSE(greeting.intersects(date));
        EXPECT_EQ(greeting.left() < date.left(), GetParam().direction == Qt::LeftToRight);
        for (const Element element : {Element::Mark, Element::Rule, Element::Author}) {
            EXPECT_FALSE(view.rect(element).intersects(greeting));
            EXPECT_FALSE(view.rect(element).intersects(view.rect(Element::Hint)));
        }
        QPixmap picture(screenSize);
        picture.fill(state.palette.colors[0]);
        QPainter painter(&picture);
        view.paint(painter, 60, QRect(QPoint(), screenSize));
        painter.end();
        keep(picture, inset > 0 ? u"showing-editing"_s : u"showing"_s);
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, ScreensTest, ::testing::ValuesIn(allLanguages()),
                         [](const auto& language) {
                             return language.param.label().replace(u' ', u'_').toStdString();
                         });

} // namespace
} // namespace morrowleaf
