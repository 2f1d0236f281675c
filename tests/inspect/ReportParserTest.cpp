#include "inspect/ReportParser.h"
#include "inspect/MpegReport.h"
#include "inspect/StreamReport.h"
#include "inspect/TextValues.h"

#include <gtest/gtest.h>

using namespace zentaro;

namespace {

const CodecNames kNames("wmav9,Windows Media Audio v9\nwmav8,Windows Media Audio v8");

/// The error, or duration, start and each stream in one line.
std::string Shown(const std::string& text)
{
    const auto report = ParseReport(text, "clip.avi", kNames, {});
    if (!report.error.empty())
        return report.error;
    auto shown = FloatText(report.duration) + " from " + FloatText(report.startTime);
    for (const auto& [info, line] : report.streams) {
        shown += " | " + std::to_string(info.Index) + " " + info.Compression + " ";
        if (info.Type == kAudioStream)
            shown += std::to_string(info.SampleRate) + " Hz x" + std::to_string(info.Channels);
        else
            shown += std::to_string(info.Width) + "x" + std::to_string(info.Height) + " @" + FloatText(info.FPS);
        shown += " " + std::to_string(info.BitRate) + " kb/s";
    }
    return shown;
}

std::size_t KeptAfterPruning(const std::string& lines)
{
    auto streams = ParseReport("Input\n" + lines, "", {}, {}).streams;
    PruneVideoStreams(streams);
    return streams.size();
}

} // namespace

TEST(ReportParser, lines_become_streams_and_what_cannot_be_converted_stays_zero)
{
    const std::pair<const char*, const char*> rows[] = {
        { "  Stream #0.1: Audio: ac3, 48000 Hz, 5:1, 384 kb/s", "1 ac3 48000 Hz x6 384 kb/s" },
        { "Audio: a, 1 Hz, mono", "0 a 1 Hz x1 0 kb/s" },
        { "Audio: a, 1 Hz, stereo", "0 a 1 Hz x2 0 kb/s" },
        { "Audio: a, 1 Hz, 7 channels", "0 a 1 Hz x7 0 kb/s" },
        { "Audio: a, 1 Hz, 5 channels", "0 a 1 Hz x6 0 kb/s" },
        { "Audio: a, 1 Hz, mono, 64 kb/s, s16", "0 a 1 Hz x1 0 kb/s" }, // a rate is the fourth of four parts
        { "Audio: a, 1 Hz, mono, 64", "0 a 1 Hz x1 0 kb/s" },
        { "Audio: b, 99999999999 Hz, :, x y", "0 b 0 Hz x0 0 kb/s" },
        { "Stream #0.x: Audio: a", "0 a 0 Hz x0 0 kb/s" },
        { "Video: mpeg4, yuv420p, 640x480, 25.00 fps", "0 mpeg4 640x480 @25 0 kb/s" },
        { "Video: mpeg4, 640x480 [SAR 1:1], 900 kb/s, 23.98 fps", "0 mpeg4 640x480 @23.98 900 kb/s" },
        { "Video: v, axb, 12 kb/s, 5 fps", "0 v 0x0 @5 12 kb/s" },
        // The last number seen counts, and only its first digit.
        { "Stream #0.12\nAudio: a, 1 Hz, mono\nStream #0.3: Audio: b, 1 Hz, mono",
            "1 a 1 Hz x1 0 kb/s | 3 b 1 Hz x1 0 kb/s" },
    };
    for (const auto& [lines, expected] : rows)
        EXPECT_EQ(Shown(std::string("Input #0\n") + lines), std::string("0 from 0 | ") + expected);
}

TEST(ReportParser, the_head_of_a_report_gives_times_or_the_reason_of_a_refusal)
{
    const std::pair<std::string_view, std::string_view> rows[] = {
        { "Input\n  Duration: 00:01:23.45, start: 0.500000, bitrate: 5 kb/s", "83.4 from 0.5" },
        { "Input\n Duration: N/A, start: -1.5", "0 from -1.5" }, // one blank: not the duration
        { "Input\n  Duration: N/A, bitrate: N/A", kIncompleteFile },
        { "Input\n  Duration: 00:00:10.0", kIncompleteFile }, // no comma, so no time
        { "a: Unknown format", kUnsupportedFile }, { "Input\n[avi] could not find codec parameters", kUnsupportedFile },
        { "", kUnsupportedFile }, { "[x] Input, Audio: a, 1 Hz, mono", "0 from 0" }, // the tool talking to itself
    };
    for (const auto& [text, expected] : rows)
        EXPECT_EQ(Shown(std::string(text)), expected) << text;
    EXPECT_EQ(ParseTime("100:0"), 10 * 3600.0F);
    EXPECT_EQ(ParseTime(""), 0.0F);
}

