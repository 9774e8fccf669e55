// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "app/requestqueue.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTest>
#include <gtest/gtest.h>

namespace morrowleaf {
namespace {

using namespace Qt::Literals::StringLiterals;

class RequestQueueTest : public testing::Test {
protected:
    RequestQueueTest() {
        QObject::connect(&queue, &RequestQueue::due, &queue, [this](const LaunchRequest& request) {
            due << request.action + request.activationToken;
        });
    }
    // As a message on the bus arrives: as an event on the main thread.
    void receive(const QString& action, const QString& token = {}) {
        QMetaObject::invokeMethod(
            &queue,
            [=, this] {
                queue.add({action, token});
            },
            Qt::QueuedConnection);
    }
    bool delivers(const QStringList& expected) {
        return QTest::qWaitFor([&] { return due == expected; }) && due == expected;
    }

    RequestQueue queue;
    QStringList due;
};

TEST_F(RequestQueueTest, OfManyThatWaitTheNewestIsCarriedOut) {
    for (int i = 1; i <= 400; ++i) {
        receive(i % 2 == 0 ? u"show"_s : u"edit-appearance"_s, QString::number(i));
    }
    EXPECT_TRUE(delivers({u"show400"_s}));
}

TEST_F(RequestQueueTest, TheSettingsStayBesideIt) {
    receive(u"show"_s, u"1"_s);
    receive(u"settings"_s, u"2"_s);
    receive(u"show"_s, u"3"_s);
    receive(u"settings"_s, u"4"_s);
    receive(u"edit-appearance"_s, u"5"_s);
    EXPECT_TRUE(delivers({u"settings4"_s, u"edit-appearance5"_s}));
}

TEST_F(RequestQueueTest, BesideAQuitNothingElseIsCarriedOut) {
    receive(u"show"_s);
    receive(u"quit"_s);
    receive(u"settings"_s);
    EXPECT_TRUE(delivers({u"quit"_s}));
    QCoreApplication::processEvents();
    EXPECT_EQ(due.size(), 1);
}

TEST_F(RequestQueueTest, OneThatComesLaterIsCarriedOutToo) {
    receive(u"show"_s, u"1"_s);
    EXPECT_TRUE(delivers({u"show1"_s}));
    receive(u"show"_s, u"2"_s);
    EXPECT_TRUE(delivers({u"show1"_s, u"show2"_s}));
}

} // namespace
} // namespace morrowleaf
