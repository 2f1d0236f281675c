#include "inspect/ToolDialect.h"
#include "inspect/StreamLine.h"

#include <gtest/gtest.h>

using namespace zentaro;

namespace {

const std::string kHead = "ffmpeg -i \"a.mp4\"\nffmpeg version 5.1\nInput #0, mov,mp4, from 'a.mp4':\n";
const std::string kDuration = "  Duration: 00:00:02.00, start: 0.000000, bitrate: 1 kb/s\n";

std::string Streams(const std::string& lines)
{
    const auto text = ToClassicReport(kHead + kDuration + lines, "", "").text;
    return text.substr(text.find('\n', text.find("Duration")) + 1);
}

std::string Audio(std::string_view facts)
{
    return ToClassicAudio(facts, StreamDialect::Current).text;
}

std::string Video(std::string_view facts)
{
    return ToClassicVideo(facts, StreamDialect::Current).text;
}

} // namespace

TEST(ToolDialect, a_current_report_becomes_a_classic_one)
{
    EXPECT_EQ(ToClassicReport(kHead + "  Metadata:\n    title : Audio: Unknown format\n" + kDuration
                      + "  Stream #0:0[0x1](und): Video: h264 (High) (avc1 / 0x31637661), yuv420p(tv, bt709), 1280x720 "
                        "[SAR 1:1 DAR 16:9], 226 kb/s, 25 fps, 25 tbr, 12800 tbn (default)\n"
                        "    Metadata:\n      handler_name    : Stream #0:7: Audio: mp3\n"
                        "  Stream #0:1: Subtitle: mov_text\nAt least one output file must be specified\n",
                  "", "")
                  .text,
        "Input #0, mov,mp4:\n" + kDuration
            + "  Stream #0.0[0x1](und): Video: h264, yuv420p, 1280x720, 226 kb/s, 25.00 fps\n");
}

TEST(ToolDialect, a_report_without_an_input_line_gives_nothing)
{
    EXPECT_EQ(ToClassicReport("ffmpeg\nInput.mp4: Input/output error\n", "", "").text, "");
    EXPECT_EQ(ToClassicReport("", "", "").text, "");
}

TEST(ToolDialect, a_name_with_line_breaks_cannot_imitate_the_tool)
{
    const std::string name = "/a\nInput #0, x:\n  Duration: 00:00:09.0, x\n  Stream #0:0: Audio: mp3, 1 Hz, mono\n.mp3";
    const std::string command = "ffmpeg -i \"" + name + "\"";
    const auto report = ToClassicReport(
        command + "\nffmpeg version 5\nInput #0, mp3, from '" + name + "':\n" + kDuration, command, name);
    EXPECT_EQ(report.text, "Input #0, mp3:\n" + kDuration);
    EXPECT_EQ(ToClassicMpegReport("mpgtx -i x\n/b\n  Interlaced\n", "mpgtx -i x", "/b\n  Interlaced"), "");
}

TEST(ToolDialect, the_lines_around_the_streams_cannot_be_read_as_streams)
{
    EXPECT_EQ(ToClassicReport("x\nInput #0, Audio: a:\n  Duration: 00:00:02.00, Video: v\n", "", "").text,
        "Input #0, \n  Duration: 00:00:02.00, \n");
}

TEST(ToolDialect, a_language_is_passed_on_only_when_it_is_one)
{
    EXPECT_EQ(
        Streams("  Stream #0:0(en-US): Audio: aac, 8 Hz, mono\n"), "  Stream #0.0(en-US): Audio: aac, 8 Hz, mono\n");
    EXPECT_EQ(Streams("  Stream #0:0(start: 9): Audio: aac, 8 Hz, mono\n"), "  Stream #0.0: Audio: aac, 8 Hz, mono\n");
}

TEST(ToolDialect, streams_of_a_group_count_although_they_lie_deeper)
{
    EXPECT_EQ(
        Streams("  Stream group #0:0[0x1]: Tile Grid:\n    Stream #0:0: Audio: a, 8 Hz, mono\n  Stream #0:1: Audio: b, "
                "8 Hz, mono\n"),
        "  Stream #0.0: Audio: a, 8 Hz, mono\n  Stream #0.1: Audio: b, 8 Hz, mono\n");
}

TEST(ToolDialect, sound_has_four_parts_at_most)
{
    EXPECT_EQ(Audio("aac (LC) (mp4a / 0x6134706D), 48000 Hz, 5.1(side), fltp, 384 kb/s (default) (forced)"),
        "aac, 48000 Hz, 5:1, 384 kb/s");
    EXPECT_EQ(Audio("flac, 44100 Hz, stereo, s32 (24 bit)"), "flac, 44100 Hz, stereo");
    EXPECT_EQ(Audio("aac, 0 channels"), "aac, 0 Hz, 0 channels");
    EXPECT_EQ(Audio("aac, 44100 Hz, fltp, 9 kb/s"), "aac, 44100 Hz, 0 channels, 9 kb/s");
}

TEST(ToolDialect, a_codec_without_name_is_its_tag)
{
    EXPECT_EQ(Audio("none (zz9a / 0x61397A7A), 8000 Hz, mono"), "zz9a / 0x61397A7A, 8000 Hz, mono");
    EXPECT_EQ(Audio("none ([153][153][0][0] / 0x9999), 8000 Hz, mono"), "0x9999, 8000 Hz, mono");
    EXPECT_EQ(Audio("none, 8000 Hz, mono"), "0x0000, 8000 Hz, mono");
    EXPECT_EQ(
        ToClassicAudio("mp4a / 0x6134706D, 8 Hz, mono", StreamDialect::Classic).text, "mp4a / 0x6134706D, 8 Hz, mono");
}

