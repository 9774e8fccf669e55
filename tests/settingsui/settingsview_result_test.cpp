// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "tests/settingsui/settingsviewfixture.h"

#include <QComboBox>

namespace morrowleaf {
namespace {

TEST_F(SettingsViewTest, TestTellsWhatWasFound) {
    store.set(K::source, u"/somewhere"_s);
    auto* test = button(u"Test"_s);
    click(test);
    EXPECT_EQ(asked, QStringList{u"/somewhere"_s});
    EXPECT_EQ(test->text(), u"Testing…"_s);
    EXPECT_FALSE(test->isEnabled());
    click(test);
    EXPECT_EQ(asked.size(), 1);

    answer(Quote{u"One <b>word</b>"_s, u"Nobody"_s});
    EXPECT_EQ(test->text(), u"Test"_s);
    EXPECT_TRUE(test->isEnabled());
    EXPECT_TRUE(shows_(u"“One <b>word</b>” — Nobody"_s));
    EXPECT_FALSE(store.value(K::cachedText).has_value());

    click(test);
    EXPECT_FALSE(shows_(u"“One <b>word</b>” — Nobody"_s));
    answer(std::nullopt);
    EXPECT_TRUE(shows_(u"No quote found at that source."_s));
    EXPECT_EQ(store.text(K::source), u"/somewhere"_s);
}

TEST_F(SettingsViewTest, ALongResultIsCutAfterSixHundredAndAHundredCharacters) {
    const auto result = [&](const QString& text, const QString& author) {
        view().test();
        answer(Quote{text, author});
        return view().findChild<QLabel*>(u"TestResult"_s)->text();
    };
    const auto run = [](int count) { return QString(count, u'x'); };
    const QString cut = u"“"_s + run(600) + u"…” — "_s + run(100) + u"…"_s;
    EXPECT_TRUE(result(run(600), run(100)) == u"“"_s + run(600) + u"” — "_s + run(100));
    EXPECT_TRUE(result(run(601), run(101)) == cut);
    EXPECT_TRUE(result(run(4'000'000), run(4'000'000)) == cut);
    // A family of three is one character.
    const QString family = u"👨‍👩‍👧"_s;
    EXPECT_TRUE(result(family.repeated(601), u"Nobody"_s) ==
                u"“"_s + family.repeated(600) + u"…” — Nobody"_s);
    // One character may have any number of marks, of which few are drawn.
    const QString marked = u'e' + QString(300, QChar(0x301));
    const QString tibetan = QChar(0x0F40) + QString(5000, QChar(0x0F90));
    EXPECT_LT(result(u'e' + QString(1'000'000, QChar(0x301)), u"Nobody"_s).size(), 50);
    for (const QString& text : {marked, tibetan}) {
        EXPECT_LT(result(text, u"Nobody"_s).size(), 50);
        EXPECT_LT(result(text.repeated(200), u"Nobody"_s).size(), 200 * 20 + 50);
    }
    const QString marks = QString::fromUcs4(U"\U000E0100").repeated(14);
    EXPECT_TRUE(result((u'e' + marks).repeated(600), u'e' + marks).isValidUtf16());
}

TEST_F(SettingsViewTest, TheResultIsReadAsItIsShown) {
    view().test();
    answer(Quote{QString(700, u'x'), u"Nobody"_s});
    auto* label = view().findChild<QLabel*>(u"TestResult"_s);
    ASSERT_NE(label, nullptr);
    const auto read = [](QWidget* widget, QAccessible::Text kind) {
        return QAccessible::queryAccessibleInterface(widget)->text(kind);
    };
    EXPECT_TRUE(read(label, QAccessible::Name) == label->text());
    EXPECT_TRUE(read(button(u"Test"_s), QAccessible::Description) == label->text());
}

TEST_F(SettingsViewTest, AChoiceIsReadWithItsValue) {
    const auto read = [&] {
        return QAccessible::queryAccessibleInterface(only<QComboBox>())
            ->text(QAccessible::Description);
    };
    EXPECT_EQ(read(), u"Every 24 hours"_s);
    store.set(K::frequency, u"6h"_s);
    EXPECT_EQ(read(), u"Every 6 hours"_s);
}

TEST_F(SettingsViewTest, TabSelectsTheSource) {
    store.set(K::source, u"/somewhere"_s);
    auto* field = only<QLineEdit>();
    QApplication::setActiveWindow(&view());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view()));
    button(u"Test"_s)->setFocus();
    field->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    EXPECT_EQ(field->selectedText(), u"/somewhere"_s);
}

// The widths of the rows in which a label is drawn, in device pixels.
QList<int> rowWidths(QWidget& label) {
    const QImage drawn = label.grab().toImage();
    const QRgb ground = drawn.pixel(drawn.width() - 1, 0);
    QList<int> widths;
    bool inRow = false;
    for (int y = 0; y < drawn.height(); ++y) {
        int last = -1;
        for (int x = 0; x < drawn.width(); ++x) {
            last = drawn.pixel(x, y) != ground ? x : last;
        }
        if (last >= 0 && !inRow) {
            widths.append(0);
        }
        inRow = last >= 0;
        if (inRow) {
            widths.last() = qMax(widths.last(), last + 1);
        }
    }
    return widths;
}

TEST_F(SettingsViewTest, ALongWordFillsItsRows) {
    view().test();
    answer(Quote{QString(300, u'x'), u"Nobody"_s});
    QCoreApplication::processEvents();
    auto* label = view().findChild<QLabel*>(u"TestResult"_s);
    const QList<int> rows = rowWidths(*label);
    ASSERT_GE(rows.size(), 4);
    const int letter = label->fontMetrics().horizontalAdvance(u'x');
    for (const int row : rows.first(rows.size() - 2)) {
        EXPECT_GT(row, label->width() - 2 * letter);
    }
    EXPECT_FALSE(label->text().contains(QChar(0x200B)));
}

TEST_F(SettingsViewTest, AWordWithoutEndDoesNotWidenTheForm) {
    view().test();
    answer(Quote{QString(3000, u'W'), u"Nobody"_s});
    QCoreApplication::processEvents();
    for (const auto* card : view().findChildren<FormCard*>()) {
        EXPECT_LT(card->mapTo(&view(), QPoint(card->width(), 0)).x(), view().width());
    }
}

TEST_F(SettingsViewTest, TheKeyboardWaitsWhileATestRuns) {
    view().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view(), 60'000));
    auto* test = button(u"Test"_s);
    test->setFocus(Qt::TabFocusReason);
    QTest::keyClick(view().windowHandle(), Qt::Key_Space);
    EXPECT_EQ(asked.size(), 1);
    const QSignalSpy shows(&actions.showQuote, &QAction::triggered);
    QTest::keyClick(view().windowHandle(), Qt::Key_Space);
    EXPECT_EQ(shows.count(), 0);
    answer(std::nullopt);
    EXPECT_TRUE(test->hasFocus());
    EXPECT_EQ(QAccessible::queryAccessibleInterface(test)->text(QAccessible::Description),
              u"No quote found at that source."_s);

    QTest::keyClick(view().windowHandle(), Qt::Key_Space);
    only<QLineEdit>()->setFocus();
    answer(std::nullopt);
    EXPECT_TRUE(only<QLineEdit>()->hasFocus());
}

TEST_F(SettingsViewTest, ResultSurvivesHiding) {
    view().test();
    answer(std::nullopt);
    view().hide();
    view().show();
    EXPECT_TRUE(shows_(u"No quote found at that source."_s));
}

} // namespace
} // namespace morrowleaf
