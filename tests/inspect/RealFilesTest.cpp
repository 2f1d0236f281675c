#include "inspect/ConsoleToolRunner.h"
#include "inspect/CoverPicture.h"
#include "inspect/DiskFiles.h"
#include "inspect/PreviewPicture.h"
#include "inspect/QtServices.h"
#include "inspect/SoundBars.h"
#include "inspect/clsAVIDelay.h"
#include "inspect/clsSource.h"
#include "platform/Files.h"
#include "tests/platform/WorkingFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

using namespace zentaro;
namespace fs = std::filesystem;

// Files made here and now with the real tools, inspected with the real tools.

namespace {

const std::string kFilm = " -f lavfi -i testsrc=size=64x48:rate=25:duration=0.6";
const std::string kSound = " -f lavfi -i sine=sample_rate=44100:duration=0.6";

class RealFiles : public testing::Test {
protected:
    void SetUp() override
    {
        const fs::path program = Path("program folder");
        fs::create_directory(program);
        for (const std::string tool : { "ffmpeg", "mpgtx" })
            fs::create_symlink(FindTool(tool, ""), program / tool);
        fs::create_directory(Path("scratch"));

        m_context.tools = &m_tools;
        m_context.files = &m_files;
        m_context.readAviStreams = ReadAviStreams;
        m_context.decodePicture = DecodePictureFile;
        m_context.ffmpeg = program / "ffmpeg";
        m_context.mpgtx = program / "mpgtx";
        m_context.workingFolder = Path("scratch/");
        m_context.audioCodecNames = &m_names;
        m_context.videoCodecNames = &m_names;
        m_context.defaultVideoPicture = Picture(1, 1, { 1 });
        m_context.defaultAudioPicture = Picture(1, 1, { 2 });
    }

    std::string Path(const std::string& name) const { return m_folder / name; }

    /// Runs ffmpeg with these words, and makes that file in the test's folder. False when there is none afterwards.
    bool Make(const std::string& name, const std::string& words) const
    {
        const auto command = "cd '" + m_folder.Path() + "' && ffmpeg -v error -nostdin -y " + words + " " + name;
        return std::system(command.c_str()) == 0 && fs::file_size(Path(name)) > 0;
    }

    clsSource Inspect(const std::string& name)
    {
        clsSource source(m_context);
        EXPECT_TRUE(source.GetVideoInformation(Path(name))) << name << ": " << source.Outcome().error;
        EXPECT_TRUE(fs::is_empty(Path("scratch"))) << name;
        return source;
    }

    const platform::WorkingFolder m_folder;
    ToolContext m_toolContext;
    ConsoleToolRunner m_tools{ m_toolContext };
    DiskFiles m_files{ [](std::int64_t seconds) { return std::to_string(seconds); } };
    CodecNames m_names;
    InspectionContext m_context;
};

std::uint32_t CentreOf(const Picture& picture)
{
    return picture.IsEmpty() ? 0 : picture.Pixels()[(picture.Height() / 2) * picture.Width() + picture.Width() / 2];
}

/// Mostly of one colour: the bits of a pixel that stay when small differences are dropped.
constexpr std::uint32_t kColourBits = 0xC000C0;
constexpr std::uint32_t kRed = 0xC00000;
constexpr std::uint32_t kBlue = 0x0000C0;

} // namespace

TEST_F(RealFiles, every_supported_kind_of_file_opens_with_its_picture)
{
    struct Kind {
        const char* extensions;
        const char* codecs;
        bool film = false;
    };
    const Kind kinds[] = {
        { "wav", " -f wav " },
        { "mp3", " -f mp3 " },
        { "aac", " -f adts " },
        { "mka", " -f matroska -c:a flac " },
        { "m4a", " -f ipod " },
        { "ogg", " -f ogg -c:a libvorbis " },
        { "wma", " -f asf -c:a wmav2 " },
        { "flv", " -f flv ", true },
        { "mkv", " -f matroska ", true },
        { "mpg mpe mpeg", " -f mpeg -c:v mpeg2video ", true },
        { "mp4 m4v", " -f mp4 ", true },
        { "ogm", " -f ogg -c:v libtheora -c:a libvorbis ", true },
        { "mov hdmov qt", " -f mov ", true },
        { "3gp 3gpp 3g2", " -f 3gp -c:v mpeg4 -c:a aac ", true },
        { "avi", " -f avi ", true },
        { "wmv asf", " -f asf -c:v wmv2 -c:a wmav2 ", true },
    };
    std::size_t opened = 0;
    for (const auto& kind : kinds) {
        ASSERT_TRUE(Make("made", (kind.film ? kFilm : "") + kSound + kind.codecs)) << kind.extensions;
        std::istringstream extensions(kind.extensions);
        for (std::string extension; extensions >> extension; ++opened) {
            const auto name = "a." + extension;
            SCOPED_TRACE(name);
            fs::copy_file(Path("made"), Path(name));
            const auto source = Inspect(name);
            EXPECT_EQ(source.StreamCount(), kind.film ? 2 : 1);
            EXPECT_TRUE(source.Outcome().messages.empty());
            EXPECT_EQ(source.Outcome().lastPicture == m_context.defaultAudioPicture, !kind.film);
            EXPECT_EQ(source.Outcome().lastPicture.Height() > 1, kind.film);
            EXPECT_EQ(source.IsAVI(), extension == "avi");
        }
    }
    EXPECT_EQ(opened, 24U);
}

