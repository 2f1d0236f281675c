#include "platform/MediaControl_linux.h"
#include "tests/platform/PrivateBus.h"

#include <gmock/gmock.h>

#include <functional>
#include <sstream>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using Kind = MediaCommand::Kind;

constexpr const char* kName = "org.mpris.MediaPlayer2.zentaro";

/// Name, kind, types and flags as `busctl introspect` prints them: the three interfaces, without values.
constexpr const char* kStandard = R"(
.Quit method - -
.Raise method - -
.CanQuit property b emits-change
.CanRaise property b emits-change
.CanSetFullscreen property b emits-change
.DesktopEntry property s emits-change
.Fullscreen property b emits-change writable
.HasTrackList property b emits-change
.Identity property s emits-change
.SupportedMimeTypes property as emits-change
.SupportedUriSchemes property as emits-change
.Next method - -
.OpenUri method s -
.Pause method - -
.Play method - -
.PlayPause method - -
.Previous method - -
.Seek method x -
.SetPosition method ox -
.Stop method - -
.CanControl property b -
.CanGoNext property b emits-change
.CanGoPrevious property b emits-change
.CanPause property b emits-change
.CanPlay property b emits-change
.CanSeek property b emits-change
.LoopStatus property s emits-change writable
.MaximumRate property d emits-change
.Metadata property a{sv} emits-change
.MinimumRate property d emits-change
.PlaybackStatus property s emits-change
.Position property x -
.Rate property d emits-change writable
.Shuffle property b emits-change writable
.Volume property d emits-change writable
.Seeked signal x -
.AddTrack method sob -
.GetTracksMetadata method ao aa{sv}
.GoTo method o -
.RemoveTrack method o -
.CanEditTracks property b emits-change
.Tracks property ao emits-invalidation
.TrackAdded signal a{sv}o -
.TrackListReplaced signal aoo -
.TrackMetadataChanged signal oa{sv} -
.TrackRemoved signal o -
)";

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

    /// The next signals, with the first thing that each tells.
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
        std::string text = sd_bus_message_get_member(message);
        const char* value = nullptr;
        std::int64_t number = 0;
        if (text == "PropertiesChanged") {
            sd_bus_message_skip(message, "s");
            sd_bus_message_enter_container(message, 'a', "{sv}");
            while (sd_bus_message_enter_container(message, 'e', "sv") > 0) {
                sd_bus_message_read(message, "s", &value);
                text += std::string(" ") + value;
                sd_bus_message_skip(message, "v");
                sd_bus_message_exit_container(message);
            }
        } else if (text == "Seeked" && sd_bus_message_read(message, "x", &number) > 0) {
            text += " " + std::to_string(number);
        } else if (text == "TrackRemoved" && sd_bus_message_read(message, "o", &value) > 0) {
            text += std::string(" ") + value;
        }
        static_cast<Listener*>(listener)->m_heard.push_back(text);
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
        status.artwork = "/tmp/art.png";
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

TEST_F(MediaControlLinuxTest, ItsInterfacesAreThoseOfTheStandard)
{
    MprisControl control(bus.Address(), noteCommand);
    Publish(control);
    std::string found = "\n";
    for (const auto* const interface : { "", ".Player", ".TrackList" }) {
        std::istringstream lines(Busctl(std::string("introspect --no-legend ") + kName
            + " /org/mpris/MediaPlayer2 org.mpris.MediaPlayer2" + interface));
        std::string line;
        while (std::getline(lines, line)) {
            std::istringstream words(line);
            std::string name, kind, types, result, word, flags;
            words >> name >> kind >> types >> result;
            while (words >> word)
                if (word == "writable" || word.starts_with("emits-"))
                    flags += " " + word;
            const bool isProperty = kind == "property";
            found +=
                name + " " + kind + " " + types + (isProperty ? (flags.empty() ? " -" : flags) : " " + result) + "\n";
        }
    }
    EXPECT_EQ(found, kStandard);
}

TEST_F(MediaControlLinuxTest, AClientReadsWhatWasPublished)
{
    MprisControl control(bus.Address(), noteCommand);
    status.playback = MediaPlayback::Paused;
    Publish(control);
    EXPECT_EQ(Call("playerctl -l"), "zentaro");
    EXPECT_EQ(Call("playerctl status"), "Paused");
    EXPECT_EQ(
        Call("playerctl metadata -f '{{title}}|{{xesam:url}}|{{mpris:artUrl}}|{{mpris:length}}|{{mpris:trackid}}'"),
        "One \xEF\xBF\xBD|file:///clips/one%20two.mp4|file:///tmp/art.png|90000000|'/org/zentaro/track/7'");
    EXPECT_EQ(Call("playerctl position"), "12.000000");
    EXPECT_EQ(Call("playerctl volume"), "1.000000");
    EXPECT_EQ(Call("playerctl loop"), "None");
    EXPECT_EQ(Call("playerctl shuffle"), "Off");
    EXPECT_THAT(Busctl(std::string("call ") + kName
                    + " /org/mpris/MediaPlayer2 org.mpris.MediaPlayer2.TrackList GetTracksMetadata ao 2 "
                      "/org/zentaro/track/8 /org/zentaro/track/99"),
        testing::StartsWith("aa{sv} 1 3 \"mpris:trackid\" o \"/org/zentaro/track/8\" \"xesam:title\" s \"Two\""));
}

TEST_F(MediaControlLinuxTest, WhatAClientWantsArrives)
{
    MprisControl control(bus.Address(), noteCommand);
    status.playback = MediaPlayback::Paused;
    Publish(control);
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
    EXPECT_THAT(listener.Next(1), ElementsAre("PropertiesChanged PlaybackStatus"));
    status.position = 60'000;
    control.Publish(status);
    EXPECT_THAT(listener.Next(1), ElementsAre("Seeked 60000000"));
    status.tracks = std::make_shared<const std::vector<MediaTrack>>(
        std::vector{ status.track, MediaTrack{ 9, "Three", "/clips/three.mp4" } });
    control.Publish(status);
    EXPECT_THAT(listener.Next(3), ElementsAre("PropertiesChanged", "TrackRemoved /org/zentaro/track/8", "TrackAdded"));
}

TEST_F(MediaControlLinuxTest, ASecondPlayerHasANameOfItsOwnAndBothComeBackWithTheBus)
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
    bus.Restart();
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
