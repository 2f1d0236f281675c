#include "inspect/clsSource.h"

#include <gtest/gtest.h>

#include <map>

using namespace zentaro;

namespace {

/// Files in memory and tools that print what the test says.
class World : public ToolRunner, public InspectionFiles {
public:
    std::map<std::string, std::string> files; // by path
    std::string report;                       // behind the command and the version
    std::string mpgtx;
    std::string version = "ffmpeg version 5.1";
    std::vector<std::string> thumbnailRuns; // the arguments' text
    std::vector<bool> thumbnailMade;        // by run; later ones succeed
    std::optional<Error> failure;
    std::optional<std::vector<AviStream>> avi;
    CodecNames audioNames{ "mp3,MP3" }, videoNames{ "h264,H.264" };

    const Picture defaultVideo{ 1, 1, { 1 } }, defaultAudio{ 1, 1, { 2 } }, thumbnail{ 2, 2, { 3, 3, 3, 3 } };

    Result<void> Capture(const ToolCommand& command, const std::string& logFile) override
    {
        if (failure)
            return *failure;
        files[logFile] = command.text + "\n"
            + (command.program == "/p/mpgtx" ? mpgtx : version + "\nInput #0, x, from 'x':\n" + report);
        return {};
    }

    bool RunAndWait(const ToolCommand& command) override
    {
        EXPECT_FALSE(files.contains("/t/img.jpg"));
        thumbnailRuns.push_back(command.text);
        if (thumbnailRuns.size() > thumbnailMade.size() || thumbnailMade[thumbnailRuns.size() - 1])
            files["/t/img.jpg"] = "jpeg";
        return true;
    }

    std::optional<std::string> Read(const std::string& path, std::size_t limit) override
    {
        const auto file = files.find(path);
        return file == files.end() ? std::nullopt : std::optional(file->second.substr(0, limit));
    }

    std::optional<FileFacts> Facts(const std::string& path) override
    {
        const auto file = files.find(path);
        if (file == files.end())
            return std::nullopt;
        return FileFacts{ static_cast<std::int64_t>(file->second.size()), "yesterday" };
    }

    void Remove(const std::string& path) override { files.erase(path); }

    clsSource Source()
    {
        InspectionContext context;
        context.tools = this;
        context.files = this;
        context.readAviStreams = [this](const std::string&) { return avi; };
        context.decodePicture = [this](const std::string&) { return thumbnail; };
        context.ffmpeg = "/p/ffmpeg";
        context.mpgtx = "/p/mpgtx";
        context.workingFolder = "/t/";
        context.audioCodecNames = &audioNames;
        context.videoCodecNames = &videoNames;
        context.defaultVideoPicture = defaultVideo;
        context.defaultAudioPicture = defaultAudio;
        return clsSource(context);
    }
};

const std::string kTenSeconds = "  Duration: 00:00:10.00, start: 1.500000, bitrate: 1 kb/s\n";
const std::string kFilm = "  Stream #0:0: Video: h264, yuv420p, 1280x720, 500 kb/s, 25 fps\n";
const std::string kSound = "  Stream #0:1: Audio: mp3, 44100 Hz, stereo, fltp, 128 kb/s\n";
const std::string kCover = "  Stream #0:2: Video: png, rgb24, 600x600, 90k tbr, 90k tbn (attached pic)\n";

} // namespace

TEST(clsSource, a_film_is_inspected_and_leaves_no_files)
{
    World world;
    world.files["/a.mkv"] = "film";
    world.report = kTenSeconds + kFilm + kSound;
    auto source = world.Source();
    ASSERT_TRUE(source.GetVideoInformation("/a.mkv"));
    EXPECT_EQ(source.StreamCount(), 2);
    EXPECT_EQ(source.Streams()[0].Compression, "H.264");
    EXPECT_EQ(source.Streams()[0].SourceAR, 1280.0F / 720.0F);
    EXPECT_EQ(source.Streams()[0].DisplayAR, 1.0F);
    EXPECT_EQ(source.StreamImage(0), world.thumbnail);
    EXPECT_TRUE(source.StreamImage(1).IsEmpty());
    EXPECT_TRUE(source.StreamImage(2).IsEmpty());
    EXPECT_EQ(source.Outcome().lastPicture, world.thumbnail);
    EXPECT_TRUE(
        source.Outcome().report.starts_with("Stream information of /a.mkv\r\nDuration  : 10\r\nStarttime : 1.5"));
    EXPECT_TRUE(source.Outcome().messages.empty());
    EXPECT_EQ(source.TimeStamp(), "yesterday");
    EXPECT_FALSE(source.IsAVI());
    EXPECT_EQ(world.files.size(), 1U);
}

