// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/screensavers.h"

#include "tests/platform/privatebus.h"

#include <memory>
#include <ostream>
#include <vector>

namespace morrowleaf {
namespace {

using Event = SessionGate::Event;
using Events = std::vector<Event>;

struct Saver {
    QString name; // of the service and of the interface
    QString path;
};

// GoogleTest names a parameter by this.
void PrintTo(const Saver& saver, std::ostream* to) { // NOLINT: the name is GoogleTest's
    *to << saver.path.toStdString();
}

class ScreenSaversTest : public testing::TestWithParam<Saver> {
protected:
    ScreenSaversTest() {
        QObject::connect(&gate, &SessionGate::delivered, &gate,
                         [this](Event event) { delivered.push_back(event); });
        QObject::connect(&gate, &SessionGate::leaving, &gate, [this] { ++leavings; });
        session->open();
        EXPECT_TRUE(becomesTrue([this] {
            setActive(true);
            return leavings == 1;
        })) << "not followed yet";
    }
    void setActive(bool active) {
        fake->send(GetParam().path, GetParam().name, u"ActiveChanged"_s, {active});
    }

    PrivateBus daemon;
    std::unique_ptr<FakeService> fake = std::make_unique<FakeService>(GetParam().name);
    SessionGate gate;
    Events delivered;
    int leavings = 0;
    std::shared_ptr<BusLink> session = sessionLink();
    ScreenSavers savers{gate, session};
};

TEST_P(ScreenSaversTest, InhibitsWhileActiveAndUnlocksAtTheEnd) {
    gate.report(Event::Wake);
    EXPECT_TRUE(delivered.empty());
    setActive(false);
    EXPECT_TRUE(becomesTrue([this] { return delivered == Events{Event::Wake, Event::Unlocked}; }));
}

TEST_P(ScreenSaversTest, OneThatVanishesNoLongerInhibits) {
    gate.report(Event::Wake);
    fake.reset();
    EXPECT_TRUE(becomesTrue([this] { return delivered == Events{Event::Wake}; }));
}

TEST_P(ScreenSaversTest, WhatAnotherClientSendsIsIgnored) {
    FakeService impostor({});
    impostor.send(GetParam().path, GetParam().name, u"ActiveChanged"_s, {false});
    impostor.waitForBus();
    setActive(false);
    setActive(true); // the marker: all that was sent before it has arrived
    EXPECT_TRUE(becomesTrue([this] { return leavings == 2; }));
    EXPECT_EQ(delivered, Events{Event::Unlocked});
}

class PlasmaLockerTest : public ScreenSaversTest {};

TEST_P(PlasmaLockerTest, ReleasesTheInputBeforeItLocks) {
    fake->send(GetParam().path, u"org.kde.screensaver"_s, u"AboutToLock"_s, {});
    EXPECT_TRUE(becomesTrue([this] { return leavings == 2; }));
    EXPECT_TRUE(delivered.empty());
}

TEST_P(PlasmaLockerTest, WhatAnotherClientSendsIsIgnored) {
    FakeService impostor({});
    impostor.send(GetParam().path, u"org.kde.screensaver"_s, u"AboutToLock"_s, {});
    impostor.waitForBus();
    setActive(false);
    EXPECT_TRUE(becomesTrue([this] { return delivered == Events{Event::Unlocked}; }));
    EXPECT_EQ(leavings, 1);
}

INSTANTIATE_TEST_SUITE_P(
    Plasma, PlasmaLockerTest,
    testing::Values(Saver{u"org.freedesktop.ScreenSaver"_s, u"/org/freedesktop/ScreenSaver"_s},
                    Saver{u"org.freedesktop.ScreenSaver"_s, u"/ScreenSaver"_s}),
    [](const testing::TestParamInfo<Saver>& info) {
        QString test = info.param.path;
        return test.remove('/'_L1).toStdString();
    });

INSTANTIATE_TEST_SUITE_P(
    Desktops, ScreenSaversTest,
    testing::Values(Saver{u"org.freedesktop.ScreenSaver"_s, u"/org/freedesktop/ScreenSaver"_s},
                    Saver{u"org.freedesktop.ScreenSaver"_s, u"/ScreenSaver"_s},
                    Saver{u"org.gnome.ScreenSaver"_s, u"/org/gnome/ScreenSaver"_s},
                    Saver{u"org.cinnamon.ScreenSaver"_s, u"/org/cinnamon/ScreenSaver"_s},
                    Saver{u"org.mate.ScreenSaver"_s, u"/org/mate/ScreenSaver"_s},
                    Saver{u"org.xfce.ScreenSaver"_s, u"/org/xfce/ScreenSaver"_s}),
    [](const testing::TestParamInfo<Saver>& info) {
        QString test = info.param.path;
        return test.remove('/'_L1).toStdString();
    });

} // namespace
} // namespace morrowleaf
