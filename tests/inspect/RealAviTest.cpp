#include "inspect/clsAVIDelay.h"
#include "tests/inspect/AviBuilder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>

using namespace zentaro;
namespace fs = std::filesystem;

namespace {

class AviFiles : public testing::Test {
protected:
    AviFiles()
    {
        auto name = (fs::temp_directory_path() / "zentaro-avi-XXXXXX").string();
        m_folder = ::mkdtemp(name.data());
    }
    ~AviFiles() override { fs::remove_all(m_folder); }
    std::string Path(const std::string& name) const { return m_folder + '/' + name; }

    std::string m_folder;
};

} // namespace

TEST_F(AviFiles, a_file_may_have_any_name_but_must_be_a_regular_file)
{
    for (const char* name : { "\xC3\xA4 \xE2\x82\xAC \xF0\x9F\x8E\xAC.avi", "\xFF\xFE\x80.avi", "-i \"'%d:*.avi" }) {
        std::ofstream(Path(name), std::ios::binary) << AviBuilder().AddAudioStream({}).File();
        clsAVIDelay avi;
        EXPECT_TRUE(avi.OpenFile(Path(name))) << name;
        EXPECT_EQ(avi.StreamCount(), 1);
        EXPECT_EQ(avi.FileName(), Path(name));
    }
    ASSERT_EQ(::mkfifo(Path("fifo").c_str(), 0600), 0);
    for (const auto& path : { m_folder, Path("missing"), Path("fifo"), std::string("/dev/zero"), std::string() })
        EXPECT_FALSE(clsAVIDelay().OpenFile(path)) << path;
}

TEST_F(AviFiles, files_of_a_current_muxer_are_read)
{
    if (std::system("command -v ffmpeg > /dev/null") != 0)
        GTEST_SKIP() << "no ffmpeg";
    const std::pair<std::string, std::string> rows[] = {
        { "-map 0 -map 1 -c:a libmp3lame", " video-1 audio0" },
        { "-map 0 -map 1 -c:a ac3", " video-1 audio0" },
        { "-map 1 -map 0 -map 2 -c:a:0 pcm_s16le -c:a:1 mp2", " audio-1 video-1 audio0" },
    };
    for (const auto& [options, expected] : rows) {
        const auto command = "ffmpeg -v error -y -nostdin -f lavfi -i testsrc=s=64x48:r=25:d=2 -f lavfi -i sine=d=2 "
                             "-f lavfi -i sine=f=300:d=2 -c:v mpeg4 "
            + options + " '" + Path("real.avi") + "'";
        EXPECT_EQ(std::system(command.c_str()), 0);
        clsAVIDelay avi;
        EXPECT_TRUE(avi.OpenFile(Path("real.avi"))) << options;
        std::string text;
        for (std::int32_t i = 0; i < avi.StreamCount(); ++i)
            text += (avi.StreamIsAudio(i) ? " audio" : " video") + std::to_string(avi.StreamDelay(i));
        EXPECT_EQ(text, expected);
    }
    // A download that stopped halfway: its first frames are there, and nothing behind them is needed.
    fs::resize_file(Path("real.avi"), fs::file_size(Path("real.avi")) / 2);
    EXPECT_TRUE(clsAVIDelay().OpenFile(Path("real.avi")));
}
