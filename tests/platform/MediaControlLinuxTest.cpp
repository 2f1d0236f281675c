#include "platform/MediaControl_linux.h"
#include "tests/platform/PrivateBus.h"

#include <gmock/gmock.h>

#include <functional>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using Kind = MediaCommand::Kind;

constexpr const char* kName = "org.mpris.MediaPlayer2.zentaro";

/// Hears the signals of every player on the bus.
class Listener {
public:
    explicit Listener(const std::string& address)
    {
        EXPECT_GE(sd_bus_new(&m_bus), 0);
        sd_bus_set_address(m_bus, address.c_str());
        sd_bus_set_bus_client(m_bus, 1);
        EXPECT_GE(sd_bus_start(m_bus), 0);
        EXPECT_GE(sd_bus_match_signal(
                      m_bus, nullptr, nullptr, "/org/mpris/MediaPlayer2", nullptr, nullptr, &Listener::OnSignal, this),
            0);
    }
    ~Listener() { sd_bus_flush_close_unref(m_bus); }

    std::vector<std::string> Next(std::size_t count)
    {
        const auto end = std::chrono::steady_clock::now() + 10s;
        while (m_heard.size() < count && std::chrono::steady_clock::now() < end)
            if (sd_bus_process(m_bus, nullptr) == 0)
                sd_bus_wait(m_bus, 10'000);
        return std::exchange(m_heard, {});
    }

private:
    static int OnSignal(sd_bus_message* message, void* listener, sd_bus_error*)
    {
        static_cast<Listener*>(listener)->m_heard.push_back(sd_bus_message_get_member(message));
        return 0;
    }

    sd_bus* m_bus = nullptr;
    std::vector<std::string> m_heard;
};

class MediaControlLinuxTest : public testing::Test {
protected:
    MediaControlLinuxTest()
    {
        status.playback = MediaPlayback::Playing;
        status.track = { 7, "One \xFF", "/clips/one two.mp4" };
        status.length = 90'000;
        status.position = 12'000;
        status.readAt = std::chrono::steady_clock::now();
        status.tracks = std::make_shared<const std::vector<MediaTrack>>(
            std::vector{ status.track, MediaTrack{ 8, "Two", "/clips/two.mp4" } });
    }

    std::string Call(const std::string& command) { return bus.OutputOf(command); }
    std::string Busctl(const std::string& command) { return Call("busctl --address=" + bus.Address() + " " + command); }
    void Publish(MprisControl& control)
    {
        control.Publish(status);
        for (int i = 0; i < 100 && Busctl("list --acquired --no-legend").find(kName) == std::string::npos; ++i)
            std::this_thread::sleep_for(20ms);
    }