TEST(ToolDialect, layouts_are_counted)
{
    EXPECT_EQ(ChannelsOfLayout("7.1.4"), 12);
    EXPECT_EQ(ChannelsOfLayout("22.2"), 24);
    EXPECT_EQ(ChannelsOfLayout("3.0(back)"), 3);
    EXPECT_EQ(ChannelsOfLayout("5.1+downmix"), 8);
    EXPECT_EQ(ChannelsOfLayout("4 channels (FL+FR+LFE+BC)"), 4);
    EXPECT_EQ(ChannelsOfLayout("ambisonic 1+stereo"), 6);
    EXPECT_EQ(ChannelsOfLayout("hexadecagonal"), 16);
    EXPECT_EQ(ChannelsOfLayout("5:1"), 6);
    EXPECT_EQ(ChannelsOfLayout("something"), 0);
    EXPECT_EQ(ChannelsOfLayout("ambisonic 999+2147483647 channels"), 101 * 101 + 0xFFFF);
    EXPECT_EQ(ChannelsOfLayout("ambisonic -441002007"), 1);
    std::string nested;
    for (int i = 0; i < 1'000'000; ++i)
        nested += "+downmix";
    EXPECT_EQ(ChannelsOfLayout(nested), 0);
}

TEST(ToolDialect, a_film_keeps_what_the_rules_read_in_their_order)
{
    EXPECT_EQ(Video("rawvideo, nv12, 32x24, SAR 1:1 DAR 4:3, 1k fps, 1k tbr"), "rawvideo, yuv420p, 32x24, 1000.00 fps");
    EXPECT_EQ(Video("ffv1, gbrp10le(pc, gbr/unknown/unknown), 64x48, lossless"), "ffv1, rgb24, 64x48");
    EXPECT_EQ(
        Video("flv1, none(progressive), 128x96, 200 kb/s, 0.0000 fps, 9 tbr"), "flv1, 128x96, 200 kb/s, 0.00 fps");
    EXPECT_EQ(Video("mpeg2video (Main), yuv420p(tv), 720x576 [SAR 64:45 DAR 16:9], max. 8000 kb/s, 25 fps, 90k tbn"),
        "mpeg2video, yuv420p, 720x576, 25.00 fps");
    EXPECT_EQ(ToClassicVideo("mjpeg, yuvj420p, 32x24,  0.08 fps(r)", StreamDialect::Classic).text,
        "mjpeg, yuvj420p, 32x24, 0.08 fps");
    EXPECT_EQ(Video("mpeg4, yuv420p, 8x8, 12.5 tbr, 25 tbn"), "mpeg4, yuv420p, 8x8, 12.50 fps");
}

TEST(ToolDialect, the_aspect_of_the_stream_overrides_that_of_the_codec)
{
    EXPECT_FLOAT_EQ(ToClassicVideo("v, 8x8 [SAR 1:1 DAR 4:3], SAR 2:1 DAR 16:9", StreamDialect::Current).displayAspect,
        16.0F / 9.0F);
}

TEST(ToolDialect, a_cover_is_no_stream_but_remembered)
{
    const auto marked = ToClassicReport(
        kHead + kDuration + "  Stream #0:1: Video: mjpeg, yuvj420p, 600x400, 90k tbr, 90k tbn (attached pic)\n", "",
        "");
    EXPECT_TRUE(marked.streams.empty());
    ASSERT_TRUE(marked.cover);
    EXPECT_EQ(marked.cover->width, 600);
    EXPECT_EQ(marked.cover->height, 400);
    const auto unmarked = ToClassicReport(
        kHead + kDuration + "    Stream #0:1: Video: mjpeg, yuvj420p, 600x400, 90k tbr, 90k tbn\n", "", "");
    EXPECT_TRUE(unmarked.cover);
    EXPECT_NE(unmarked.text.find("90000.00 fps"), std::string::npos);
}

TEST(ToolDialect, a_quarter_turn_is_known_from_the_side_data_alone)
{
    const std::string stream = "  Stream #0:0: Video: h264, yuv420p, 128x72, 30 fps\n";
    const std::string turn = "      displaymatrix: rotation of -90.00 degrees\n";
    const auto lying = [&](const std::string& lines) {
        return ToClassicReport(kHead + kDuration + lines, "", "").streams[0].lying;
    };
    EXPECT_TRUE(lying(stream + "    Side data:\n" + turn));
    EXPECT_FALSE(lying(stream + "    Metadata:\n" + turn));
    EXPECT_FALSE(lying(stream + "    Side data:\n      displaymatrix: rotation of 180.00 degrees\n"));
}

TEST(ToolDialect, times_beyond_the_columns_become_the_longest_one)
{
    const auto time = [](const std::string& text) {
        return ToClassicReport(kHead + "  Duration: " + text + "\n", "", "").text.substr(19);
    };
    EXPECT_EQ(time("100:00:00.00, start: 1"), "  Duration: 99:59:59.9, start: 1\n");
    EXPECT_EQ(time("-00:00:01.00, start: 1"), "  Duration: N/A, start: 1\n");
}

TEST(ToolDialect, interlacing_of_mpgtx_is_told_in_the_words_of_the_rules)
{
    const std::string log = "mpgtx -i \"/interlaced 25 fps.mpg\"\n/interlaced 25 fps.mpg\n";
    EXPECT_EQ(ToClassicMpegReport(log + "  Not interlaced, chroma format: 4:2:0\r\n", "", ""), "");
    EXPECT_EQ(ToClassicMpegReport(log + "  Interlaced, chroma\r\n  Size [8 x 8]\n", "", ""),
        "  interlaced, chroma\n  Size [8 x 8]\n");
}
