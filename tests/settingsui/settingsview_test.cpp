// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "tests/settingsui/settingsviewfixture.h"

#include "sources/sourcepresets.h"
#include "tools/sourcepath.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFontDatabase>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QWheelEvent>

#include <algorithm>

namespace morrowleaf {
namespace {

TEST_F(SettingsViewTest, HasAFixedSizeAndTheTexts) {
    EXPECT_EQ(view().size(), QSize(520, 545));
    const char* const help =
        "Any JSON with a quote and author field works, plus a local file path. The last fetched "
        "quote is cached, so it still shows offline.";
    for (const char* text :
         {"Appearance", "Palette, typeface, size, vignette and grain", "Behaviour", "New quote",
          "Close after", "15s", "Quotes", "Source URL", help}) {
        EXPECT_TRUE(shows_(QString::fromUtf8(text))) << text;
    }
    EXPECT_EQ(only<QLineEdit>()->placeholderText(), u"Leave empty for the built-in 124 quotes"_s);
}

TEST_F(SettingsViewTest, NothingIsCutOff) {
    for (const auto* label : view().findChildren<QLabel*>()) {
        if (label->isVisible() && !label->wordWrap()) {
            EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
        }
    }
}

TEST_F(SettingsViewTest, ButtonsTriggerTheActionsOfTheMenu) {
    const QSignalSpy edits(&actions.editAppearance, &QAction::triggered);
    const QSignalSpy shows(&actions.showQuote, &QAction::triggered);
    const QSignalSpy quits(&actions.quit, &QAction::triggered);
    click(button(u"Edit Appearance…"_s));
    click(button(u"Show Today's Quote"_s));
    click(button(u"Quit"_s));
    EXPECT_EQ(edits.count(), 1);
    EXPECT_EQ(shows.count(), 1);
    EXPECT_EQ(quits.count(), 1);
}

TEST_F(SettingsViewTest, WakeSwitchGoesBothWays) {
    QCheckBox* wake = switchNamed(u"Show on wake and unlock"_s);
    ASSERT_NE(wake, nullptr);
    EXPECT_TRUE(wake->isChecked());
    click(wake);
    EXPECT_EQ(store.value(K::showOnWake), QJsonValue(false));
    store.set(K::showOnWake, true);
    EXPECT_TRUE(wake->isChecked());
}

TEST_F(SettingsViewTest, FrequencyGoesBothWays) {
    auto* box = only<QComboBox>();
    QStringList choices;
    for (int i = 0; i < box->count(); ++i) {
        choices.append(box->itemText(i) + u'=' + box->itemData(i).toString());
    }
    EXPECT_EQ(choices, QStringList({u"Every 6 hours=6h"_s, u"Every 12 hours=12h"_s,
                                    u"Every 24 hours=24h"_s, u"Every time it shows=every"_s}));
    EXPECT_EQ(box->currentIndex(), 2);
    QTest::keyClick(box, Qt::Key_End);
    EXPECT_EQ(store.text(K::frequency), u"every"_s);
    store.set(K::frequency, u"6h"_s);
    EXPECT_EQ(box->currentIndex(), 0);
}

TEST_F(SettingsViewTest, UnknownFrequencySelectsNothingAndStays) {
    store.set(K::frequency, u"weekly"_s);
    EXPECT_EQ(only<QComboBox>()->currentIndex(), -1);
    EXPECT_EQ(store.text(K::frequency), u"weekly"_s);
}

TEST_F(SettingsViewTest, CloseAfterStoresWholeSecondsAsReals) {
    auto* slider = only<QSlider>();
    EXPECT_EQ(slider->minimum(), 5);
    EXPECT_EQ(slider->maximum(), 60);
    QTest::keyClick(slider, Qt::Key_Home);
    EXPECT_EQ(store.value(K::dismiss), QJsonValue(5.0));
    EXPECT_TRUE(shows_(u"5s"_s));
    QTest::keyClick(slider, Qt::Key_End);
    EXPECT_EQ(store.value(K::dismiss), QJsonValue(60.0));
    EXPECT_TRUE(shows_(u"60s"_s));
    QTest::keyClick(slider, Qt::Key_Left);
    EXPECT_EQ(store.real(K::dismiss), 59);
}

TEST_F(SettingsViewTest, CloseAfterComesToWhereTheMousePresses) {
    auto* slider = only<QSlider>();
    const int middle = slider->height() / 2;
    QTest::mousePress(slider, Qt::LeftButton, {}, {slider->width() / 2, middle});
    EXPECT_NEAR(store.real(K::dismiss), 32.5, 1);
    QTest::mouseMove(slider, {slider->width() - 1, middle});
    EXPECT_EQ(store.real(K::dismiss), 60);
    QTest::mouseRelease(slider, Qt::LeftButton, {}, {slider->width() - 1, middle});
    QTest::mousePress(slider, Qt::LeftButton, {}, {1, middle});
    EXPECT_EQ(store.real(K::dismiss), 5);
    QTest::mouseRelease(slider, Qt::LeftButton, {}, {1, middle});
    QTest::mousePress(slider, Qt::RightButton, {}, {slider->width() / 2, middle});
    EXPECT_EQ(store.real(K::dismiss), 5);
}

TEST_F(SettingsViewTest, CloseAfterTruncatesAndRewritesNothing) {
    store.set(K::dismiss, 15.9);
    view();
    EXPECT_TRUE(shows_(u"15s"_s));
    store.set(K::dismiss, 120.5);
    EXPECT_TRUE(shows_(u"120s"_s));
    EXPECT_EQ(only<QSlider>()->value(), 60);
    EXPECT_EQ(store.real(K::dismiss), 120.5);
}

TEST_F(SettingsViewTest, CloseAfterStoresTheEndThatItIsMovedTo) {
    store.set(K::dismiss, 2.0);
    auto* slider = only<QSlider>();
    EXPECT_EQ(slider->value(), 5);
    EXPECT_EQ(store.real(K::dismiss), 2);
    QTest::keyClick(slider, Qt::Key_Home);
    EXPECT_EQ(store.value(K::dismiss), QJsonValue(5.0));
    EXPECT_TRUE(shows_(u"5s"_s));
    store.set(K::dismiss, 120.0);
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(store.value(K::dismiss), QJsonValue(60.0));
    EXPECT_TRUE(shows_(u"60s"_s));
}

TEST_F(SettingsViewTest, CloseAfterReadsHugeValuesShortly) {
    for (const double huge : {1e308, -1e308, 1e9}) {
        store.set(K::dismiss, huge);
        const auto labels = view().findChildren<QLabel*>();
        const auto readout = std::find_if(labels.begin(), labels.end(),
                                          [](const QLabel* label) { return label->width() == 46; });
        ASSERT_NE(readout, labels.end());
        EXPECT_LE((*readout)->sizeHint().width(), 46) << (*readout)->text().toStdString();
    }
}

// The columns of the first digit in which ink differs from the ground.
TEST_F(SettingsViewTest, CloseAfterHasDigitsOfEqualWidth) {
    ASSERT_GE(QFontDatabase::addApplicationFont(
                  sourcePath(u"resources/Fonts/InterDisplay-Regular.otf"_s)),
              0);
    const QFont before = QApplication::font();
    QApplication::setFont(QFont(u"Inter Display"_s, 11));
    const QFontMetricsF metrics{QApplication::font()};
    ASSERT_NE(metrics.horizontalAdvance(u'1'), metrics.horizontalAdvance(u'8'));
    const auto firstDigit = [&](double seconds, const QString& text) {
        store.set(K::dismiss, seconds);
        for (auto* label : view().findChildren<QLabel*>()) {
            if (label->text() == text) {
                const QImage drawn = label->grab().toImage();
                for (int x = 0; x < drawn.width(); ++x) {
                    for (int y = 0; y < drawn.height(); ++y) {
                        if (drawn.pixel(x, y) != drawn.pixel(0, 0)) {
                            return x;
                        }
                    }
                }
            }
        }
        return -1;
    };
    const int place = firstDigit(50, u"50s"_s);
    EXPECT_GT(place, 0);
    EXPECT_EQ(firstDigit(51, u"51s"_s), place);
    EXPECT_EQ(firstDigit(58, u"58s"_s), place);
    QApplication::setFont(before);
}

TEST_F(SettingsViewTest, TheWheelChangesNothingInPassing) {
    store.set(K::frequency, u"12h"_s);
    store.set(K::dismiss, 20.0);
    for (QWidget* control : {static_cast<QWidget*>(only<QSlider>()), //
                             static_cast<QWidget*>(only<QComboBox>())}) {
        for (const int turn : {-120, 120}) {
            const QPointF middle = QRectF(control->rect()).center();
            QWheelEvent wheel(middle, control->mapToGlobal(middle), {}, {0, turn}, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(control, &wheel);
            EXPECT_EQ(store.text(K::frequency), u"12h"_s);
            EXPECT_EQ(store.value(K::dismiss), QJsonValue(20.0));
        }
    }
}

TEST_F(SettingsViewTest, SourceGoesBothWays) {
    auto* field = only<QLineEdit>();
    QTest::keyClicks(field, u"/a b"_s);
    EXPECT_EQ(store.text(K::source), u"/a b"_s);
    store.set(K::source, u"elsewhere"_s);
    EXPECT_EQ(field->text(), u"elsewhere"_s);
}

TEST_F(SettingsViewTest, ALongSourceIsKeptWhole) {
    const QString text(100'000, u'x');
    only<QLineEdit>()->selectAll();
    only<QLineEdit>()->insert(text);
    EXPECT_EQ(store.text(K::source)->size(), only<QLineEdit>()->text().size());
    store.set(K::source, text);
    view();
    EXPECT_EQ(store.text(K::source), text);
}

TEST_F(SettingsViewTest, PresetsSetTheSource) {
    auto* presets = button(u"Presets"_s);
    ASSERT_NE(presets, nullptr);
    EXPECT_EQ(presets->width(), 120);
    const auto actions = presets->menu()->actions();
    ASSERT_EQ(actions.size(), 4);
    for (qsizetype i = 0; i < 3; ++i) {
        const SourcePreset& preset = sourcePresets[std::size_t(i)];
        EXPECT_EQ(actions[i]->text(), sourcePresetLabel(preset));
        actions[i]->trigger();
        EXPECT_EQ(store.text(K::source), preset.address);
        EXPECT_EQ(only<QLineEdit>()->text(), preset.address);
    }
    EXPECT_EQ(actions[3]->text(), u"Built-in list"_s);
    actions[3]->trigger();
    EXPECT_EQ(store.text(K::source), QString());
}

TEST_F(SettingsViewTest, ReturnPressesWhatHasTheKeyboard) {
    view().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view(), 60'000));
    const QSignalSpy shows(&actions.showQuote, &QAction::triggered);
    button(u"Show Today's Quote"_s)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(view().windowHandle(), Qt::Key_Return);
    EXPECT_EQ(shows.count(), 1);
    QTest::keyClick(view().windowHandle(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(shows.count(), 2);
    QTest::keyPress(view().windowHandle(), Qt::Key_Return);
    EXPECT_TRUE(button(u"Show Today's Quote"_s)->isDown());
    EXPECT_EQ(shows.count(), 2);
    QTest::keyRelease(view().windowHandle(), Qt::Key_Return);
    EXPECT_EQ(shows.count(), 3);

    switchNamed(u"Show on wake and unlock"_s)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(view().windowHandle(), Qt::Key_Return);
    EXPECT_EQ(store.value(K::showOnWake), QJsonValue(false));
    auto* box = only<QComboBox>();
    box->setFocus(Qt::TabFocusReason);
    QTest::keyClick(view().windowHandle(), Qt::Key_Return);
    EXPECT_TRUE(box->view()->isVisible());
    box->hidePopup();

    only<QSlider>()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(view().windowHandle(), Qt::Key_Return);
    only<QLineEdit>()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(view().windowHandle(), Qt::Key_Return);
    EXPECT_EQ(shows.count(), 3);
    EXPECT_EQ(Prefs::source(store), QString());
}

TEST_F(SettingsViewTest, SectionsAreNamedGroups) {
    QStringList names;
    for (auto* card : view().findChildren<FormCard*>()) {
        const auto* face = QAccessible::queryAccessibleInterface(card);
        EXPECT_EQ(face->role(), QAccessible::Grouping);
        names.append(face->text(QAccessible::Name));
    }
    EXPECT_EQ(names, QStringList({u"Appearance"_s, u"Behaviour"_s, u"Quotes"_s}));
}

TEST_F(SettingsViewTest, LoginSwitchFollowsTheSystemWhenMade) {
    login.current = LoginItem::Status::Enabled;
    QCheckBox* control = switchNamed(u"Open at login"_s);
    EXPECT_TRUE(control->isChecked());
    EXPECT_EQ(login.calls, 0);
    const QSignalSpy refusals(&view(), &SettingsView::loginItemRefused);
    click(control);
    EXPECT_EQ(login.current, LoginItem::Status::NotRegistered);
    EXPECT_EQ(login.calls, 1);
    EXPECT_EQ(refusals.count(), 0);
}

TEST_F(SettingsViewTest, RefusedLoginFlipsBackAndIsAnnouncedOnce) {
    login.refuses = true;
    QCheckBox* control = switchNamed(u"Open at login"_s);
    EXPECT_FALSE(control->isChecked());
    const QSignalSpy refusals(&view(), &SettingsView::loginItemRefused);
    click(control);
    EXPECT_FALSE(control->isChecked());
    EXPECT_EQ(login.calls, 1);
    EXPECT_EQ(refusals.count(), 1);
}

TEST_F(SettingsViewTest, ApprovalThatIsMissingCountsAsOff) {
    login.current = LoginItem::Status::RequiresApproval;
    EXPECT_FALSE(switchNamed(u"Open at login"_s)->isChecked());
}

TEST_F(SettingsViewTest, EveryControlHasANameAndIsReachedInOrder) {
    QStringList names;
    QWidget* at = &view();
    for (QWidget* next = at->nextInFocusChain(); next != at; next = next->nextInFocusChain()) {
        if (next->isVisible() && (next->focusPolicy() & Qt::TabFocus) != 0 && !next->isWindow() &&
            next->focusProxy() == nullptr) {
            const auto* face = QAccessible::queryAccessibleInterface(next);
            ASSERT_NE(face, nullptr);
            // A combo box is named by its label.
            const auto labels = face->relations(QAccessible::Label);
            names.append(labels.isEmpty() ? face->text(QAccessible::Name)
                                          : labels.first().first->text(QAccessible::Name));
        }
    }
    EXPECT_EQ(names,
              QStringList({u"Edit Appearance…"_s, u"Show on wake and unlock"_s, u"New quote"_s,
                           u"Close after"_s, u"Open at login"_s, u"Source URL"_s, u"Presets"_s,
                           u"Test"_s, u"Show Today's Quote"_s, u"Quit"_s}));
}

TEST_F(SettingsViewTest, KeepsTheBottomBarInSightWhereItIsLow) {
    view().resize(520, 380);
    view().show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view()));
    const auto* scroll = view().findChild<QScrollArea*>();
    ASSERT_NE(scroll, nullptr);
    EXPECT_GT(scroll->verticalScrollBar()->maximum(), 0);
    for (const QPushButton* button : view().findChildren<QPushButton*>()) {
        if (button->text() == u"Quit"_s || button->text() == u"Show Today's Quote"_s) {
            const QRect place(button->mapTo(&view(), QPoint()), button->size());
            EXPECT_TRUE(view().rect().contains(place)) << button->text().toStdString();
        }
    }
}

TEST_F(SettingsViewTest, TellsInOneLineWhereUnreadableSettingsAreKept) {
    const auto notice = [&]() -> const QLabel* {
        for (const QLabel* label : view().findChildren<QLabel*>()) {
            if (label->text().startsWith(u"Unreadable settings"_s)) {
                return label;
            }
        }
        return nullptr;
    };
    EXPECT_EQ(notice(), nullptr);
    store.setKeptFileName(u"settings.broken-20261121-224501.json"_s);
    ASSERT_NE(notice(), nullptr);
    EXPECT_FALSE(notice()->isHidden());
    EXPECT_EQ(notice()->text(),
              u"Unreadable settings are kept in settings.broken-20261121-224501.json"_s);
    const QFontMetrics metrics(notice()->font());
    EXPECT_LE(metrics.horizontalAdvance(notice()->text()), settingsViewSize.width() - 36);
    store.setKeptFileName({});
    EXPECT_EQ(notice(), nullptr);
}

} // namespace
} // namespace morrowleaf
