#include "inspect/ReportParser.h"
#include "inspect/MpegReport.h"
#include "inspect/StreamReport.h"
#include "inspect/TextValues.h"

#include <gtest/gtest.h>

using namespace zentaro;

namespace {

ParsedReport Read(const std::string& text, const CodecNames& audioNames = {}, const CodecNames& videoNames = {})
{
    return ParseReport(text, "clip.avi", audioNames, videoNames);
}

ParsedReport ReadStreams(const std::string& lines)
{
    return Read("Input #0\n" + lines);
}

StreamInfo OnlyStream(const std::string& line)
{
    const auto report = ReadStreams(line);
    return report.streams.size() == 1 ? report.streams[0].info : StreamInfo();
}

std::size_t KeptAfterPruning(const std::string& lines)
{
    auto streams = ReadStreams(lines).streams;
    PruneVideoStreams(streams);
    return streams.size();
}

} // namespace

TEST(ReportParser, an_audio_line_gives_all_its_values)
{
    const auto info = OnlyStream("  Stream #0.1: Audio: ac3, 48000 Hz, 5:1, 384 kb/s");
    EXPECT_EQ(info.Type, kAudioStream);
    EXPECT_EQ(info.Index, 1);
    EXPECT_EQ(info.Compression, "ac3");
    EXPECT_EQ(info.SampleRate, 48000);
    EXPECT_EQ(info.Channels, 6);
    EXPECT_EQ(info.BitRate, 384);
}

TEST(ReportParser, channels_are_words_or_numbers_and_five_means_six)
{
    EXPECT_EQ(OnlyStream("Audio: a, 1 Hz, mono").Channels, 1);
    EXPECT_EQ(OnlyStream("Audio: a, 1 Hz, stereo").Channels, 2);
    EXPECT_EQ(OnlyStream("Audio: a, 1 Hz, 7 channels").Channels, 7);
    EXPECT_EQ(OnlyStream("Audio: a, 1 Hz, 5 channels").Channels, 6);
}

TEST(ReportParser, a_bit_rate_of_sound_needs_exactly_four_parts)
{
    EXPECT_EQ(OnlyStream("Audio: a, 1 Hz, mono, s16, 64 kb/s").BitRate, 0);
    EXPECT_EQ(OnlyStream("Audio: a, 1 Hz, mono, 64").BitRate, 0);
}

TEST(ReportParser, a_video_line_is_read_with_and_without_pixel_format_and_bit_rate)
{
    const auto info = OnlyStream("  Stream #0.0: Video: mpeg4, yuv420p, 640x480, 25.00 fps");
    EXPECT_EQ(info.Type, kVideoStream);
    EXPECT_EQ(info.Width, 640);
    EXPECT_EQ(info.Height, 480);
    EXPECT_EQ(info.FPS, 25.0F);
    EXPECT_EQ(info.BitRate, 0);
    const auto bare = OnlyStream("Video: mpeg4, 640x480 [SAR 1:1], 900 kb/s, 23.98 fps");
    EXPECT_EQ(bare.Width, 640);
    EXPECT_EQ(bare.Height, 480);
    EXPECT_EQ(bare.BitRate, 900);
    EXPECT_EQ(bare.FPS, 23.98F);
}

TEST(ReportParser, what_cannot_be_converted_stays_zero_and_the_rest_is_read)
{
    const auto report =
        ReadStreams("Stream #0.x: Audio: a\nVideo: v, axb, 12 kb/s, 5 fps\nAudio: b, 99999999999 Hz, :, x y");
    ASSERT_EQ(report.streams.size(), 3U);
    EXPECT_EQ(report.streams[0].info.Channels, 0);
    EXPECT_EQ(report.streams[1].info.Width, 0);
    EXPECT_EQ(report.streams[1].info.FPS, 5.0F);
    EXPECT_EQ(report.streams[2].info.SampleRate, 0);
    EXPECT_EQ(report.streams[2].info.Compression, "b");
}

TEST(ReportParser, the_last_stream_number_seen_counts_and_only_its_first_digit)
{
    const auto report = ReadStreams("Stream #0.12\nAudio: a, 1 Hz, mono\nStream #0.3: Audio: b, 1 Hz, mono");
    EXPECT_EQ(report.streams[0].info.Index, 1);
    EXPECT_EQ(report.streams[1].info.Index, 3);
}

TEST(ReportParser, the_duration_counts_tenths_and_the_start_any_number)
{
    const auto report = ReadStreams("  Duration: 00:01:23.45, start: 0.500000, bitrate: 5 kb/s");
    EXPECT_EQ(report.error, "");
    EXPECT_EQ(report.duration, 83.4F);
    EXPECT_EQ(report.startTime, 0.5F);
    EXPECT_EQ(ReadStreams(" Duration: N/A, start: -1.5").startTime, -1.5F); // one blank: not the duration
    EXPECT_EQ(ParseTime("100:0"), 10 * 3600.0F);
    EXPECT_EQ(ParseTime(""), 0.0F);
}

TEST(ReportParser, no_duration_means_an_incomplete_file)
{
    EXPECT_EQ(ReadStreams("  Duration: N/A, bitrate: N/A").error, kIncompleteFile);
    EXPECT_EQ(ReadStreams("  Duration: 00:00:10.0").error, kIncompleteFile); // no comma, so no time
}

