#include "inspect/clsSource.h"

#include <gtest/gtest.h>

#include <map>

using namespace zentaro;

namespace {

/// Files in memory and tools that print what the test says.
class SourceTest : public testing::Test, public ToolRunner, public InspectionFiles {
protected:
    std::map<std::string, std::string> files; // by path
    std::string report;                       // behind the command and the version
    std::string mpgtx;
    bool hasMpgtx = true;
    std::string version = "ffmpeg version 5.1";
    std::map<std::string, FileTrouble> troubles;
    std::vector<std::string> thumbnailRuns; // the arguments' text
    std::vector<bool> thumbnailMade;        // by run; later ones succeed
    bool thumbnailHangs = false;
    std::optional<Error> failure;
    std::optional<std::vector<AviStream>> avi;
    CodecNames audioNames{ "mp3,MP3" }, videoNames{ "h264,H.264" };

    const Picture defaultVideo{ 1, 1, { 1 } }, defaultAudio{ 1, 1, { 2 } }, thumbnail{ 2, 2, { 3, 3, 3, 3 } };

    Result<void> Capture(const ToolCommand& command, const std::string& logFile) override
    {
        files[logFile] = command.text + "\n"
            + (command.program == "/p/mpgtx" ? mpgtx : version + "\nInput #0, x, from 'x':\n" + report);
        return failure ? Result<void>(*failure) : Result<void>();
    }

