#include "platform/Power_linux.h"
#include "tests/platform/BusService.h"

#include <QDBusObjectPath>
#include <QDBusServiceWatcher>

#include <gmock/gmock.h>

#include <filesystem>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

class PowerLinuxTest : public OnPrivateBus {
protected:
    enum class Mood { Obeys, Refuses, KeepsSilent };

    /// The only way to a power service in this file, and never to one that could obey in earnest.
    LoginManagerPower PowerAt(const std::string& address, std::chrono::milliseconds patience = 1h) const
    {
        if (bus.Folder().empty() || !address.starts_with("unix:path=" + bus.Folder())
            || address.find(';') != std::string::npos)
            std::abort();
        return LoginManagerPower(address, patience);
    }
    /// Once the request before is over.
    static bool IsTakenAgain(LoginManagerPower& power)
    {
        return RunUntil([&] { return bool(power.PowerOff()); });
    }

    std::vector<std::string> asked;
    Mood mood = Mood::Obeys;
    BusService login{ bus, { "org.freedesktop.login1" }, [this](const QDBusMessage& call) {
                         const bool mayAsk = call.arguments() == QVariantList{ true };
                         asked.push_back((call.path() + " " + call.interface() + "." + call.member()).toStdString()
                             + (mayAsk ? " may ask" : ""));
                         return mood == Mood::KeepsSilent ? std::nullopt
                             : mood == Mood::Obeys        ? std::optional(call.createReply())
                                                          : call.createErrorReply(QDBusError::AccessDenied, "not you");
                     } };
};

TEST_F(PowerLinuxTest, the_login_manager_is_asked_once_until_it_answers_or_patience_ends)
{
    mood = Mood::KeepsSilent;
    auto power = PowerAt(bus.Address(), 1s);
    power.EnableShutdownPrivilege();
    EXPECT_TRUE(power.Restart());
    EXPECT_FALSE(power.PowerOff());
    ASSERT_TRUE(RunUntil([&] { return asked.size() == 1; }));
    for (const auto next : { Mood::Refuses, Mood::Obeys, Mood::Obeys }) {
        mood = next;
        EXPECT_TRUE(IsTakenAgain(power));
        ASSERT_TRUE(RunUntil([&, before = asked.size()] { return asked.size() > before; }));
    }
    const std::string manager = "/org/freedesktop/login1 org.freedesktop.login1.Manager.";
    EXPECT_EQ(asked.front(), manager + "Reboot may ask");
    EXPECT_EQ(asked.back(), manager + "PowerOff may ask");
}

TEST_F(PowerLinuxTest, a_bus_that_is_missing_or_hangs_holds_up_neither_the_next_request_nor_the_end)
{
    auto nowhere = PowerAt("unix:path=" + bus.Folder() + "/nobody");
    bus.FallSilent();
    auto impatient = PowerAt(bus.Address(), 100ms);
    for (auto* power : { &nowhere, &impatient }) {
        EXPECT_TRUE(power->Restart());
        EXPECT_TRUE(IsTakenAgain(*power));
    }
    EXPECT_TRUE(PowerAt(bus.Address()).Restart());
}

class SleepInhibitorLinuxTest : public OnPrivateBus {
protected:
    /// Session services of these names; "gone" is noted when who asked leaves the bus.
    std::unique_ptr<BusService> Serve(const QStringList& names)
    {
        watcher.reset(); // it keeps a connection open
        auto service = std::make_unique<BusService>(bus, names, [this](const QDBusMessage& call) {
            const bool isPortal = call.interface().contains("portal");
            auto text = call.interface() + "." + call.member();
            if (call.member() != "Inhibit" || isPortal)
                text += " " + (call.member() == "Close" ? call.path() : call.arguments().at(isPortal).toString());
            asked.push_back(text.mid(QString("org.freedesktop.").size()).toStdString());
            watcher->addWatchedService(call.service());
            last = isPortal ? call.createReply(QVariant::fromValue(QDBusObjectPath("/request/7")))
                            : call.createReply(QVariant::fromValue(call.member() == "Inhibit" ? ++cookie : 0));
            return answersAtOnce ? std::optional(last) : std::nullopt;
        });
        watcher = std::make_unique<QDBusServiceWatcher>(
            QString(), service->Connection(), QDBusServiceWatcher::WatchForUnregistration);
        QObject::connect(watcher.get(), &QDBusServiceWatcher::serviceUnregistered, [this] { asked.push_back("gone"); });
        return service;
    }
    std::vector<std::string> Asked(std::size_t wanted)
    {
        RunUntil([&] { return asked.size() >= wanted; });
        return std::exchange(asked, {});
    }