TEST_F(RealFiles, any_name_reaches_the_tools_as_it_is)
{
    ASSERT_TRUE(Make("made.mp4", kFilm + kSound));
    for (const std::string name : { "-i.mp4", "with blanks.mp4", "a\"b'c.mp4", "start: 5, Audio: x.mp4",
             "concat:a|b.mp4", "100%d.mp4", "$HOME `x`;&.mp4", "日本語 ♫.mp4", "\xff\xfe.mp4", "Unknown format.mp4",
             "line\nInput #0, x\n  Duration: 00:00:09.0, x\n.mp4" }) {
        fs::copy_file(Path("made.mp4"), Path(name));
        const auto source = Inspect(name);
        EXPECT_EQ(source.StreamCount(), 2) << name;
        EXPECT_EQ(source.Outcome().lastPicture.Width(), 90) << name;
        EXPECT_TRUE(source.Outcome().report.starts_with("Stream information of " + Path(name) + "\r\n")) << name;
    }
}

TEST_F(RealFiles, each_of_several_films_shows_its_own_picture)
{
    ASSERT_TRUE(Make("two.mkv",
        "-f lavfi -i color=red:size=64x48:duration=0.6 -f lavfi -i color=blue:size=160x90:duration=0.6 -map 0 -map 1 "
        "-pix_fmt yuv420p"));
    const auto source = Inspect("two.mkv");
    ASSERT_EQ(source.StreamCount(), 2);
    EXPECT_EQ(CentreOf(source.StreamImage(0)) & kColourBits, kRed);
    EXPECT_EQ(CentreOf(source.StreamImage(1)) & kColourBits, kBlue);
    EXPECT_EQ(source.StreamImage(1).Height(), 52);
}

TEST_F(RealFiles, a_cover_is_the_picture_of_a_sound)
{
    ASSERT_TRUE(Make("cover.png", "-f lavfi -i color=red:size=100x50 -frames:v 1"));
    ASSERT_TRUE(Make("a.mp3", kSound + " -i cover.png -map 0 -map 1 -disposition:v attached_pic"));
    const auto source = Inspect("a.mp3");
    ASSERT_EQ(source.StreamCount(), 1);
    EXPECT_EQ(source.StreamImage(0), m_context.defaultAudioPicture);
    EXPECT_EQ(CentreOf(source.Outcome().lastPicture) & kColourBits, kRed);
    EXPECT_EQ(source.Outcome().lastPicture.Width(), 90);
}

TEST_F(RealFiles, a_cover_to_look_at_comes_from_the_file_or_from_a_picture_beside_it)
{
    ASSERT_TRUE(Make("red.png", "-f lavfi -i color=red:size=1600x800 -frames:v 1"));
    ASSERT_TRUE(Make("plain.ogg", kSound));
    const auto coverOf = [&](const std::string& song) {
        const auto file = Path("scratch/cover.jpg");
        const bool isMade = MakeCover(m_context.ffmpeg, Path(song), '/', file, 1000, m_toolContext);
        auto cover = isMade ? DecodePictureFile(file) : Picture();
        fs::remove(file);
        return cover;
    };
    for (const std::string name : { "a.mp3", "a.m4a", "a.flac" }) {
        ASSERT_TRUE(
            Make(name, kSound + " -i red.png -map 0 -map 1 -c:v mjpeg -pix_fmt yuvj420p -disposition:v attached_pic"));
        const auto cover = coverOf(name);
        EXPECT_EQ(cover.Width(), 1000) << name;
        EXPECT_EQ(cover.Height(), 500) << name;
        EXPECT_EQ(CentreOf(cover) & kColourBits, kRed) << name;
    }
    EXPECT_FALSE(coverOf("plain.ogg"));
    fs::copy(Path("red.png"), Path("Folder.PNG"));
    EXPECT_EQ(CentreOf(coverOf("plain.ogg")) & kColourBits, kRed);
}