TEST(ReportParser, words_of_refusal_count_anywhere_and_diagnostics_hide_the_rest_of_their_line_only)
{
    EXPECT_EQ(Read("a: Unknown format").error, kUnsupportedFile);
    EXPECT_EQ(Read("Input\n[avi] could not find codec parameters").error, kUnsupportedFile);
    EXPECT_EQ(Read("").error, kUnsupportedFile);
    EXPECT_EQ(Read("[x] Input, Audio: a, 1 Hz, mono").error, "");
    EXPECT_TRUE(Read("[x] Input, Audio: a, 1 Hz, mono").streams.empty());
}

TEST(ReportParser, unsupported_sound_is_dropped_with_a_message)
{
    const CodecNames names("wmav9,Windows Media Audio v9\nwmav8,Windows Media Audio v8");
    const auto report =
        Read("Input\nAudio: wmav9, 1 Hz, mono\nAudio: wmav8, 1 Hz, mono\nAudio: 0x0161, 1 Hz, mono", names);
    ASSERT_EQ(report.streams.size(), 1U);
    EXPECT_EQ(report.streams[0].info.Compression, "Windows Media Audio v8");
    ASSERT_EQ(report.messages.size(), 2U);
    EXPECT_EQ(report.messages[0],
        (InspectionMessage{
            "The audio format Windows Media Audio v9 in file clip.avi is currently unsupported. It will "
            "not be added to the project.",
            MessageIcon::Exclamation, "Zentaro" }));
}

TEST(ReportParser, pruning_does_not_look_at_the_record_that_moves_up)
{
    EXPECT_EQ(KeptAfterPruning("Video: v, 2x2, 250.00 fps\nVideo: v, 2x2, 251.00 fps\nAudio: a, 1 Hz, mono"), 2U);
    EXPECT_EQ(KeptAfterPruning("Video: v, 0x2, 25.00 fps\nVideo: v, 2x0, 25.00 fps"), 1U);
    EXPECT_EQ(KeptAfterPruning("Video: v\nVideo: v\nVideo: v"), 1U);
    EXPECT_EQ(KeptAfterPruning("Video: v"), 0U);
}

TEST(ReportParser, codec_names_are_text_keys_in_exact_letters)
{
    const CodecNames names(" mp3 , MPEG, Layer 3 \r\nno comma\n123,number\nmp3,again\n");
    EXPECT_EQ(names.DisplayName("mp3"), "MPEG, Layer 3");
    EXPECT_EQ(names.DisplayName("MP3"), "MP3");
    EXPECT_EQ(names.DisplayName("123"), "123");
}

TEST(ReportParser, numbers_of_texts_round_half_to_even_and_print_up_to_seven_digits)
{
    EXPECT_EQ(IntegerOfText(" 2.5 fps"), 2);
    EXPECT_EQ(IntegerOfText("-3.5"), -4);
    EXPECT_FALSE(IntegerOfText("x5"));
    EXPECT_FALSE(IntegerOfText("inf"));
    EXPECT_FALSE(IntegerOfText("4294967296"));
    EXPECT_EQ(FloatOfText("1e300"), 0.0F);
    EXPECT_EQ(FloatText(29.97F), "29.97");
    EXPECT_EQ(FloatText(0.1F), "0.1");
    EXPECT_EQ(FloatText(7200.0F), "7200");
    EXPECT_EQ(FloatText(-0.05333F), "-0.05333");
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

TEST(ReportParser, aspects_have_names_or_two_decimals)
{
    EXPECT_EQ(AspectName(1280.0F / 720.0F), "Widescreen (16:9)");
    EXPECT_EQ(AspectName(640.0F / 480.0F), "Normal (4:3)");
    EXPECT_EQ(AspectName(2.21F), "Panavision (2.21:1)");
    EXPECT_EQ(AspectName(1.0F), "1:1");
    EXPECT_EQ(AspectName(352.0F / 288.0F), "1.22:1");
}

TEST(ReportParser, the_report_names_every_stream)
{
    StreamInfo video;
    video.Type = kVideoStream;
    video.Width = 640;
    video.Height = 480;
    video.FPS = 29.97F;
    video.Compression = "H.264";
    video.SourceAR = 640.0F / 480.0F;
    video.DisplayAR = 1;
    video.BitRate = 900;
    StreamInfo audio;
    audio.Type = kAudioStream;
    audio.Channels = 2;
    audio.SampleRate = 44100;
    audio.Compression = "MP3";
    EXPECT_EQ(StreamReport("a.avi", 83.4F, 0, { video, audio }),
        "Stream information of a.avi\r\nDuration  : 83.4\r\nStarttime : 0\r\n"
        "Stream 0 (Video)\r\nWidth       : 640 pixels\r\nHeight      : 480 pixels\r\nFramerate   : 29.97\r\n"
        "Compression : H.264\r\nSource AR   : Normal (4:3)\r\nDIsplay AR  : 1:1\r\nBitRate     : 900 Kbit\\s\r\n"
        "Stream 1 (Audio)\r\nChannels    : 2\r\nSamplerate  : 44100 Hz\r\nCompression : MP3\r\nBitRate     : 0 "
        "Kbit\\s");
}