TEST(clsSource, failures_leave_their_reason)
{
    World world;
    auto source = world.Source();
    world.failure = Error{ 2003, "Could not create piped process. LastError 2" };
    EXPECT_FALSE(source.GetVideoInformation("/a.mkv"));
    EXPECT_EQ(source.Outcome().error, "Could not create piped process. LastError 2");
    world.failure.reset();
    world.report = "  Duration: N/A, bitrate: N/A\n" + kSound;
    EXPECT_FALSE(source.GetVideoInformation("/a.mkv"));
    EXPECT_EQ(source.Outcome().error, "File may be incomplete or corrupted.");
    EXPECT_TRUE(world.files.empty());
    world.report = "";
    EXPECT_TRUE(source.GetVideoInformation("/a.mkv"));
    EXPECT_EQ(source.StreamCount(), 0);
    EXPECT_EQ(source.Outcome().error, "");
    EXPECT_TRUE(source.Outcome().lastPicture.IsEmpty());
}

TEST(clsSource, a_picture_that_cannot_be_made_is_tried_again_without_seeking)
{
    World world;
    world.report = kTenSeconds + kFilm;
    world.thumbnailMade = { false, true, false, false };
    auto source = world.Source();
    ASSERT_TRUE(source.GetVideoInformation("/a.mkv"));
    EXPECT_EQ(source.StreamImage(0), world.thumbnail);
    EXPECT_NE(world.thumbnailRuns[0].find("-ss 1 "), std::string::npos);
    EXPECT_EQ(world.thumbnailRuns[1].find("-ss"), std::string::npos);
    EXPECT_TRUE(source.Outcome().messages.empty());

    ASSERT_TRUE(source.GetVideoInformation("/a.mkv"));
    EXPECT_EQ(source.StreamImage(0), world.defaultVideo);
    EXPECT_EQ(source.Outcome().lastPicture, world.defaultVideo);
    EXPECT_EQ(source.Outcome().messages,
        (std::vector<InspectionMessage>{
            { "Cannot render thumbnail for /a.mkv. The video codec may be unsupported." } }));
}

TEST(clsSource, several_films_get_a_picture_each_and_a_turned_one_stands_upright)
{
    World world;
    world.report = kTenSeconds + kFilm + "    Side data:\n      displaymatrix: rotation of 90.00 degrees\n"
        + "  Stream #0:10: Video: h264, yuv420p, 640x480, 25 fps\n";
    auto source = world.Source();
    ASSERT_TRUE(source.GetVideoInformation("/a.mkv"));
    ASSERT_EQ(world.thumbnailRuns.size(), 2U);
    EXPECT_NE(world.thumbnailRuns[0].find("-map 0:0 "), std::string::npos);
    EXPECT_NE(world.thumbnailRuns[0].find("-s 40x72 "), std::string::npos);
    EXPECT_NE(world.thumbnailRuns[1].find("-map 0:10 "), std::string::npos);
    EXPECT_EQ(source.Streams()[0].Width, 1280);
    EXPECT_EQ(source.Streams()[1].Index, 1);
}

TEST(clsSource, the_tools_own_version_decides_how_it_is_called)
{
    World world;
    world.version = "FFmpeg version 0.6.6";
    world.report = kTenSeconds + "    Stream #0.0: Video: h264, yuv420p, 720x576, 25 fps\n";
    auto source = world.Source();
    ASSERT_TRUE(source.GetVideoInformation("/a.mkv"));
    EXPECT_TRUE(world.thumbnailRuns[0].starts_with("-vframes 1 -ss 1 -i \"/a.mkv\""));
}

TEST(clsSource, sound_alone_shows_its_cover_or_the_default_picture)
{
    World world;
    world.report = kTenSeconds + kSound + kCover;
    auto source = world.Source();
    ASSERT_TRUE(source.GetVideoInformation("/a.mp3"));
    EXPECT_EQ(source.StreamCount(), 1);
    EXPECT_EQ(source.StreamImage(0), world.defaultAudio);
    EXPECT_EQ(source.Outcome().lastPicture, world.thumbnail);
    EXPECT_NE(world.thumbnailRuns[0].find("-s 72x72 "), std::string::npos);
    EXPECT_EQ(world.thumbnailRuns[0].find("-ss"), std::string::npos);

    world.report = kTenSeconds + kSound + kSound;
    ASSERT_TRUE(source.GetVideoInformation("/a.mp3"));
    EXPECT_TRUE(source.StreamImage(0).IsEmpty());
    EXPECT_EQ(source.Outcome().lastPicture, world.defaultAudio);
}

