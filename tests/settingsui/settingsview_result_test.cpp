// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "tests/settingsui/settingsviewfixture.h"

#include <ctime>

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
