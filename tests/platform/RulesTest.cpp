#include "desktop/CommandLine.h"
#include "desktop/FrameRules.h"
#include "desktop/HandOverRules.h"
#include "desktop/MountTable.h"
#include "desktop/MprisRules.h"
#include "desktop/WindowsRules.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace zentaro::desktop {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

TEST(MountTableRules, a_path_lies_where_the_longest_mount_says_and_that_may_be_another_machine)
{
    const std::string mounts = "22 1 8:1 / / rw,noatime shared:1 - ext4 /dev/sda1 rw\n"
                               "40 22 0:35 / /mnt/my\\040films rw - nfs4 box:/films rw\n"
                               "41 22 0:36 / /mnt/my\\040films/here rw shared:5 master:2 - fuseblk /dev/sdb1 rw\n"
                               "42 22 0:37 / /run/user/1/gvfs rw - fuse.gvfsd-fuse gvfsd-fuse rw\n"
                               "torn";
    const auto isRemote = [&](const char* path) { return IsRemoteFileSystem(FileSystemOf(mounts, path)); };
    EXPECT_EQ(FileSystemOf(mounts, "/home/a.mkv"), "ext4");
    EXPECT_TRUE(isRemote("/mnt/my films/a.mkv"));
    EXPECT_TRUE(isRemote("/run/user/1/gvfs/smb/a.mkv"));
    EXPECT_FALSE(isRemote("/mnt/my films/here/a.mkv"));
    EXPECT_FALSE(isRemote("/mnt/my films of old/a.mkv"));
    EXPECT_EQ(FileSystemOf("", "/a"), "");
}

