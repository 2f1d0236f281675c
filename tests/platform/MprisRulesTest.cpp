#include "desktop/MprisRules.h"

#include <gmock/gmock.h>

using namespace zentaro::desktop;
using namespace std::chrono_literals;
using testing::ElementsAre;

namespace {

MediaStatus PlayingStatus()
{
    MediaStatus status;
    status.playback = MediaPlayback::Playing;
    status.track = { 7, "One", "/one.mp4" };
    status.length = 60'000;
    status.position = 10'000;
    status.readAt = std::chrono::steady_clock::time_point(1h);
    return status;
}

MediaTracks Tracks(const std::vector<std::uint64_t>& ids)
{
    std::vector<MediaTrack> tracks;
    for (const auto id : ids)
        tracks.push_back({ id, {}, {} });
    return std::make_shared<const std::vector<MediaTrack>>(std::move(tracks));
}

} // namespace

TEST(MprisRules, a_path_of_any_bytes_survives_its_uri)
{
    const std::string path = "/a b/100%/#?\"\xFF\xC3\xA4.mp4";
    EXPECT_EQ(FileUri(path), "file:///a%20b/100%25/%23%3F%22%FF%C3%A4.mp4");
    EXPECT_EQ(PathOfFileUri(FileUri(path)), path);
    EXPECT_EQ(PathOfFileUri("file://localhost/x.avi"), "/x.avi");
    for (const auto* const uri : { "", "/x.avi", "http://h/x.avi", "file://other/x.avi", "file:///%", "file:///%4",
             "file:///%zz", "file:///%00", "file:///% 1" })
        EXPECT_EQ(PathOfFileUri(uri), std::nullopt) << uri;
}

TEST(MprisRules, the_position_runs_on_between_two_readings_and_a_jump_is_what_playing_cannot_explain)
{
    auto before = PlayingStatus();
    EXPECT_EQ(MprisPosition(before, before.readAt + 500ms), 10'500'000);
    EXPECT_EQ(MprisPosition(before, before.readAt + 10min), 60'000'000);
    auto now = before;
    now.readAt += 500ms;
    now.position = 10'300; // the engine's clock moves in steps
    EXPECT_FALSE(HasJumped(before, now));
    now.position = 30'000;
    EXPECT_TRUE(HasJumped(before, now));
    before.rate = now.rate = 8;
    now.position = 12'000;
    EXPECT_FALSE(HasJumped(before, now));
    before.playback = now.playback = MediaPlayback::Paused;
    EXPECT_EQ(MprisPosition(before, before.readAt + 500ms), 10'000'000);
    now.track.id = 8;
    now.position = 0;
    EXPECT_FALSE(HasJumped(before, now));
}

TEST(MprisRules, a_few_tracks_come_and_go_one_by_one_and_many_as_a_new_list)
{
    auto change = ChangeOfTracks(Tracks({ 1, 2, 3 }), Tracks({ 1, 3, 4 }));
    EXPECT_FALSE(change.replaced);
    EXPECT_THAT(change.removed, ElementsAre(2));
    EXPECT_EQ(change.addedFrom, 2U);
    change = ChangeOfTracks(nullptr, Tracks({ 1, 2, 3, 4, 5, 6, 7, 8, 9 }));
    EXPECT_TRUE(change.replaced);
    change = ChangeOfTracks(Tracks({ 1 }), nullptr);
    EXPECT_THAT(change.removed, ElementsAre(1));
}