    bool RunAndWait(const ToolCommand& command) override
    {
        EXPECT_FALSE(files.contains("/t/img.jpg"));
        thumbnailRuns.push_back(command.text);
        if (thumbnailRuns.size() > thumbnailMade.size() || thumbnailMade[thumbnailRuns.size() - 1])
            files["/t/img.jpg"] = "jpeg"; // half a picture of a tool that hangs
        return !thumbnailHangs;
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

    FileTrouble Trouble(const std::string& path) override { return troubles[path]; }

    void Remove(const std::string& path) override { files.erase(path); }

    /// Inspects it; its tools print `lines` behind the head of a report.
    clsSource Inspected(const std::string& path, const std::string& lines)
    {
        report = lines;
        auto source = Source();
        EXPECT_TRUE(source.GetVideoInformation(path)) << source.Outcome().error;
        return source;
    }

    clsSource Source()
    {
        InspectionContext context;
        context.tools = this;
        context.files = this;
        context.readAviStreams = [this](const std::string&) { return avi; };
        context.decodePicture = [this](const std::string&) { return thumbnail; };
        context.ffmpeg = "/p/ffmpeg";
        context.mpgtx = hasMpgtx ? "/p/mpgtx" : "";
        context.workingFolder = "/t/";
        context.installAdvice = [](const std::string& tool) { return "Get " + tool + "."; };
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

} // namespace

TEST_F(SourceTest, a_film_is_inspected_and_leaves_no_files)
{
    files["/a.mkv"] = "film";
    const auto source = Inspected("/a.mkv", kTenSeconds + kFilm + kSound);
    EXPECT_EQ(source.Outcome().report,
        "Stream information of /a.mkv\r\nDuration  : 10\r\nStarttime : 1.5\r\n"
        "Stream 0 (Video)\r\nWidth       : 1280 pixels\r\nHeight      : 720 pixels\r\nFramerate   : 25\r\n"
        "Compression : H.264\r\nSource AR   : Widescreen (16:9)\r\nDIsplay AR  : 1:1\r\n"
        "BitRate     : 500 Kbit\\s\r\n"
        "Stream 1 (Audio)\r\nChannels    : 2\r\nSamplerate  : 44100 Hz\r\nCompression : MP3\r\n"
        "BitRate     : 128 Kbit\\s");
    EXPECT_EQ(source.StreamImage(0), thumbnail);
    EXPECT_TRUE(source.StreamImage(1).IsEmpty() && source.StreamImage(2).IsEmpty());
    EXPECT_EQ(source.Outcome().lastPicture, thumbnail);
    EXPECT_TRUE(source.Outcome().messages.empty());
    EXPECT_EQ(source.TimeStamp(), "yesterday");
    EXPECT_FALSE(source.IsAVI());
    EXPECT_EQ(files.size(), 1U);
}

TEST_F(SourceTest, failures_leave_their_reason_and_keep_the_report_of_the_last_success)
{
    auto source = Source();
    const auto errorWith = [&](const std::optional<Error>& toolsFailure) {
        failure = toolsFailure;
        EXPECT_FALSE(source.GetVideoInformation("/a.mkv"));
        EXPECT_TRUE(files.empty());
        return source.Outcome().error;
    };
    EXPECT_EQ(errorWith(Error{ 2003, "No process" }),
        "No process\r\nThe program \"ffmpeg\", which reads media files for Zentaro, is missing or cannot be started. "
        "Get ffmpeg.");
    EXPECT_EQ(errorWith(Error{ 2001, "No pipe" }), "No pipe");
    EXPECT_EQ(errorWith(Error{ kToolHangs, "" }), kHangsText);
    report = "  Duration: N/A, bitrate: N/A\n" + kSound;
    EXPECT_EQ(errorWith({}), "File may be incomplete or corrupted.");
    troubles["/a.mkv"] = FileTrouble::Empty;
    EXPECT_EQ(errorWith({}), "File may be incomplete or corrupted.\r\nThe file is empty.");
    report = "";
    EXPECT_TRUE(source.GetVideoInformation("/a.mkv"));
    EXPECT_EQ(source.Outcome().error, "");
    EXPECT_TRUE(source.Outcome().lastPicture.IsEmpty());

    InspectionState state;
    state.TakeOver({ true, "", "report", thumbnail, {}, {} });
    state.TakeOver({ false, "reason", "", {}, {}, {} });
    EXPECT_EQ(state.StreamInfoText + " " + state.LastSourceError, "report reason");
    EXPECT_TRUE(state.LastStreamPicture.IsEmpty());
}

TEST_F(SourceTest, a_picture_that_cannot_be_made_is_tried_again_without_seeking)
{
    thumbnailMade = { false, true, false, false, false };
    auto source = Inspected("/a.mkv", kTenSeconds + kFilm);
    EXPECT_EQ(source.StreamImage(0), thumbnail);
    EXPECT_NE(thumbnailRuns[0].find("-ss 1 "), std::string::npos);
    EXPECT_EQ(thumbnailRuns[1].find("-ss"), std::string::npos);
    EXPECT_TRUE(source.Outcome().messages.empty());

    ASSERT_TRUE(source.GetVideoInformation("/a.mkv"));
    EXPECT_EQ(source.StreamImage(0), defaultVideo);
    EXPECT_EQ(source.Outcome().lastPicture, defaultVideo);
    EXPECT_EQ(source.Outcome().messages,
        (std::vector<InspectionMessage>{
            { "Cannot render thumbnail for /a.mkv. The video codec may be unsupported." } }));

    thumbnailHangs = true;
    for (const std::size_t runs : { 5, 6 }) { // without a picture, and with half of one
        source = Inspected("/a.mkv", kTenSeconds + kFilm);
        EXPECT_EQ(thumbnailRuns.size(), runs) << "it would hang again";
        EXPECT_EQ(source.StreamImage(0), defaultVideo);
        EXPECT_EQ(source.Outcome().messages.size(), 1U);
        EXPECT_FALSE(files.contains("/t/img.jpg"));
    }

    // The tool's own version decides how it is called.
    version = "FFmpeg version 0.6.6";
    Inspected("/b.mkv", kTenSeconds + "    Stream #0.0: Video: h264, yuv420p, 720x576, 25 fps\n");
    EXPECT_TRUE(thumbnailRuns.back().starts_with("-vframes 1 -ss 1 -i \"/b.mkv\""));
}

TEST_F(SourceTest, an_avi_files_delays_and_an_mpeg_films_facts_refine_the_records)
{
    avi = { { false, 5 }, { true, 26 }, { true, 7 } };
    const auto delayed = Inspected("/a.avi", kTenSeconds + kFilm + kSound);
    EXPECT_TRUE(delayed.IsAVI());
    EXPECT_EQ(delayed.Streams()[0].Delay, 0);
    EXPECT_EQ(delayed.Streams()[1].Delay, 26);

    files["/A.MPG"] = std::string(1'234'567, 'x');
    mpgtx = "/A.MPG\n  Aspect ratio 16/9 (TV)\n  Interlaced, chroma\n  Size [8 x 8]   29.97 fps   8.00 Mbps\n";
    const auto refined = Inspected("/A.MPG", kTenSeconds + kFilm + kSound);
    const auto& video = refined.Streams()[0];
    EXPECT_EQ(video.FPS, 29.97F);
    EXPECT_EQ(video.DisplayAR, static_cast<float>(16.0 / 9.0));
    EXPECT_TRUE(video.Interlaced);
    EXPECT_EQ(video.BitRate, 988 - 128); // 123457 bytes a second

    hasMpgtx = false;
    const auto alone = Inspected("/A.MPG",
        kTenSeconds + "  Stream #0:0: Video: mpeg2video, yuv420p(tv, top first), 720x576 [SAR 64:45 DAR 16:9], 25 fps\n"
            + kSound);
    EXPECT_EQ(alone.Streams()[0].FPS, 25.0F);
    EXPECT_EQ(alone.Streams()[0].DisplayAR, video.DisplayAR);
    EXPECT_TRUE(alone.Streams()[0].Interlaced);
    EXPECT_EQ(alone.Streams()[0].BitRate, video.BitRate);
}

TEST_F(SourceTest, a_dictionary_gives_back_all_but_the_start_time_and_the_pictures)
{
    avi = std::vector<AviStream>(2);
    const auto source = Inspected("/a.mkv", kTenSeconds + kFilm + kSound);
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

    EXPECT_EQ(source.StreamInfo(0).Entries()[0].key, "FPS");
    EXPECT_EQ(source.StreamInfo(1).Entries()[0].key, "Channels");
    EXPECT_TRUE(source.StreamInfo(2).Entries().empty());
}