TEST(clsSource, an_avi_files_delays_go_to_the_records_of_the_same_place)
{
    World world;
    world.report = kTenSeconds + kFilm + kSound;
    world.avi = { { false, 5 }, { true, 26 }, { true, 7 } };
    auto source = world.Source();
    ASSERT_TRUE(source.GetVideoInformation("/a.avi"));
    EXPECT_TRUE(source.IsAVI());
    EXPECT_EQ(source.Streams()[0].Delay, 0);
    EXPECT_EQ(source.Streams()[1].Delay, 26);
}

TEST(clsSource, an_mpeg_film_is_refined_and_its_rate_is_what_the_size_leaves)
{
    World world;
    world.files["/A.MPG"] = std::string(1'234'567, 'x');
    world.report = kTenSeconds + kFilm + kSound;
    world.mpgtx = "/A.MPG\n  Aspect ratio 16/9 (TV)\n  Interlaced, chroma\n  Size [8 x 8]   29.97 fps   8.00 Mbps\n";
    auto source = world.Source();
    ASSERT_TRUE(source.GetVideoInformation("/A.MPG"));
    const auto& video = source.Streams()[0];
    EXPECT_EQ(video.FPS, 29.97F);
    EXPECT_EQ(video.DisplayAR, static_cast<float>(16.0 / 9.0));
    EXPECT_TRUE(video.Interlaced);
    EXPECT_EQ(video.BitRate, 988 - 128); // 123457 bytes a second
}

TEST(clsSource, a_dictionary_gives_back_all_but_the_start_time_and_the_pictures)
{
    World world;
    world.files["/a.mkv"] = "film";
    world.report = kTenSeconds + kFilm + kSound;
    world.avi = std::vector<AviStream>(2);
    auto source = world.Source();
    ASSERT_TRUE(source.GetVideoInformation("/a.mkv"));
    auto data = source.Serialize();
    EXPECT_EQ(data.Entries()[2].key, "StartTime");
    EXPECT_EQ(data.Entries()[6].key, "Stream1");
    clsSource copy;
    copy.UnSerialize(data);
    EXPECT_EQ(copy.StartTime(), 0.0F);
    EXPECT_EQ(copy.StreamCount(), 2);
    EXPECT_TRUE(copy.IsAVI());
    EXPECT_TRUE(copy.StreamImage(0).IsEmpty());
    data.Set("StartTime", 0.0F);
    EXPECT_EQ(copy.Serialize(), data);

    data.Set("Streams", std::string("no dictionary"));
    data.Set("Duration", std::int32_t(7)); // of the wrong type
    copy.UnSerialize(data);
    EXPECT_EQ(copy.StreamCount(), 2);
    EXPECT_EQ(copy.Duration(), 0.0F);
}

TEST(clsSource, one_stream_as_a_dictionary_holds_what_its_kind_has)
{
    World world;
    world.report = kTenSeconds + kFilm + kSound;
    auto source = world.Source();
    ASSERT_TRUE(source.GetVideoInformation("/a.mkv"));
    const auto keys = [&](std::int32_t index) {
        std::string text;
        const auto data = source.StreamInfo(index);
        for (const auto& entry : data.Entries())
            text += entry.key + " ";
        return text;
    };
    EXPECT_EQ(
        keys(0), "FPS Width Height SourceAR DisplayAR Interlaced Type Index Duration StartTime Compression BitRate ");
    EXPECT_EQ(keys(1), "Channels SampleRate Delay Type Index Duration StartTime Compression BitRate ");
    EXPECT_EQ(keys(2), "");
}

TEST(clsSource, what_is_taken_over_keeps_the_report_of_the_last_success)
{
    InspectionState state;
    InspectionOutcome good;
    good.succeeded = true;
    good.report = "report";
    good.lastPicture = Picture(1, 1, { 5 });
    state.TakeOver(good);
    InspectionOutcome bad;
    bad.error = "reason";
    state.TakeOver(bad);
    EXPECT_EQ(state.StreamInfoText, "report");
    EXPECT_EQ(state.LastSourceError, "reason");
    EXPECT_TRUE(state.LastStreamPicture.IsEmpty());
}