TEST(ReportParser, unsupported_sound_is_dropped_with_a_message_and_odd_films_are_pruned)
{
    const std::string lines = "Input\nAudio: wmav9, 1 Hz, mono\nAudio: wmav8, 1 Hz, mono\nAudio: 0x0161, 1 Hz, mono";
    EXPECT_EQ(Shown(lines), "0 from 0 | 0 Windows Media Audio v8 1 Hz x1 0 kb/s");
    const auto messages = ParseReport(lines, "clip.avi", kNames, {}).messages;
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_EQ(messages[0],
        (InspectionMessage{
            "The audio format Windows Media Audio v9 in file clip.avi is currently unsupported. It will "
            "not be added to the project.",
            MessageIcon::Exclamation, "Zentaro" }));

    // The record that moves up into a gap is not looked at.
    EXPECT_EQ(KeptAfterPruning("Video: v, 2x2, 250.00 fps\nVideo: v, 2x2, 251.00 fps\nAudio: a, 1 Hz, mono"), 2U);
    EXPECT_EQ(KeptAfterPruning("Video: v, 0x2, 25.00 fps\nVideo: v, 2x0, 25.00 fps"), 1U);
    EXPECT_EQ(KeptAfterPruning("Video: v\nVideo: v\nVideo: v"), 1U);
    EXPECT_EQ(KeptAfterPruning("Video: v"), 0U);
    EXPECT_EQ(KeptAfterPruning("Video: v, 2x2, 250.00 fps"), 1U);
}

TEST(ReportParser, names_and_numbers_are_texts_in_exact_letters)
{
    const CodecNames names(" mp3 , MPEG, Layer 3 \r\nno comma\n123,number\nmp3,again\n");
    EXPECT_EQ(names.DisplayName("mp3"), "MPEG, Layer 3");
    EXPECT_EQ(names.DisplayName("MP3"), "MP3");
    EXPECT_EQ(names.DisplayName("123"), "123");
    EXPECT_EQ(IntegerOfText(" 2.5 fps"), 2); // halves go to the even neighbour
    EXPECT_EQ(IntegerOfText("-3.5"), -4);
    for (const auto* const text : { "x5", "inf", "4294967296" })
        EXPECT_FALSE(IntegerOfText(text));
    EXPECT_EQ(FloatOfText("1e300"), 0.0F);
    const std::pair<float, const char*> rows[] = { { 29.97F, "29.97" }, { 0.1F, "0.1" }, { 7200.0F, "7200" },
        { -0.05333F, "-0.05333" } };
    for (const auto& [value, text] : rows)
        EXPECT_EQ(FloatText(value), text);
    EXPECT_EQ(AspectName(640.0F / 480.0F), "Normal (4:3)");
    EXPECT_EQ(AspectName(2.21F), "Panavision (2.21:1)");
    EXPECT_EQ(AspectName(352.0F / 288.0F), "1.22:1");
}

TEST(ReportParser, mpgtx_lines_are_read_with_their_bit_tests)
{
    const auto facts = ParseMpegReport("  Muxrate : 8.41 Mbps\n  Aspect ratio 2.21/1 (Cinema)\nx interlaced\n"
                                       "  Size [720 x 480]     29.97 fps    8.00 Mbps\n");
    EXPECT_EQ(facts.bitRate, 8000);
    EXPECT_EQ(facts.frameRate, 29.97F);
    EXPECT_EQ(facts.aspect, 2.21F);
    EXPECT_TRUE(facts.interlaced);
    EXPECT_TRUE(ParseMpegReport("  Not interlaced").interlaced);  // bits of 7 survive those of 3
    EXPECT_FALSE(ParseMpegReport("interlaced  Not ").interlaced); // 1 lies within 13
    EXPECT_EQ(ParseMpegReport("  Muxrate : 8.41 Mbps").bitRate, 8410);
}