TEST(CommandLineRules, a_programs_own_name_is_cut_off_and_only_a_whole_file_name_made_absolute)
{
    EXPECT_EQ(TextAfterProgramName(R"(zentaro.exe  C:\a b.avi *Add)"), R"(C:\a b.avi *Add)");
    EXPECT_EQ(TextAfterProgramName(R"("C:\My Programs\zentaro.exe" "C:\My Clips\a.avi")"), R"("C:\My Clips\a.avi")");
    for (const auto* alone : { R"("C:\zentaro.exe")", R"("C:\never closed)", "zentaro.exe " })
        EXPECT_EQ(TextAfterProgramName(alone), "") << alone;

    const auto absolute = [](const std::string& path) { return "/here/" + path; };
    EXPECT_EQ(WithWholePath("\"my clip.avi\" *Add", absolute), "/here/my clip.avi *Add");
    EXPECT_EQ(WithWholePath("my clip.avi", absolute), "/here/my clip.avi");
    const auto same = [](const std::string& path) { return path; };
    EXPECT_EQ(WithWholePath("\"a.avi\" \"b.avi\"", same), "\"a.avi\" \"b.avi\"");
    EXPECT_EQ(JoinArguments({}, absolute), "");
    EXPECT_EQ(JoinArguments({ "my clip.avi" }, absolute), "/here/my clip.avi");
    EXPECT_EQ(JoinArguments({ "a.avi", "*Add" }, absolute), "/here/a.avi *Add");
    EXPECT_EQ(JoinArguments({ "a.avi", "b.avi" }, absolute), "a.avi b.avi");
    EXPECT_EQ(JoinArguments({ "a.avi", "b.avi", "*Add" }, absolute), "a.avi b.avi *Add");
}

std::optional<std::string> ReadIn(const std::string& bytes, std::size_t pieceSize)
{
    HandOverFrameReader reader;
    for (std::size_t at = 0; at < bytes.size(); at += pieceSize)
        reader.Take(std::string_view(bytes).substr(at, pieceSize));
    return reader.Finish();
}

TEST(HandOverRules, a_frame_arrives_whole_in_pieces_of_any_size_or_not_at_all)
{
    const std::string text = "/clips/\xFF\"a\n b\".avi *Add";
    const auto frame = EncodeHandOverFrame(text);
    for (std::size_t size = 1; size <= frame.size(); ++size) {
        EXPECT_EQ(ReadIn(frame, size), text) << size;
        EXPECT_EQ(ReadIn(frame.substr(0, size - 1), 4), std::nullopt) << size;
        EXPECT_EQ(ReadIn(frame + "x", size), std::nullopt) << size;
    }
    EXPECT_EQ(ReadIn("GET / HTTP/1.0\r\n\r\n", 100), std::nullopt);
    HandOverFrameReader tooLong;
    EXPECT_FALSE(tooLong.Take(std::string_view("ZNT1\x01\x00\x00\x01", 8)));
    EXPECT_FALSE(tooLong.Take("and it stays so"));
    EXPECT_TRUE(HandOverFrameReader().Take(std::string_view("ZNT1\x00\x00\x00\x01", 8)));
}

TEST(HandOverRules, a_handle_is_a_plain_number_that_is_not_zero)
{
    EXPECT_EQ(ParseHandOverHandle("18446744073709551615"), 18446744073709551615U);
    for (const auto* text : { "", "-1", "0", "+5", " 5", "5 ", "5x", "../5", "18446744073709551616" })
        EXPECT_EQ(ParseHandOverHandle(text), std::nullopt) << text;
}

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
    using enum MediaPlayback;
    const std::chrono::steady_clock::time_point start(1h);
    const auto reading = [&](double position, MediaPlayback playback = Playing, double rate = 1, std::uint64_t id = 7) {
        MediaStatus status;
        status.playback = playback;
        status.track.id = id;
        status.length = 60'000;
        status.position = position;
        status.rate = rate;
        status.readAt = start + (position == 10'000 ? 0ms : 500ms);
        return status;
    };
    const auto before = reading(10'000);
    EXPECT_EQ(MprisPosition(before, start + 500ms), 10'500'000);
    EXPECT_EQ(MprisPosition(before, start + 10min), 60'000'000);
    EXPECT_EQ(MprisPosition(reading(10'000, Paused), start + 500ms), 10'000'000);
    EXPECT_FALSE(HasJumped(before, reading(10'300))); // the engine's clock moves in steps
    EXPECT_TRUE(HasJumped(before, reading(30'000)));
    EXPECT_FALSE(HasJumped(reading(10'000, Playing, 8), reading(12'000, Playing, 8)));
    EXPECT_FALSE(HasJumped(before, reading(0, Paused, 1, 8)));
}

TEST(MprisRules, a_few_tracks_come_and_go_one_by_one_and_many_as_a_new_list)
{
    const auto tracks = [](const std::vector<std::uint64_t>& ids) {
        auto all = std::make_shared<std::vector<MediaTrack>>();
        for (const auto id : ids)
            all->push_back({ id, {}, {} });
        return all;
    };
    const auto change = ChangeOfTracks(tracks({ 1, 2, 3 }), tracks({ 1, 3, 4 }));
    EXPECT_FALSE(change.replaced);
    EXPECT_THAT(change.removed, ElementsAre(2));
    EXPECT_EQ(change.addedFrom, 2U);
    EXPECT_TRUE(ChangeOfTracks(nullptr, tracks({ 1, 2, 3, 4, 5, 6, 7, 8, 9 })).replaced);
    EXPECT_THAT(ChangeOfTracks(tracks({ 1 }), nullptr).removed, ElementsAre(1));
}

TEST(FrameRules, a_corner_goes_before_its_edges_and_all_of_them_before_the_caption)
{
    EXPECT_EQ(FramePartAt(true, true, false, false, true, true), FramePart::TopLeft);
    EXPECT_EQ(FramePartAt(false, true, true, false, true, false), FramePart::TopRight);
    EXPECT_EQ(FramePartAt(false, true, false, false, true, false), FramePart::Top);
    EXPECT_EQ(FramePartAt(true, false, false, true, false, false), FramePart::BottomLeft);
    EXPECT_EQ(FramePartAt(false, false, true, true, false, false), FramePart::BottomRight);
    EXPECT_EQ(FramePartAt(false, false, false, true, false, false), FramePart::Bottom);
    EXPECT_EQ(FramePartAt(false, false, true, false, true, false), FramePart::Right);
    EXPECT_EQ(FramePartAt(false, false, false, false, true, true), FramePart::Menu);
    EXPECT_EQ(FramePartAt(false, false, false, false, true, false), FramePart::Caption);
    EXPECT_EQ(FramePartAt(false, false, false, false, false, false), FramePart::Content);
}

TEST(FrameRules, a_maximised_window_leaves_the_line_that_calls_a_hidden_taskbar)
{
    const Rect work{ 1920, 40, 2560, 1400 };
    EXPECT_EQ(MaximizedArea(work, {}), work);
    EXPECT_EQ(MaximizedArea(work, { .bottom = true }), (Rect{ 1920, 40, 2560, 1398 }));
    EXPECT_EQ(MaximizedArea(work, { .left = true, .top = true, .right = true }), (Rect{ 1922, 42, 2556, 1398 }));
    EXPECT_EQ(SystemMenuOf(false, false, false), (SystemMenuItems{ false, true, true, true }));
    EXPECT_EQ(SystemMenuOf(true, false, false), (SystemMenuItems{ true, false, false, false }));
    EXPECT_EQ(SystemMenuOf(false, false, true), SystemMenuItems());
}

TEST(WindowsRules, media_keys_and_the_buttons_at_the_taskbar)
{
    EXPECT_EQ(KindOfAppCommand(14), MediaCommand::Kind::PlayPause);
    EXPECT_EQ(KindOfAppCommand(12), MediaCommand::Kind::Previous);
    EXPECT_FALSE(KindOfAppCommand(8)); // mute
    MediaStatus status;
    EXPECT_FALSE(TaskbarLookOf(status).canPlay);
    status.playback = MediaPlayback::Playing;
    status.tracks = std::make_shared<const std::vector<MediaTrack>>(1);
    EXPECT_TRUE(TaskbarLookOf(status).showsPause && TaskbarLookOf(status).canStep);
}

TEST(WindowsRules, a_media_key_that_comes_both_ways_acts_once_and_pressed_twice_it_acts_twice)
{
    using Kind = MediaCommand::Kind;
    using Way = MediaKeys::Way;
    EXPECT_EQ(KindOfSystemButton(7), Kind::Previous);
    EXPECT_FALSE(KindOfSystemButton(3)); // record
    MediaKeys keys;
    const std::chrono::steady_clock::time_point now;
    const auto at = [&](int time) { return now + std::chrono::milliseconds(time); };
    EXPECT_TRUE(keys.Acts(Way::Window, Kind::PlayPause, at(0)));
    EXPECT_FALSE(keys.Acts(Way::System, Kind::Pause, at(40)));
    EXPECT_TRUE(keys.Acts(Way::System, Kind::Next, at(50))) << "another key";
    EXPECT_TRUE(keys.Acts(Way::System, Kind::Next, at(90)));
    EXPECT_FALSE(keys.Acts(Way::Window, Kind::Next, at(100)));
    EXPECT_FALSE(keys.Acts(Way::Window, Kind::Next, at(110)));
    EXPECT_TRUE(keys.Acts(Way::Window, Kind::Next, at(120)));
    EXPECT_TRUE(keys.Acts(Way::System, Kind::Next, at(900))) << "much later";
}

TEST(WindowsRules, the_systems_controls_count_on_by_themselves_and_are_told_of_a_jump_a_pause_and_now_and_then)
{
    MediaStatus told;
    told.playback = MediaPlayback::Playing;
    told.track.id = 7;
    told.length = 600'000;
    auto now = told;
    const auto playOn = [&](int milliseconds) {
        now.readAt += std::chrono::milliseconds(milliseconds);
        now.position += milliseconds;
    };
    playOn(3000);
    EXPECT_FALSE(IsNewsOfPlace(told, now) || IsNewsOfTrack(told, now) || IsNewsOfButtons(told, now));
    now.artwork = "cover.png";
    EXPECT_TRUE(IsNewsOfTrack(told, now));
    now.position += 10'000;
    EXPECT_TRUE(IsNewsOfPlace(told, now));
    now.position -= 10'000;
    playOn(3000);
    EXPECT_TRUE(IsNewsOfPlace(told, now)) << "its word is old";
    told = now;
    now.playback = MediaPlayback::Paused;
    EXPECT_TRUE(IsNewsOfPlace(told, now) && IsNewsOfButtons(told, now));
    told = now;
    now.readAt += std::chrono::minutes(1);
    EXPECT_FALSE(IsNewsOfPlace(told, now)) << "it stands";
}

TEST(WindowsRules, the_jump_list_names_each_file_once_and_none_that_was_taken_off_it)
{
    const std::vector<MediaTrack> recent = { { 0, "a.avi", "C:\\My Clips\\a.avi" }, { 0, "b.avi", "C:\\b.avi" },
        { 0, "a.avi", "C:\\My Clips\\a.avi" }, { 0, "c.avi", "C:\\" + std::string(2000, 'c') } };
    EXPECT_THAT(JumpListOf(recent, { "\"C:\\b.avi\"" }),
        ElementsAre(JumpListItem{ R"("C:\My Clips\a.avi")", "a.avi", R"(C:\My Clips\a.avi)" },
            JumpListItem{ "\"" + recent.back().path + "\"", "c.avi", "c.avi" }));
}

TEST(WindowsRules, a_registration_names_the_program_in_quotes_and_each_type_three_times)
{
    const auto texts = RegistrationOf("C:\\My Programs\\", { { ".avi", "Zentaro.avi" } });
    const auto has = [&](const RegistryText& text) { return std::ranges::find(texts, text) != texts.end(); };
    EXPECT_TRUE(has({ "Software\\Classes\\Applications\\zentaro.exe\\shell\\open\\command", "",
        R"("C:\My Programs\zentaro.exe" "%1")" }));
    EXPECT_TRUE(has({ "Software\\Classes\\Applications\\zentaro.exe\\SupportedTypes", ".avi", "" }));
    EXPECT_TRUE(has({ "Software\\Quorvane\\Zentaro\\Capabilities\\FileAssociations", ".avi", "Zentaro.avi" }));
    EXPECT_TRUE(has({ "Software\\Classes\\.avi\\OpenWithProgids", "Zentaro.avi", "" }));
    EXPECT_TRUE(has({ "Software\\Classes\\Zentaro.avi\\shell\\Add To Playlist\\DropTarget", "CLSID", kAddClass }));
    EXPECT_TRUE(has({ std::string("Software\\Classes\\CLSID\\") + kAddClass + "\\LocalServer32", "",
        R"("C:\My Programs\zentaro-add.exe")" }));
    EXPECT_TRUE(has({ "Software\\RegisteredApplications", "Zentaro", "Software\\Quorvane\\Zentaro\\Capabilities" }));
}

} // namespace
} // namespace zentaro::desktop
