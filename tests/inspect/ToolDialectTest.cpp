#include "inspect/ToolDialect.h"
#include "inspect/ChannelLayout.h"
#include "inspect/ClassicFacts.h"

#include <gtest/gtest.h>

using namespace zentaro;

namespace {

const std::string kHead = "ffmpeg -i \"a.mp4\"\nffmpeg version 5.1\nInput #0, mov,mp4, from 'a.mp4':\n";
const std::string kDuration = "  Duration: 00:00:02.00, start: 0.000000, bitrate: 1 kb/s\n";

ClassicReport Report(const std::string& lines)
{
    return ToClassicReport(kHead + kDuration + lines, "", "");
}

} // namespace

TEST(ToolDialect, what_a_files_maker_wrote_cannot_imitate_the_tool)
{
    const std::string name = "/a\nInput #0, x:\n  Duration: 00:00:09.0, x\n  Stream #0:0: Audio: mp3, 1 Hz, mono\n.mp3";
    const std::string command = "ffmpeg -i \"" + name + "\"";
    const auto report = ToClassicReport(
        command + "\nffmpeg version 5\nInput #0, mp3, from '" + name + "':\n" + kDuration, command, name);
    EXPECT_EQ(report.text, "Input #0, mp3:\n" + kDuration);
    EXPECT_EQ(Report("  Stream #0:0: Video: h264, 8x8\n    Metadata:\n      Stream #0:7: Audio: mp3, 8 Hz, mono\n"
                     "  Stream #0:1: Subtitle: mov_text\nAt least one output file must be specified\n")
                  .text,
        "Input #0, mov,mp4:\n" + kDuration + "  Stream #0.0: Video: h264, 8x8\n");
    EXPECT_EQ(ToClassicReport("ffmpeg\nInput.mp4: Input/output error\n", "", "").text, "");
    EXPECT_EQ(ToClassicMpegReport("mpgtx -i x\n/b\n  Interlaced\n", "mpgtx -i x", "/b\n  Interlaced"), "");
    EXPECT_EQ(ToClassicReport("x\nInput #0, Audio: a:\n  Duration: 00:00:02.00, Video: v\n", "", "").text,
        "Input #0, \n  Duration: 00:00:02.00, \n");
    // A language is passed on only when it is one.
    const auto head = "Input #0, mov,mp4:\n" + kDuration;
    EXPECT_EQ(Report("  Stream #0:0(en-US): Audio: aac, 8 Hz, mono\n").text,
        head + "  Stream #0.0(en-US): Audio: aac, 8 Hz, mono\n");
    EXPECT_EQ(Report("  Stream #0:0(start: 9): Audio: aac, 8 Hz, mono\n").text,
        head + "  Stream #0.0: Audio: aac, 8 Hz, mono\n");
    // Streams of a group count although they lie deeper.
    EXPECT_EQ(Report("  Stream group #0:0[0x1]: Tile Grid:\n    Stream #0:0: Audio: a, 8 Hz, mono\n"
                     "  Stream #0:1: Audio: b, 8 Hz, mono\n")
                  .text,
        head + "  Stream #0.0: Audio: a, 8 Hz, mono\n  Stream #0.1: Audio: b, 8 Hz, mono\n");
}

TEST(ToolDialect, sound_and_films_keep_what_the_rules_read_in_their_order)
{
    const std::pair<const char*, const char*> sounds[] = {
        { "flac, 44100 Hz, stereo, s32 (24 bit)", "flac, 44100 Hz, stereo" },
        { "aac, 44100 Hz, fltp, 9 kb/s", "aac, 44100 Hz, 0 channels, 9 kb/s" },
        { "none (zz9a / 0x61397A7A), 8000 Hz, mono", "zz9a / 0x61397A7A, 8000 Hz, mono" },
        { "none ([153][153][0][0] / 0x9999), 8000 Hz, mono", "0x9999, 8000 Hz, mono" },
        { "none, 8000 Hz, mono", "0x0000, 8000 Hz, mono" },
    };
    for (const auto& [facts, classic] : sounds)
        EXPECT_EQ(ToClassicAudio(facts, StreamDialect::Current).text, classic);
    EXPECT_EQ(ToClassicAudio("mp4a / 0x61, 8 Hz, mono", StreamDialect::Classic).text, "mp4a / 0x61, 8 Hz, mono");
    const std::pair<const char*, const char*> films[] = {
        { "ffv1, gbrp10le(pc, gbr/unknown/unknown), 64x48, lossless", "ffv1, rgb24, 64x48" },
        { "flv1, none(progressive), 128x96, 200 kb/s, 0.0000 fps, 9 tbr", "flv1, 128x96, 200 kb/s, 0.00 fps" },
        { "mpeg4, yuv420p, 8x8, 12.5 tbr, 25 tbn", "mpeg4, yuv420p, 8x8, 12.50 fps" },
        { "mjpeg, yuvj420p, 32x24,  0.08 fps(r)", "mjpeg, yuvj420p, 32x24, 0.08 fps" },
    };
    for (const auto& [facts, classic] : films)
        EXPECT_EQ(ToClassicVideo(facts, StreamDialect::Current).text, classic);
    // The aspect of the stream overrides that of the codec.
    EXPECT_FLOAT_EQ(ToClassicVideo("v, 8x8 [SAR 1:1 DAR 4:3], SAR 2:1 DAR 16:9", StreamDialect::Current).displayAspect,
        16.0F / 9.0F);
}

