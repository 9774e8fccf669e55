// SPDX-FileCopyrightText: 2026 The Morrowleaf developers
// SPDX-License-Identifier: MIT

#include "platform/linux/dbus/portalwishes.h"

#include "tests/platform/privatebus.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusVariant>

#include <memory>

namespace morrowleaf {
namespace {

const QString settingsPath = u"/org/freedesktop/portal/desktop"_s;
const QString settingsName = u"org.freedesktop.portal.Settings"_s;
const QString appearance = u"org.freedesktop.appearance"_s;
const QString gnome = u"org.gnome.desktop.interface"_s;

// Three numbers, as portals give a colour.
struct Triple {
    double red, green, blue;
};
QDBusArgument& operator<<(QDBusArgument& to, const Triple& triple) {
    to.beginStructure();
    to << triple.red << triple.green << triple.blue;
    to.endStructure();
    return to;
}
const QDBusArgument& operator>>(const QDBusArgument& from, Triple& triple) {
    from.beginStructure();
    from >> triple.red >> triple.green >> triple.blue;
    from.endStructure();
    return from;
}

// The settings of a portal.
class FakeSettings : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    FakeSettings() {
        qDBusRegisterMetaType<PortalSettings>();
        service.bus.registerObject(settingsPath, this, QDBusConnection::ExportAllSlots);
    }
    void registerName() {
        EXPECT_TRUE(service.bus.registerService(u"org.freedesktop.portal.Desktop"_s));
    }
    void change(const QString& group, const QString& key, const QVariant& value) {
        settings[group][key] = value;
        service.send(settingsPath, settingsName, u"SettingChanged"_s,
                     {group, key, QVariant::fromValue(QDBusVariant(value))});
    }

    FakeService service{{}};
    PortalSettings settings;

public slots:
    // NOLINTNEXTLINE: a name on the bus
    QMap<QString, QVariantMap> ReadAll(const QStringList& groups) const {
        PortalSettings wanted;
        for (const QString& group : groups) {
            if (settings.contains(group)) {
                wanted[group] = settings[group];
            }
        }
        return wanted;
    }
};

class PortalWishesTest : public testing::Test {
protected:
    PortalWishesTest() { qDBusRegisterMetaType<Triple>(); }
    void openSession() {
        session->open();
        EXPECT_TRUE(becomesTrue([this] { return session->bus().isConnected(); }));
    }
    void setScheme(uint scheme) const { portal->settings[appearance][u"color-scheme"_s] = scheme; }