    PrivateBus bus;
    std::mutex mutex;
    std::vector<MediaCommand> commands;
    std::function<void(MediaCommand)> noteCommand = [this](MediaCommand command) {
        const std::lock_guard lock(mutex);
        commands.push_back(std::move(command));
    };
    MediaStatus status;
};

TEST_F(MediaControlLinuxTest, WhatAClientWantsArrives)
{
    MprisControl control(bus.Address(), noteCommand);
    status.playback = MediaPlayback::Paused;
    Publish(control);
    EXPECT_EQ(Call("playerctl metadata title"), "One \xEF\xBF\xBD"); // a bus takes no other bytes
    for (const auto* const words : { "play", "pause", "play-pause", "stop", "next", "previous", "position 30",
             "position 5+", "volume 0.5", "loop Track", "shuffle On", "open file:///a%20b.mp4" })
        EXPECT_EQ(Call(std::string("playerctl ") + words), "") << words;
    const auto object = std::string(kName) + " /org/mpris/MediaPlayer2 org.mpris.MediaPlayer2";
    EXPECT_EQ(Busctl("set-property " + object + ".Player Rate d 2"), "");
    EXPECT_EQ(Busctl("set-property " + object + ".Player Volume d nan"), "");
    EXPECT_EQ(Busctl("set-property " + object + " Fullscreen b true"), "");
    EXPECT_EQ(Busctl("call " + object + ".TrackList GoTo o /org/zentaro/track/8"), "");
    EXPECT_EQ(Busctl("call " + object + ".TrackList RemoveTrack o /nothing"), "");
    EXPECT_EQ(Busctl("call " + object + ".TrackList AddTrack sob file:///c.mp4 /nothing false"), "");
    EXPECT_EQ(Busctl("call " + object + " Raise"), "");
    EXPECT_EQ(Busctl("call " + object + " Quit"), "");
    EXPECT_THAT(Busctl("set-property " + object + ".Player LoopStatus s Never"), HasSubstr("failed"));
    EXPECT_THAT(Busctl("call " + object + ".Player OpenUri s http://host/x.mp4"), HasSubstr("failed"));
    const std::lock_guard lock(mutex);
    EXPECT_THAT(commands,
        ElementsAre(MediaCommand{ Kind::Play }, MediaCommand{ Kind::Pause }, MediaCommand{ Kind::PlayPause },
            MediaCommand{ Kind::Stop }, MediaCommand{ Kind::Next }, MediaCommand{ Kind::Previous },
            MediaCommand{ .kind = Kind::SetPosition, .number = 30'000, .track = 7 },
            MediaCommand{ .kind = Kind::SeekBy, .number = 5'000 },
            MediaCommand{ .kind = Kind::SetVolume, .number = 0.5 },
            MediaCommand{ .kind = Kind::SetLoop, .loop = MediaLoop::Track },
            MediaCommand{ .kind = Kind::SetShuffle, .flag = true },
            MediaCommand{ .kind = Kind::OpenFile, .path = "/a b.mp4" },
            MediaCommand{ .kind = Kind::SetRate, .number = 2 },
            MediaCommand{ .kind = Kind::SetFullScreen, .flag = true },
            MediaCommand{ .kind = Kind::GoToTrack, .track = 8 }, MediaCommand{ Kind::RemoveTrack },
            MediaCommand{ .kind = Kind::AddFile, .path = "/c.mp4" }, MediaCommand{ Kind::Raise },
            MediaCommand{ Kind::Quit }));
}

TEST_F(MediaControlLinuxTest, ChangesAndJumpsAreAnnounced)
{
    MprisControl control(bus.Address(), noteCommand);
    Publish(control);
    Listener listener(bus.Address());
    Busctl("list"); // the listener is on the bus before what follows
    status.playback = MediaPlayback::Paused;
    control.Publish(status);
    EXPECT_THAT(listener.Next(1), ElementsAre("PropertiesChanged"));
    status.position = 60'000;
    control.Publish(status);
    EXPECT_THAT(listener.Next(1), ElementsAre("Seeked"));
    status.tracks = std::make_shared<const std::vector<MediaTrack>>(
        std::vector{ status.track, MediaTrack{ 9, "Three", "/clips/three.mp4" } });
    control.Publish(status);
    EXPECT_THAT(listener.Next(3), ElementsAre("PropertiesChanged", "TrackRemoved", "TrackAdded"));
}

TEST_F(MediaControlLinuxTest, ASecondPlayerHasANameOfItsOwn)
{
    MprisControl first(bus.Address(), noteCommand, 20ms);
    Publish(first);
    MprisControl second(bus.Address(), noteCommand, 20ms);
    second.Publish(status);
    const auto both = "zentaro\nzentaro.instance" + std::to_string(getpid());
    const auto names = [&] {
        std::string found;
        for (int i = 0; i < 100 && found != both; ++i) {
            std::this_thread::sleep_for(20ms);
            found = Call("playerctl -l | sort");
        }
        return found;
    };
    EXPECT_EQ(names(), both);
}

TEST(MediaControl, WithoutABusPublishingIsForNobodyAndWaitsForNobody)
{
    const WorkingFolder folder;
    const DeafBus deaf(folder / "deaf");
    for (const auto& address :
        { std::string(), std::string("nonsense:"), std::string("unix:path=/nonexistent"), deaf.Address() }) {
        const auto start = std::chrono::steady_clock::now();
        {
            MprisControl control(address, [](const MediaCommand&) {});
            control.Publish({});
        }
        EXPECT_LT(std::chrono::steady_clock::now() - start, 1s) << address;
    }
}

} // namespace
} // namespace zentaro::platform