TEST_F(RealFiles, a_piece_of_sound_has_its_samples_and_what_lies_behind_the_end_has_none)
{
    ASSERT_TRUE(Make("five.mp3", "-f lavfi -i sine=frequency=1000:duration=5"));
    const auto samplesOf = [&](const SoundPiece& piece) {
        const auto output = Path("scratch/sound.raw");
        m_tools.RunAndWait(SoundCommand(m_context.ffmpeg, piece, output));
        const auto sound = platform::ReadTextFile(output, 1 << 20).value_or("");
        fs::remove(output);
        return static_cast<double>(sound.size()) / 2 / kBarSoundRate;
    };
    EXPECT_NEAR(samplesOf({ Path("five.mp3"), 0, 2 }), 2, 0.05);
    EXPECT_NEAR(samplesOf({ Path("five.mp3"), 4, 60 }), 1, 0.1);
    EXPECT_EQ(samplesOf({ Path("five.mp3"), 60, 60 }), 0);
}

TEST_F(RealFiles, a_film_taken_upright_stands_upright)
{
    ASSERT_TRUE(Make("lying.mp4", "-f lavfi -i testsrc=size=128x72:duration=0.6"));
    // Before 6.0 a tag turned the film, since then an option of the input does.
    ASSERT_TRUE(Make("turned.mp4", "-display_rotation 90 -i lying.mp4 -c copy 2>/dev/null")
        || Make("turned.mp4", "-i lying.mp4 -c copy -metadata:s:v rotate=90"));
    const auto source = Inspect("turned.mp4");
    ASSERT_EQ(source.StreamCount(), 1);
    EXPECT_EQ(source.Streams()[0].Width, 128);
    EXPECT_EQ(source.StreamImage(0).Width(), 40);
    EXPECT_EQ(source.StreamImage(0).Height(), 72);
}

TEST_F(RealFiles, what_is_no_media_file_is_refused_in_words)
{
    std::ofstream(Path("text.mp3")) << "no sound";
    std::ofstream(Path("empty.mp4"));
    std::ofstream(Path("closed.mp4")) << "secret";
    fs::permissions(Path("closed.mp4"), fs::perms::none);
    fs::create_directory(Path("folder.mkv"));
    ASSERT_EQ(::mkfifo(Path("pipe.mp4").c_str(), 0600), 0);
    m_context.reportLimit.silence = std::chrono::seconds(2);
    const std::string bad = "Unsupported file format or the file is corrupted.";
    const bool isRoot = ::geteuid() == 0; // who may read anything
    for (const auto& [name, reason] : std::map<std::string, std::string>{
             { "missing.avi", bad + "\r\nThere is no such file." },
             { "text.mp3", bad },
             { "empty.mp4", bad + "\r\nThe file is empty." },
             { "closed.mp4",
                 bad
                     + (isRoot ? ""
                               : "\r\nThe file cannot be read. It may belong to another user, or its drive may be "
                                 "damaged.") },
             { "folder.mkv", bad + "\r\nIt is a folder, not a file." },
             { "pipe.mp4", kHangsText },
         }) {
        clsSource source(m_context);
        EXPECT_FALSE(source.GetVideoInformation(Path(name)));
        EXPECT_EQ(source.Outcome().error, reason) << name;
    }
    m_context.ffmpeg = Path("no tool here");
    clsSource source(m_context);
    EXPECT_FALSE(source.GetVideoInformation(Path("missing.avi")));
    EXPECT_TRUE(source.Outcome().error.starts_with("Could not create piped process. LastError "));
}

TEST_F(RealFiles, avi_files_of_a_current_muxer_are_read_and_only_regular_files)
{
    const std::pair<std::string, std::string> rows[] = {
        { " -map 0 -map 1 -c:a libmp3lame", " video-1 audio0" },
        { " -map 0 -map 1 -c:a ac3", " video-1 audio0" },
        { " -map 1 -map 0 -map 2 -c:a:0 pcm_s16le -c:a:1 mp2", " audio-1 video-1 audio0" },
    };
    const std::string name = "-i \"'\xFF\xFE%d:*.avi"; // any bytes will do
    for (const auto& [options, expected] : rows) {
        ASSERT_TRUE(Make("made.avi", kFilm + kSound + kSound + options));
        fs::rename(Path("made.avi"), Path(name));
        clsAVIDelay avi;
        EXPECT_TRUE(avi.OpenFile(Path(name)));
        EXPECT_EQ(avi.FileName(), Path(name));
        std::string text;
        for (std::int32_t i = 0; i < avi.StreamCount(); ++i)
            text += (avi.StreamIsAudio(i) ? " audio" : " video") + std::to_string(avi.StreamDelay(i));
        EXPECT_EQ(text, expected);
    }
    // A download that stopped halfway: its first frames are there, and nothing behind them is needed.
    fs::resize_file(Path(name), fs::file_size(Path(name)) / 2);
    EXPECT_TRUE(clsAVIDelay().OpenFile(Path(name)));
    ASSERT_EQ(::mkfifo(Path("fifo").c_str(), 0600), 0);
    for (const auto& path : { m_folder.Path(), Path("missing"), Path("fifo"), std::string("/dev/zero"), std::string() })
        EXPECT_FALSE(clsAVIDelay().OpenFile(path)) << path;
}

