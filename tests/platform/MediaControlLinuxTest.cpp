#include "platform/MediaControl_linux.h"
#include "tests/platform/PrivateBus.h"

#include <gmock/gmock.h>

#include <functional>
#include <map>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using Kind = MediaCommand::Kind;

constexpr const char* kName = "org.mpris.MediaPlayer2.zentaro";

/// Hears the signals of every player on the bus.
class Listener {
public:
    explicit Listener(const std::string& address)
        : m_bus(ConnectToBus(address, 10s))
    {
        EXPECT_GE(sd_bus_match_signal(m_bus.get(), nullptr, nullptr, "/org/mpris/MediaPlayer2", nullptr, nullptr,
                      &Listener::OnSignal, this),
            0);
    }

    /// The next signals with all that they tell.
    std::vector<std::string> Next(std::size_t count)
    {
        const auto end = std::chrono::steady_clock::now() + 30s;
        while (m_heard.size() < count && std::chrono::steady_clock::now() < end)
            if (sd_bus_process(m_bus.get(), nullptr) == 0)
                sd_bus_wait(m_bus.get(), 10'000);
        return std::exchange(m_heard, {});
    }

private:
    static int OnSignal(sd_bus_message* message, void* listener, sd_bus_error*)
    {
        char* text = nullptr;
        std::size_t size = 0;
        auto* const file = open_memstream(&text, &size);
        sd_bus_message_dump(message, file, 0);
        std::fclose(file);
        static_cast<Listener*>(listener)->m_heard.push_back(
            sd_bus_message_get_member(message) + (" " + std::string(text, size)));
        std::free(text);
        return 0;
    }

    Bus m_bus;
    std::vector<std::string> m_heard;
};

class MediaControlLinuxTest : public testing::Test {
protected:
    MediaControlLinuxTest()
    {
        status.playback = MediaPlayback::Paused;
        status.track = { 7, "One \xFF", "/clips/one two.mp4" };
        status.artwork = "/tmp/art.png";
        status.length = 90'000;
        status.position = 12'000;
        status.readAt = std::chrono::steady_clock::now();
        status.tracks = TracksWith({ 8, "Two", "/clips/two.mp4" });
    }

