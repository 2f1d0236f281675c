#include "platform/Wishes.h"
#include "tests/platform/BusService.h"

#include <QDBusArgument>
#include <QDBusMetaType>

#include <atomic>
#include <map>
#include <thread>

namespace zentaro::platform {
namespace {

using Groups = QMap<QString, QVariantMap>;

class WishesLinuxTest : public OnPrivateBus {
protected:
    WishesLinuxTest() { qDBusRegisterMetaType<Groups>(); }

    /// What a desktop with these settings wishes; the portal answers meanwhile.
    Wishes With(const Groups& settings)
    {
        BusService portal(bus, { "org.freedesktop.portal.Desktop" }, [&](const QDBusMessage& call) {
            EXPECT_EQ(call.member(), "ReadAll");
            return call.createReply(QVariant::fromValue(settings));
        });
        return Ask();
    }
    static Wishes Ask()
    {
        Wishes wishes;
        bool isDone = false;
        std::jthread asker([&] {
            wishes = SystemWishes();
            isDone = true;
        });
        EXPECT_TRUE(RunUntil([&] { return isDone; }));
        return wishes;
    }
    static Groups One(const char* group, const char* key, const QVariant& value)
    {
        return { { "org.freedesktop.appearance", { { "color-scheme", 1U }, { "accent", QVariantList{ 0.1, 0.2 } } } },
            { group, { { "a-name", "text" }, { key, value } } } };
    }
};

TEST_F(WishesLinuxTest, TheDesktopSaysThemInItsOwnWords)
{
    EXPECT_TRUE(With(One("org.freedesktop.appearance", "contrast", 1U)).highContrast);
    EXPECT_TRUE(With(One("org.gnome.desktop.a11y.interface", "high-contrast", true)).highContrast);
    EXPECT_TRUE(With(One("org.freedesktop.appearance", "reduced-motion", 1U)).lessMotion);
    EXPECT_TRUE(With(One("org.gnome.desktop.interface", "enable-animations", false)).lessMotion);
    EXPECT_TRUE(With(One("org.kde.kdeglobals.KDE", "AnimationDurationFactor", "0")).lessMotion);
    for (const auto& usual : { One("org.gnome.desktop.interface", "enable-animations", true),
             One("org.freedesktop.appearance", "contrast", 0U),
             One("org.kde.kdeglobals.KDE", "AnimationDurationFactor", "0.5") }) {
        EXPECT_FALSE(With(usual).lessMotion);
        EXPECT_FALSE(With(usual).highContrast);
    }
}

TEST_F(WishesLinuxTest, NobodyWaitsForADesktopThatDoesNotAnswer)
{
    EXPECT_FALSE(Ask().lessMotion);
    bus.FallSilent();
    EXPECT_FALSE(Ask().lessMotion);
}

TEST_F(WishesLinuxTest, NewOnesAreToldWhileTheyAreWatched)
{
    unsigned contrast = 0;
    BusService portal(bus, { "org.freedesktop.portal.Desktop" }, [&](const QDBusMessage& call) {
        return call.createReply(QVariant::fromValue(One("org.freedesktop.appearance", "contrast", contrast)));
    });
    std::atomic<int> told = 0;
    std::atomic<bool> hasContrast = false;
    const auto watch = WishWatch::Open([&](const Wishes& wishes) {
        hasContrast = wishes.highContrast;
        ++told;
    });
    EXPECT_TRUE(RunUntil([&] { return told == 1; }));
    const auto change = [&](const char* group) {
        auto news = QDBusMessage::createSignal(
            "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged");
        news << group << "contrast" << QVariant::fromValue(QDBusVariant(contrast));
        portal.Connection().send(news);
    };
    contrast = 1;
    change("org.example.other");
    change("org.freedesktop.appearance");
    EXPECT_TRUE(RunUntil([&] { return hasContrast.load(); }));
    EXPECT_EQ(told, 2);
    contrast = 0;
    change("org.freedesktop.appearance");
    EXPECT_TRUE(RunUntil([&] { return !hasContrast; }));
}

} // namespace
} // namespace zentaro::platform