    PrivateBus daemon;
    std::shared_ptr<BusLink> session = sessionLink();
    std::unique_ptr<FakeSettings> portal = std::make_unique<FakeSettings>();
};

TEST_F(PortalWishesTest, ReadsTheColors) {
    setScheme(1);
    portal->registerName();
    const PortalWishes wishes(session);
    openSession();
    EXPECT_EQ(wishes.current(), Wishes());
    EXPECT_TRUE(becomesTrue([&] { return wishes.current().colors == ColorPreference::Dark; }));
}

TEST_F(PortalWishesTest, FollowsTheColors) {
    portal->registerName();
    PortalWishes wishes(session);
    openSession();
    QList<ColorPreference> changes;
    QObject::connect(&wishes, &DesktopWishes::changed, &wishes,
                     [&](const Wishes& now) { changes << now.colors; });
    const auto change = [&](uint scheme) { portal->change(appearance, u"color-scheme"_s, scheme); };
    EXPECT_TRUE(becomesTrue([&] {
        change(1);
        return !changes.isEmpty();
    }));
    portal->change(appearance, u"something"_s, 1U);
    change(2);
    change(7); // not a value that exists
    EXPECT_TRUE(becomesTrue([&] { return changes.size() == 3; }));
    EXPECT_EQ(changes,
              (QList{ColorPreference::Dark, ColorPreference::Light, ColorPreference::None}));
}

TEST_F(PortalWishesTest, FollowsMotionContrastAndAccent) {
    portal->settings[gnome][u"enable-animations"_s] = true;
    portal->registerName();
    const PortalWishes wishes(session);
    openSession();
    EXPECT_TRUE(becomesTrue([&] {
        portal->change(gnome, u"enable-animations"_s, false);
        return wishes.current().reducedMotion;
    }));
    portal->change(appearance, u"contrast"_s, 1U);
    EXPECT_TRUE(becomesTrue([&] { return wishes.current().highContrast; }));
    portal->change(appearance, u"accent-color"_s, QVariant::fromValue(Triple{1, 0.5, 0}));
    EXPECT_TRUE(becomesTrue([&] { return wishes.current().accent == QColor(255, 128, 0); }));
    portal->change(appearance, u"accent-color"_s, QVariant::fromValue(Triple{-1, -1, -1}));
    portal->change(appearance, u"contrast"_s, 0U);
    portal->change(gnome, u"enable-animations"_s, true);
    EXPECT_TRUE(becomesTrue([&] { return wishes.current() == Wishes(); }));
}

TEST_F(PortalWishesTest, AsksAgainWhenPlasmaHasWrittenItsFile) {
    const QString plasma = u"org.kde.kdeglobals.KDE"_s;
    setScheme(1);
    portal->registerName();
    const PortalWishes wishes(session);
    openSession();
    EXPECT_TRUE(becomesTrue([&] { return wishes.current().colors == ColorPreference::Dark; }));
    portal->settings[plasma][u"AnimationDurationFactor"_s] = u"0"_s;
    EXPECT_TRUE(becomesTrue([&] {
        portal->service.send(u"/kdeglobals"_s, u"org.kde.kconfig.notify"_s, u"ConfigChanged"_s, {});
        return wishes.current().reducedMotion;
    }));
}

TEST_F(PortalWishesTest, AsksAgainOnABusThatComesBack) {
    setScheme(1);
    portal->registerName();
    const PortalWishes wishes(session);
    openSession();
    EXPECT_TRUE(becomesTrue([&] { return wishes.current().colors == ColorPreference::Dark; }));
    daemon.stop();
    daemon.start();
    portal = std::make_unique<FakeSettings>();
    setScheme(2);
    portal->registerName();
    EXPECT_TRUE(becomesTrue([&] { return wishes.current().colors == ColorPreference::Light; }));
}

TEST_F(PortalWishesTest, AsksAPortalThatStartsLater) {
    const PortalWishes withoutPortal(session);
    const PortalWishes withoutBus(sessionLink());
    openSession();
    setScheme(2);
    portal->registerName();
    EXPECT_TRUE(
        becomesTrue([&] { return withoutPortal.current().colors == ColorPreference::Light; }));
    EXPECT_EQ(withoutBus.current(), Wishes());
}

TEST(WishesInSettings, AreThoseOfPlasmaToo) {
    const auto motion = [](const QString& factor) {
        return wishesIn({{u"org.kde.kdeglobals.KDE"_s, {{u"AnimationDurationFactor"_s, factor}}}})
            .reducedMotion;
    };
    EXPECT_TRUE(motion(u"0"_s));
    EXPECT_FALSE(motion(u"0.5"_s));
    EXPECT_FALSE(motion(u""_s));
    EXPECT_EQ(
        wishesIn({{u"org.kde.kdeglobals.General"_s, {{u"AccentColor"_s, u"61,174,233"_s}}}}).accent,
        QColor(61, 174, 233));
}

TEST(WishesInSettings, AreNoneInValuesOfOtherTypes) {
    EXPECT_EQ(wishesIn({{gnome, {{u"enable-animations"_s, u"false"_s}}},
                        {appearance,
                         {{u"contrast"_s, u"high"_s},
                          {u"color-scheme"_s, QVariantList()},
                          {u"accent-color"_s, 3}}}}),
              Wishes());
    EXPECT_EQ(wishesIn({}), Wishes());
}

} // namespace
} // namespace morrowleaf

Q_DECLARE_METATYPE(morrowleaf::Triple)

#include "portalwishes_test.moc"
