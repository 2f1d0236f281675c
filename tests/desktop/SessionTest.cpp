#include "tests/desktop/PlayerDesk.h"
#include "tests/platform/PrivateBus.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <systemd/sd-bus.h>

namespace zentaro::trial {
namespace {

/// The session's screen saver, which counts who holds it off.
class ScreenSaver {
public:
    explicit ScreenSaver(const std::string& address)
    {
        sd_bus_new(&m_bus);
        sd_bus_set_address(m_bus, address.c_str());
        sd_bus_set_bus_client(m_bus, 1);
        EXPECT_GE(sd_bus_start(m_bus), 0);
        EXPECT_GE(sd_bus_add_filter(m_bus, nullptr, &ScreenSaver::OnMessage, this), 0);
        EXPECT_GE(sd_bus_request_name(m_bus, "org.freedesktop.ScreenSaver", 0), 0);
    }
    ScreenSaver(const ScreenSaver&) = delete;
    ~ScreenSaver() { sd_bus_flush_close_unref(m_bus); }

    bool BecomesHeldBy(int holders)
    {
        return WaitUntil([&] {
            while (sd_bus_process(m_bus, nullptr) > 0)
                ;
            return m_holders == holders;
        });
    }
    int TimesHeld() const { return m_times; }

private:
    static int OnMessage(sd_bus_message* message, void* screenSaver, sd_bus_error*)
    {
        auto& self = *static_cast<ScreenSaver*>(screenSaver);
        if (sd_bus_message_is_method_call(message, "org.freedesktop.ScreenSaver", "Inhibit") > 0) {
            ++self.m_holders;
            return sd_bus_reply_method_return(message, "u", ++self.m_times);
        }
        if (sd_bus_message_is_method_call(message, "org.freedesktop.ScreenSaver", "UnInhibit") > 0) {
            --self.m_holders;
            return sd_bus_reply_method_return(message, "");
        }
        return 0;
    }

    sd_bus* m_bus = nullptr;
    int m_holders = 0;
    int m_times = 0;
};

class Session : public PlayerDesk {
protected:
    ShownPlayer ShowInSession(const std::vector<std::string>& arguments)
    {
        return Show(Start(arguments, ".", { "DBUS_SESSION_BUS_ADDRESS=" + bus.Address() }));
    }
    std::string Ctl(const std::string& words) const { return bus.OutputOf("playerctl -p zentaro " + words); }
    bool Becomes(const std::string& question, const std::string& answer) const
    {
        const bool isSo = WaitUntil([&] { return Ctl(question) == answer; });
        EXPECT_TRUE(isSo) << question << ": " << Ctl(question);
        return isSo;
    }

    platform::PrivateBus bus;
};

TEST_F(Session, MediaKeysAndScreenSaverGoWithThePlayer)
{
    auto screenSaver = std::make_unique<ScreenSaver>(bus.Address());
    const auto first = ClipNamed("first one.mp4");
    const auto second = CopyOf(Clips::Make("tone.wav"), "second.wav");
    auto player = ShowInSession({ first });
    Becomes("status", "Playing");
    EXPECT_TRUE(screenSaver->BecomesHeldBy(1));
    Becomes("metadata -f '{{title}} {{xesam:url}}'", "first one.mp4 file://" + Home() + "/first%20one.mp4");
    EXPECT_TRUE(WaitUntil([&] { return std::abs(std::atof(Ctl("metadata mpris:length").c_str()) - 20e6) < 1e6; }));
    const auto artwork = Ctl("metadata mpris:artUrl");
    EXPECT_TRUE(std::filesystem::exists(artwork.substr(std::string("file://").size()))) << artwork;

    EXPECT_EQ(Ctl("pause"), "");
    Becomes("status", "Paused");
    EXPECT_TRUE(screenSaver->BecomesHeldBy(0));
    EXPECT_EQ(Ctl("position 15"), "");
    EXPECT_TRUE(WaitUntil([&] { return std::abs(std::atof(Ctl("position").c_str()) - 15) < 0.5; }));
    Ctl("pause");
    Becomes("status", "Paused");
    EXPECT_EQ(Ctl("play"), "");
    Becomes("status", "Playing");
    EXPECT_GT(std::atof(Ctl("position").c_str()), 14) << "it went on, and did not begin again";
    EXPECT_TRUE(screenSaver->BecomesHeldBy(1));

    EXPECT_EQ(Ctl("open " + second), "");
    Becomes("metadata title", "second.wav");
    EXPECT_TRUE(screenSaver->BecomesHeldBy(0));
    EXPECT_EQ(Ctl("previous"), "");
    EXPECT_TRUE(player.WaitForTitle("first one.mp4"));
    EXPECT_TRUE(screenSaver->BecomesHeldBy(1));

    // The session's bus is started anew, and the player plays on.
    screenSaver.reset();
    bus.Restart();
    screenSaver = std::make_unique<ScreenSaver>(bus.Address());
    Becomes("status", "Playing");
    EXPECT_TRUE(screenSaver->BecomesHeldBy(1));
    EXPECT_EQ(Ctl("stop"), "");
    Becomes("status", "Stopped");
    EXPECT_TRUE(screenSaver->BecomesHeldBy(0));
    Ctl("play");
    EXPECT_TRUE(screenSaver->BecomesHeldBy(1));
    EXPECT_EQ(bus.OutputOf("busctl --address=" + bus.Address()
                  + " call org.mpris.MediaPlayer2.zentaro /org/mpris/MediaPlayer2 org.mpris.MediaPlayer2 Quit"),
        "");
    EXPECT_ENDED_CLEANLY(player);
    EXPECT_TRUE(screenSaver->BecomesHeldBy(0));
}

} // namespace
} // namespace zentaro::trial
