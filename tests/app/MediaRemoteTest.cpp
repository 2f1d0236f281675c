#include "app/MediaRemote.h"
#include "desktop/MprisRules.h"
#include "tests/app/PlayerFixture.h"

using namespace zentaro;

namespace {

/// A player with the desktop's media controls on it.
class MediaRemoteTest : public PlayerTest {
protected:
    using Kind = platform::MediaCommand::Kind;
    using Playback = platform::MediaPlayback;

    platform::MediaStatus Do(const platform::MediaCommand& command)
    {
        remote->Do(command);
        world.Settle();
        return remote->Status();
    }
    void StartRemote(int count)
    {
        StartWithEntries(count, kPlayContinuous, kRepeatAll);
        remote.emplace(*world.player,
            MediaRemote::Window{ [] {}, [] {}, [this] { return world.window.isFullScreen; },
                [](std::uint64_t, const Picture& picture) { return std::to_string(picture.Width()); } });
        trace.length = 60'000;
        trace.time = 10'000;
    }
    std::optional<MediaRemote> remote;
};

} // namespace

TEST_F(MediaRemoteTest, play_and_pause_say_what_is_wanted_and_never_toggle)
{
    StartRemote(2);
    for (const auto& [kind, playback] : { std::pair(Kind::Play, Playback::Playing), { Kind::Pause, Playback::Paused },
             { Kind::Pause, Playback::Paused }, { Kind::Play, Playback::Playing },
             { Kind::PlayPause, Playback::Paused }, { Kind::PlayPause, Playback::Playing } })
        EXPECT_EQ(Do({ .kind = kind }).playback, playback);
    EXPECT_EQ(Starts(), 1U); // went on, and did not begin again
    EXPECT_TRUE(Do({ .kind = Kind::SetFullScreen, .flag = true }).fullScreen);
    EXPECT_FALSE(Do({ .kind = Kind::SetFullScreen, .flag = false }).fullScreen);
    EXPECT_EQ(Do({ .kind = Kind::Stop }).playback, Playback::Stopped);
    EXPECT_FALSE(Do({ .kind = Kind::SetFullScreen, .flag = true }).fullScreen);
    EXPECT_EQ(remote->Status().track.id, 0U);
    Do({ .kind = Kind::Pause });
    Do({ .kind = Kind::Stop });
    EXPECT_EQ(trace.stops, 1);
    EXPECT_EQ(Do({ .kind = Kind::PlayPause }).playback, Playback::Playing);
    EXPECT_EQ(Starts(), 2U);
}

TEST_F(MediaRemoteTest, without_an_entry_play_asks_nobody_for_files)
{
    StartRemote(0);
    for (const auto kind : { Kind::Play, Kind::PlayPause, Kind::Next, Kind::Stop })
        EXPECT_EQ(Do({ .kind = kind }).playback, Playback::Stopped);
    EXPECT_EQ(world.dialogs.asked, 0);
    EXPECT_FALSE(desktop::CanPlay(remote->Status()));
}

TEST_F(MediaRemoteTest, seeking_stays_in_the_item_or_goes_on_to_the_next)
{
    StartRemote(2);
    const auto track = remote->Status().track.id;
    EXPECT_EQ(Do({ .kind = Kind::SeekBy, .number = -15'000 }).position, 0);
    EXPECT_EQ(Do({ .kind = Kind::SetPosition, .number = 30'000, .track = track }).position, 30'000);
    Do({ .kind = Kind::SetPosition, .number = 40'000, .track = track + 1 }); // of an item that is gone
    Do({ .kind = Kind::SetPosition, .number = 60'001, .track = track });
    Do({ .kind = Kind::SetPosition, .number = -1, .track = track });
    EXPECT_EQ(remote->Status().position, 30'000);
    EXPECT_EQ(Do({ .kind = Kind::SeekBy, .number = 30'001 }).track.path, "/b.avi");
}

TEST_F(MediaRemoteTest, modes_rate_and_volume_follow_and_unwanted_numbers_become_the_nearest)
{
    StartRemote(2);
    EXPECT_EQ(Do({ .kind = Kind::SetLoop, .loop = platform::MediaLoop::Track }).loop, platform::MediaLoop::Track);
    EXPECT_EQ(world.player->Settings().RepeatMode, kRepeatSingle);
    world.player->Sequence().PBNormal();
    remote->Status();
    EXPECT_TRUE(Do({ .kind = Kind::SetShuffle, .flag = true }).shuffle);
    int draws = 0;
    world.random = [&draws] { return draws++ % 2 * 0.9; };
    EXPECT_TRUE(Do({ .kind = Kind::SetShuffle, .flag = true }).shuffle);
    world.player->Entries().Order().At(0);
    const int drawn = draws;
    EXPECT_TRUE(Do({ .kind = Kind::SetShuffle, .flag = true }).shuffle);
    world.player->Entries().Order().At(0);
    EXPECT_EQ(draws, drawn); // the order stays
    EXPECT_FALSE(Do({ .kind = Kind::SetShuffle, .flag = false }).shuffle);
    EXPECT_EQ(world.player->Settings().PlayMode, kPlayNormal);
    for (const auto& [wanted, got] : { std::pair(1.9, 2.0), { 100, 16 }, { 0.01, 0.125 }, { -1, 0.125 } }) {
        Do({ .kind = Kind::SetRate, .number = wanted });
        EXPECT_EQ(world.player->State().chosenRate, got);
    }
    EXPECT_EQ(Do({ .kind = Kind::SetRate, .number = 0 }).playback, Playback::Paused);
    EXPECT_EQ(Do({ .kind = Kind::SetVolume, .number = 0.5 }).volume, 0.5);
    EXPECT_EQ(Do({ .kind = Kind::SetVolume, .number = 7 }).volume, 1);
    EXPECT_EQ(Do({ .kind = Kind::SetVolume, .number = -7 }).volume, 0);
}

TEST_F(MediaRemoteTest, tracks_keep_their_numbers_and_an_item_taken_off_the_list_plays_on)
{
    StartRemote(3);
    const auto tracks = *remote->Status().tracks;
    EXPECT_EQ(Do({ .kind = Kind::GoToTrack, .track = tracks[2].id }).track, tracks[2]);
    EXPECT_EQ(*Do({ .kind = Kind::RemoveTrack, .track = tracks[0].id }).tracks, (std::vector{ tracks[1], tracks[2] }));
    EXPECT_EQ(world.player->Entries().List().SelectedText(), tracks[2].title);
    world.player->Entries().List().Press(FancyListItems::kNone);
    EXPECT_EQ(Do({ .kind = Kind::RemoveTrack, .track = tracks[2].id }).track, tracks[2]);
    EXPECT_EQ(world.player->Entries().List().SelectedItem(), FancyListItems::kNone);
    Do({ .kind = Kind::GoToTrack, .track = tracks[2].id });
    EXPECT_EQ(remote->Status().playback, Playback::Playing);
    EXPECT_EQ(Starts(), 2U);
}

TEST_F(MediaRemoteTest, a_picture_that_comes_later_is_told_and_a_better_one_after_it)
{
    StartRemote(1);
    auto& entries = world.player->Entries();
    const auto track = remote->Status().track.id;
    for (const int width : { 160, 256 }) {
        entries.SetThumbnail(
            track, Picture(width, 1, std::vector<std::uint32_t>(static_cast<std::size_t>(width))), true);
        EXPECT_EQ(remote->Status().artwork, std::to_string(width));
    }
    entries.SetThumbnail(track, {}, true); // its row is far from sight
    EXPECT_EQ(remote->Status().artwork, "256");
}