TEST(ToolDialect, layouts_are_counted)
{
    std::string nested;
    for (int i = 0; i < 1'000'000; ++i)
        nested += "+downmix";
    const std::pair<std::string, int> rows[] = { { "ambisonic 1+stereo", 6 }, { "something", 0 },
        { "ambisonic 999+2147483647 channels", 101 * 101 + 0xFFFF }, { "ambisonic -441002007", 1 }, { nested, 0 } };
    for (const auto& [layout, channels] : rows)
        EXPECT_EQ(ChannelsOfLayout(layout), channels) << layout.substr(0, 40);
}

TEST(ToolDialect, covers_turns_and_endless_times_are_remembered_beside_the_text)
{
    const std::string film = "  Stream #0:1: Video: mjpeg, yuvj420p, 600x400, 90k tbr, 90k tbn";
    const auto marked = Report(film + " (attached pic)\n");
    EXPECT_TRUE(marked.streams.empty());
    ASSERT_TRUE(marked.cover);
    EXPECT_EQ(marked.cover->width * 1000 + marked.cover->height, 600'400);
    EXPECT_TRUE(Report(film + "\n").cover);

    const std::string turn = "      displaymatrix: rotation of -90.00 degrees\n";
    const auto lies = [&](const std::string& below) { return Report(film + "\n" + below).streams[0].lying; };
    EXPECT_TRUE(lies("    Side data:\n" + turn));
    EXPECT_FALSE(lies("    Metadata:\n" + turn));
    EXPECT_FALSE(lies("    Side data:\n      displaymatrix: rotation of 180.00 degrees\n"));

    const auto time = [](const std::string& text) {
        return ToClassicReport(kHead + "  Duration: " + text + "\n", "", "").text.substr(19);
    };
    EXPECT_EQ(time("100:00:00.00, start: 1"), "  Duration: 99:59:59.9, start: 1\n");
    EXPECT_EQ(time("-00:00:01.00, start: 1"), "  Duration: N/A, start: 1\n");

    const std::string log = "mpgtx -i \"/interlaced 25 fps.mpg\"\n/interlaced 25 fps.mpg\n";
    EXPECT_EQ(ToClassicMpegReport(log + "  Not interlaced, chroma format: 4:2:0\r\n", "", ""), "");
    EXPECT_EQ(ToClassicMpegReport(log + "  Interlaced, chroma\r\n  Size [8 x 8]\n", "", ""),
        "  interlaced, chroma\n  Size [8 x 8]\n");
}

TEST(ToolDialectTags, they_come_from_the_file_or_its_sound_and_from_nowhere_else)
{
    const auto tagsOf = [](const std::string& head, const std::string& tail) {
        return ToClassicReport("call\nInput #0, mp3, from 'artist : no.mp3':\n" + head
                + "  Duration: 00:00:01.00, start: 0.0, bitrate: 1 kb/s\n" + tail,
            "call", "artist : no.mp3")
            .tags;
    };
    EXPECT_EQ(tagsOf("  Metadata:\n    title           : T\n    artist          : The Artist: one\n"
                     "                    : artist : continued\n    ALBUM           : Of all\n"
                     "    track           : 3/12\n    date            : 1987-05-01\n",
                  "    Metadata:\n      artist          : Another\n"),
        (MediaTags{ "The Artist: one", "Of all", "T", 3, 1987 }));
    EXPECT_EQ(tagsOf("",
                  "  Chapters:\n    Chapter #0:0: start 0.0, end 1.0\n      Metadata:\n        title           : One\n"
                  "  Stream #0:0: Audio: vorbis, 44100 Hz, mono, fltp, 80 kb/s\n    Metadata:\n"
                  "      ARTIST          : A\n      album           : \n      track           : A1\n      date         "
                  "   : 0\n"
                  "  Stream #0:1: Video: mjpeg, yuvj420p, 8x8, 90k tbr (attached pic)\n    Metadata:\n"
                  "      title           : Front\n"),
        (MediaTags{ "A", "", "" }));
    EXPECT_EQ(tagsOf("  Metadata:\n    artist\n    album_artist    : B\n", ""), MediaTags());
}
