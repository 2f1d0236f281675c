#include "platform/MediaControl_linux.h"
#include "tests/platform/BusService.h"

#include <gmock/gmock.h>

#include <functional>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using Kind = MediaCommand::Kind;

constexpr const char* kName = "org.mpris.MediaPlayer2.zentaro";

class MediaControlLinuxTest : public OnPrivateBus {
protected:
    MediaControlLinuxTest()
    {
        status.playback = MediaPlayback::Paused;
        status.track = { 7, "One \xFF", "/clips/one two.mp4", "Who", "Low Tide", 3, 987 };
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
    /// On the object, whose interfaces begin alike; "@" stands for both.
    std::string Busctl(std::string command) const
    {
        const auto object = std::string(kName) + " /org/mpris/MediaPlayer2 org.mpris.MediaPlayer2";
        return bus.OutputOf("busctl --address=" + bus.Address() + " " + command.replace(command.find('@'), 1, object));
    }
    bool HasPlayers(const std::string& players) const
    {
        return RunUntil([&] { return bus.OutputOf("playerctl -l | sort") == players; });
    }
    void Publish(MprisControl& control) const
    {
        control.Publish(status);
        ASSERT_TRUE(HasPlayers("zentaro"));
    }

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
    EXPECT_EQ(bus.OutputOf("sh -c 'for what in status position volume loop shuffle; do playerctl $what; done'"),
        "Paused\n12.000000\n1.000000\nNone\nOff");
    EXPECT_EQ(bus.OutputOf("playerctl metadata -f "
                           "'{{artist}}|{{album}}|{{xesam:trackNumber}}|{{xesam:contentCreated}}|{{title}}|{{xesam:url}"
                           "}|{{mpris:artUrl}}|{{mpris:length}}|{{mpris:trackid}}'"),
        "Who|Low Tide|3|0987-01-01T00:00:00Z|One "
        "\xEF\xBF\xBD|file:///clips/one%20two.mp4|file:///tmp/art.png|90000000|'/org/zentaro/track/7'");
    EXPECT_THAT(Busctl("call @.TrackList GetTracksMetadata ao 2 /org/zentaro/track/8 /org/zentaro/track/99"),
        testing::StartsWith("aa{sv} 1 3 \"mpris:trackid\" o \"/org/zentaro/track/8\" \"xesam:title\" s \"Two\""));
    EXPECT_EQ(Busctl("get-property @ CanQuit CanSetFullscreen CanRaise HasTrackList Identity DesktopEntry Fullscreen "
                     "SupportedUriSchemes"),
        "b true\nb true\nb true\nb true\ns \"Zentaro\"\ns \"zentaro\"\nb false\nas 1 \"file\"");
    EXPECT_EQ(Busctl("get-property @.Player MinimumRate MaximumRate CanGoNext CanGoPrevious CanPlay CanPause CanSeek "
                     "CanControl"),
        "d 0.125\nd 16\nb true\nb true\nb true\nb true\nb true\nb true");
    EXPECT_EQ(Busctl("get-property @.TrackList CanEditTracks Tracks"),
        "b true\nao 2 \"/org/zentaro/track/7\" \"/org/zentaro/track/8\"");
    EXPECT_THAT(Busctl("get-property @ SupportedMimeTypes"), HasSubstr(" \"video/x-matroska\" "));
}

TEST_F(MediaControlLinuxTest, what_a_client_wants_arrives)
{
    MprisControl control(bus.Address(), noteCommand);
    Publish(control);
    for (const auto* const words : { "play", "pause", "play-pause", "stop", "next", "previous", "position 30",
             "position 5+", "volume 0.5", "loop Track", "shuffle On", "open file:///a%20b.mp4" })
        EXPECT_EQ(bus.OutputOf(std::string("playerctl ") + words), "") << words;
    const std::pair<const char*, const char*> calls[] = { { "set-property @.Player Rate d 2", "" },
        { "set-property @.Player Volume d nan", "" }, { "set-property @ Fullscreen b true", "" },
        { "call @.TrackList GoTo o /org/zentaro/track/8", "" }, { "call @.TrackList RemoveTrack o /nothing", "" },
        { "call @.TrackList AddTrack sob file:///c.mp4 /nothing false", "" },
        { "call @.TrackList AddTrack sob http://host/x.mp4 /nothing false", "failed" },
        { "set-property @.Player LoopStatus s Never", "failed" },
        { "call @.Player OpenUri s http://host/x.mp4", "failed" }, { "call @ Raise", "" }, { "call @ Quit", "" } };
    for (const auto& [words, answer] : calls)
        EXPECT_THAT(Busctl(words), testing::EndsWith(answer)) << words;
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
    const auto monitor = std::move(
        *ChildProcess::Start({ "dbus-monitor", { "--address", bus.Address(), "path=/org/mpris/MediaPlayer2" }, "" }));
    PrintedUpTo(*monitor, "member=NameLost");
    status.playback = MediaPlayback::Playing;
    control.Publish(status);
    EXPECT_THAT(PrintedUpTo(*monitor, "\"Playing\""), HasSubstr("\"PlaybackStatus\""));
    status.position = 60'000;
    control.Publish(status);
    const auto jump = PrintedUpTo(*monitor, "int64 60000000");
    EXPECT_THAT(jump, AllOf(HasSubstr("member=Seeked"), Not(HasSubstr("PropertiesChanged"))));
    status.tracks = TracksWith({ 9, "Three", "/clips/three.mp4" });
    control.Publish(status);
    EXPECT_THAT(PrintedUpTo(*monitor, "\"/org/zentaro/track/8\""),
        AllOf(HasSubstr("\"Tracks\""), HasSubstr("member=TrackRemoved"), Not(HasSubstr("Seeked"))));
    EXPECT_THAT(PrintedUpTo(*monitor, "\"Three\""), HasSubstr("member=TrackAdded"));
}

TEST_F(MediaControlLinuxTest, a_second_player_has_a_name_of_its_own_and_both_come_back_with_the_bus)
{
    MprisControl first(bus.Address(), noteCommand, 20ms);
    Publish(first);
    MprisControl second(bus.Address(), noteCommand, 20ms);
    second.Publish(status);
    const auto both = "zentaro\nzentaro.instance" + std::to_string(getpid());
    EXPECT_TRUE(HasPlayers(both));
    bus.Restart();
    EXPECT_TRUE(HasPlayers(both));
}

TEST_F(MediaControlLinuxTest, without_a_bus_publishing_is_for_nobody_and_waits_for_nobody)
{
    bus.FallSilent();
    for (const auto& address :
        { std::string(), std::string("nonsense:"), std::string("unix:path=/nonexistent"), bus.Address() }) {
        MprisControl control(address, noteCommand);
        control.Publish({});
    }
}

} // namespace
} // namespace zentaro::platform