    MediaTracks TracksWith(const MediaTrack& second) const
    {
        return std::make_shared<const std::vector<MediaTrack>>(std::vector{ status.track, second });
    }
    std::string Call(const std::string& command) const { return bus.OutputOf(command); }
    /// On the object, whose interfaces begin alike; "@" stands for both.
    std::string Busctl(std::string command) const
    {
        const auto object = std::string(kName) + " /org/mpris/MediaPlayer2 org.mpris.MediaPlayer2";
        return Call("busctl --address=" + bus.Address() + " " + command.replace(command.find('@'), 1, object));
    }
    std::string PlayersOnceThere(const std::string& wanted) const
    {
        std::string found;
        for (int i = 0; i < 300 && found != wanted; ++i) {
            std::this_thread::sleep_for(20ms);
            found = Call("playerctl -l | sort");
        }
        return found;
    }
    void Publish(MprisControl& control) const
    {
        control.Publish(status);
        EXPECT_EQ(PlayersOnceThere("zentaro"), "zentaro");
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

TEST_F(MediaControlLinuxTest, a_client_reads_what_was_published)
{
    MprisControl control(bus.Address(), noteCommand);
    Publish(control);
    EXPECT_EQ(Call("sh -c 'for what in status position volume loop shuffle; do playerctl $what; done'"),
        "Paused\n12.000000\n1.000000\nNone\nOff");
    EXPECT_EQ(
        Call("playerctl metadata -f '{{title}}|{{xesam:url}}|{{mpris:artUrl}}|{{mpris:length}}|{{mpris:trackid}}'"),
        "One \xEF\xBF\xBD|file:///clips/one%20two.mp4|file:///tmp/art.png|90000000|'/org/zentaro/track/7'");
    EXPECT_THAT(Busctl("call @.TrackList GetTracksMetadata ao 2 /org/zentaro/track/8 /org/zentaro/track/99"),
        testing::StartsWith("aa{sv} 1 3 \"mpris:trackid\" o \"/org/zentaro/track/8\" \"xesam:title\" s \"Two\""));
    for (const auto& [property, value] :
        std::map<std::string, std::string>{ { " CanQuit", "b true" }, { " CanSetFullscreen", "b true" },
            { " CanRaise", "b true" }, { " HasTrackList", "b true" }, { " Identity", "s \"Zentaro\"" },
            { " DesktopEntry", "s \"zentaro\"" }, { " Fullscreen", "b false" },
            { " SupportedUriSchemes", "as 1 \"file\"" }, { ".Player MinimumRate", "d 0.125" },
            { ".Player MaximumRate", "d 16" }, { ".Player CanGoNext", "b true" }, { ".Player CanGoPrevious", "b true" },
            { ".Player CanPlay", "b true" }, { ".Player CanPause", "b true" }, { ".Player CanSeek", "b true" },
            { ".Player CanControl", "b true" }, { ".TrackList CanEditTracks", "b true" },
            { ".TrackList Tracks", "ao 2 \"/org/zentaro/track/7\" \"/org/zentaro/track/8\"" } })
        EXPECT_EQ(Busctl("get-property @" + property), value);
    EXPECT_THAT(Busctl("get-property @ SupportedMimeTypes"), HasSubstr(" \"video/x-matroska\" "));
}

TEST_F(MediaControlLinuxTest, what_a_client_wants_arrives)
{
    MprisControl control(bus.Address(), noteCommand);
    Publish(control);
    for (const auto* const words : { "play", "pause", "play-pause", "stop", "next", "previous", "position 30",
             "position 5+", "volume 0.5", "loop Track", "shuffle On", "open file:///a%20b.mp4" })
        EXPECT_EQ(Call(std::string("playerctl ") + words), "") << words;
    for (const auto* const words :
        { "set-property @.Player Rate d 2", "set-property @.Player Volume d nan", "set-property @ Fullscreen b true",
            "call @.TrackList GoTo o /org/zentaro/track/8", "call @.TrackList RemoveTrack o /nothing",
            "call @.TrackList AddTrack sob file:///c.mp4 /nothing false", "call @ Raise", "call @ Quit" })
        EXPECT_EQ(Busctl(words), "") << words;
    for (const auto* const words :
        { "set-property @.Player LoopStatus s Never", "call @.Player OpenUri s http://host/x.mp4" })
        EXPECT_THAT(Busctl(words), HasSubstr("failed")) << words;
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

TEST_F(MediaControlLinuxTest, changes_and_jumps_are_announced)
{
    MprisControl control(bus.Address(), noteCommand);
    Publish(control);
    Listener listener(bus.Address());
    status.playback = MediaPlayback::Playing;
    control.Publish(status);
    EXPECT_THAT(listener.Next(1), ElementsAre(HasSubstr("\"PlaybackStatus\"")));
    status.position = 60'000;
    control.Publish(status);
    EXPECT_THAT(listener.Next(1), ElementsAre(AllOf(HasSubstr("Seeked"), HasSubstr("INT64 60000000;"))));
    status.tracks = TracksWith({ 9, "Three", "/clips/three.mp4" });
    control.Publish(status);
    EXPECT_THAT(listener.Next(3),
        ElementsAre(HasSubstr("\"Tracks\""), AllOf(HasSubstr("TrackRemoved"), HasSubstr("/org/zentaro/track/8")),
            AllOf(HasSubstr("TrackAdded"), HasSubstr("\"Three\""))));
}

TEST_F(MediaControlLinuxTest, a_second_player_has_a_name_of_its_own_and_both_come_back_with_the_bus)
{
    MprisControl first(bus.Address(), noteCommand, 20ms);
    Publish(first);
    MprisControl second(bus.Address(), noteCommand, 20ms);
    second.Publish(status);
    const auto both = "zentaro\nzentaro.instance" + std::to_string(getpid());
    EXPECT_EQ(PlayersOnceThere(both), both);
    bus.Restart();
    EXPECT_EQ(PlayersOnceThere(both), both);
}

TEST_F(MediaControlLinuxTest, without_a_bus_publishing_is_for_nobody_and_waits_for_nobody)
{
    const DeafBus deaf(bus.Folder() + "/deaf");
    for (const auto& address :
        { std::string(), std::string("nonsense:"), std::string("unix:path=/nonexistent"), deaf.Address() }) {
        const auto start = std::chrono::steady_clock::now();
        {
            MprisControl control(address, noteCommand);
            control.Publish({});
        }
        EXPECT_LT(std::chrono::steady_clock::now() - start, 10s) << address;
    }
}

} // namespace
} // namespace zentaro::platform