    std::vector<std::string> asked;
    std::unique_ptr<QDBusServiceWatcher> watcher;
    QDBusMessage last;
    quint32 cookie = 40;
    bool answersAtOnce = true;
};

TEST_F(SleepInhibitorLinuxTest, screen_saver_and_sleep_are_held_off_once_and_released_at_the_latest_at_the_end)
{
    const auto session =
        Serve({ "org.freedesktop.ScreenSaver", "org.freedesktop.PowerManagement", "org.freedesktop.portal.Desktop" });
    {
        SessionSleepInhibitor inhibitor(bus.Address());
        inhibitor.Hold(false);
        inhibitor.Hold(true);
        inhibitor.Hold(true);
        EXPECT_THAT(Asked(2), UnorderedElementsAre("ScreenSaver.Inhibit", "PowerManagement.Inhibit.Inhibit"));
        inhibitor.Hold(false);
        EXPECT_THAT(Asked(2), UnorderedElementsAre("ScreenSaver.UnInhibit 41", "PowerManagement.Inhibit.UnInhibit 42"));
        inhibitor.Hold(true);
        EXPECT_EQ(Asked(2).size(), 2U);
        // An answer that comes after the pause is given back at once.
        inhibitor.Hold(false);
        EXPECT_EQ(Asked(2).size(), 2U);
        answersAtOnce = false;
        inhibitor.Hold(true);
        EXPECT_EQ(Asked(2).size(), 2U);
        inhibitor.Hold(false);
        session->Connection().send(last);
        EXPECT_EQ(Asked(1).size(), 1U);
        answersAtOnce = true;
    }
    EXPECT_EQ(Asked(1).back(), "gone");
}

TEST_F(SleepInhibitorLinuxTest, what_is_held_at_the_end_is_given_back_by_whichever_way_it_was_asked_for)
{
    const auto portal = Serve({ "org.freedesktop.portal.Desktop" });
    {
        SessionSleepInhibitor inhibitor(bus.Address());
        for (const auto* const wanted : { "Inhibit.Inhibit 12", "Request.Close /request/7", "Inhibit.Inhibit 12" }) {
            inhibitor.Hold(std::string_view(wanted).starts_with('I'));
            EXPECT_THAT(Asked(1), ElementsAre(std::string("portal.") + wanted));
        }
        std::this_thread::sleep_for(100ms); // the answer is on its way
    }
    EXPECT_THAT(Asked(2), ElementsAre("portal.Request.Close /request/7", "gone"));
}

TEST_F(SleepInhibitorLinuxTest, a_bus_and_a_service_that_come_later_or_anew_are_asked_while_it_is_still_held)
{
    const auto later = bus.Folder() + "/later";
    for (const auto& address : { "unix:path=" + later + "/nobody;" + bus.Address(), "unix:path=" + later + "/bus" }) {
        SessionSleepInhibitor inhibitor(address, 50ms);
        inhibitor.Hold(true);
        std::this_thread::sleep_for(100ms);
        std::filesystem::create_directory_symlink(bus.Folder(), later);
        for (const bool restarts : { false, false, true, true }) {
            if (restarts)
                bus.Restart();
            const auto session = Serve({ "org.freedesktop.ScreenSaver" });
            EXPECT_THAT(Asked(1), ElementsAre("ScreenSaver.Inhibit")) << address;
        }
        std::filesystem::remove(later);
    }
}

} // namespace
} // namespace zentaro::platform