TEST_F(RealFiles, a_picture_is_saved_and_decoded_with_every_bit)
{
    const std::vector<std::uint32_t> pixels{ 0xFF102030, 0x80405060, 0xFF708090, 0x01FF0000, 0xFFFFFFFF, 0xFF000001 };
    const std::string name = "\xC3\xA4 picture"; // without an extension
    ASSERT_TRUE(SavePictureFile(Picture(3, 2, pixels), Path(name)));
    const auto decoded = DecodePictureFile(Path(name));
    ASSERT_EQ(decoded.Width(), 3);
    ASSERT_EQ(decoded.Height(), 2);
    EXPECT_EQ(std::vector(decoded.Pixels(), decoded.Pixels() + 6), pixels);
    EXPECT_FALSE(SavePictureFile({}, Path("empty")));
    EXPECT_TRUE(DecodePictureFile(Path("missing")).IsEmpty());
}

TEST_F(RealFiles, a_preview_has_the_films_shape_as_seen_and_its_time)
{
    const std::string film = " -f lavfi -i color=red:s=64x48:r=25:d=2 -f lavfi -i color=blue:s=64x48:r=25:d=2"
                             " -filter_complex [0][1]concat,setsar=16/9 -c:v mpeg4 -g 1000 -sc_threshold 1000000000 ";
    ASSERT_TRUE(Make("wide.mp4", film));
    ASSERT_TRUE(Make("lying.mp4", " -f lavfi -i color=red:s=64x48:d=0.3 -c:v mpeg4 "));
    ASSERT_TRUE(Make("upright.mp4", " -i lying.mp4 -c copy -metadata:s:v rotate=90 "));
    ASSERT_TRUE(Make("sound.mp3", kSound));
    const auto preview = [&](const std::string& name, double time, bool isExact) {
        ToolContext tools;
        return DecodePictureBytes(MakePreview(m_context.ffmpeg, { Path(name), time, isExact }, tools));
    };
    const auto key = preview("wide.mp4", 3000, false);
    EXPECT_EQ(key.Width(), kPreviewWidth);
    EXPECT_NEAR(key.Height(), kPreviewWidth * 27 / 64, 2);
    EXPECT_EQ(CentreOf(key) & kColourBits, kRed) << "the key frame before it";
    EXPECT_EQ(CentreOf(preview("wide.mp4", 3000, true)) & kColourBits, kBlue);
    const auto upright = preview("upright.mp4", 0, false);
    EXPECT_EQ(upright.Height(), kPreviewHeight);
    EXPECT_EQ(upright.Width(), kPreviewHeight * 3 / 4);
    EXPECT_TRUE(preview("sound.mp3", 0, false).IsEmpty());
    EXPECT_TRUE(preview("not there.mp4", 0, true).IsEmpty());
    ToolContext cancelled;
    cancelled.CancelExecute = -1;
    EXPECT_EQ(MakePreview(m_context.ffmpeg, { Path("wide.mp4"), 0, false }, cancelled), "");
}

TEST_F(RealFiles, a_preview_comes_from_its_place_without_an_index_and_from_none_that_is_not_written_yet)
{
    // Brighter with every second, a key frame in each.
    const std::string film =
        "-f lavfi -i \"color=black:size=64x48:rate=5:duration=60,format=gray,geq=lum='16+3*T'\" -g 5 ";
    ASSERT_TRUE(Make("film.mkv", film + "-c:v libx264") && Make("film.avi", film + "-c:v mpeg4"));
    const auto cutTo = [&](const char* name, double share) {
        fs::resize_file(
            Path(name), static_cast<std::uintmax_t>(static_cast<double>(fs::file_size(Path(name))) * share));
    };
    cutTo("film.mkv", 0.5);
    cutTo("film.avi", 0.95);
    const auto brightness = [&](const char* name, double time) {
        ToolContext tools;
        const auto picture =
            DecodePictureBytes(MakePreview(m_context.ffmpeg, { Path(name), time * 1000, false }, tools));
        return picture ? static_cast<double>(picture.Pixels()[0] & 0xFFU) : -1;
    };
    constexpr double perSecond = 3 * 255.0 / 219;
    EXPECT_NEAR(brightness("film.mkv", 10), 10 * perSecond, 10);
    EXPECT_EQ(brightness("film.mkv", 55), -1);
    for (const double time : { 5.0, 25.0, 45.0 })
        EXPECT_NEAR(brightness("film.avi", time), time * perSecond, 11 * perSecond) << time;
}
