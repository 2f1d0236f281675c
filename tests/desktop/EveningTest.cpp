#include "tests/desktop/PlayerDesk.h"
#include "tests/platform/PrivateBus.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>

namespace zentaro::trial {
namespace {

namespace fs = std::filesystem;

class Evening : public PlayerDesk {
protected:
    /// The films and the settings of every evening.
    std::string MakeFilms() const
    {
        const auto folder = InHome("films");
        fs::create_directory(folder);
        for (const auto* const name : { "/1.mkv", "/2.mkv", "/3.mkv" })
            MakeFilm(folder + name);
        StoreSettings([&](PlayerSettings& settings) { settings.SnapshotPath = folder + "/shots"; });
        return folder;
    }
    ShownPlayer ShowTo(const platform::PrivateBus& session, const std::vector<std::string>& files = {}) const
    {
        return Show(Start(
            files, ".", { "DBUS_SESSION_BUS_ADDRESS=" + session.Address(), "QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1" }));
    }
    /// A film of twenty seconds with subtitles.
    static void MakeFilm(const std::string& path)
    {
        const auto words = path + ".srt";
        std::ofstream(words) << "1\n00:00:00,000 --> 00:00:19,000\nWords\n";
        Process tool({ "ffmpeg", "-v", "error", "-nostdin", "-i", Clips::Make("film.mkv", 20), "-i", words, "-c",
            "copy", "-c:s", "srt", path });
        EXPECT_EQ(tool.WaitForEnd(4 * kPatience), 0) << tool.Output();
        fs::remove(words);
    }
};

TEST_F(Evening, GoesByWhatIsHeardAlone)
{
    const platform::PrivateBus session;
    Process launcher({ "/usr/libexec/at-spi-bus-launcher", "--launch-immediately" });
    const auto folder = MakeFilms();
    auto player = ShowTo(session);
    Process listener({ "/usr/bin/python3", (fs::path(Helper("")).parent_path() / "data/evening.py").string(), folder });
    const auto end = listener.WaitForEnd(10 * kPatience);
    EXPECT_EQ(end, 0) << listener.Output();
    if (end == 0) {
        EXPECT_ENDED_CLEANLY(player);
    }
}

/// What a screen reader says, by its log. Its voice is silent and needs no sound card.
class Reader {
public:
    Reader(const std::string& home, const std::string& bus, const Desktop& screen)
        : m_log(home + "/reader.log")
    {
        const auto voice = home + "/voice";
        fs::create_directories(voice + "/modules");
        std::ofstream(voice + "/speechd.conf")
            << "AudioOutputMethod \"alsa\"\nAudioALSADevice \"null\"\n"
            << "AddModule \"silent\" \"sd_generic\" \"silent.conf\"\nDefaultModule silent\n";
        std::ofstream(voice + "/modules/silent.conf")
            << "GenericExecuteSynth \"true\"\nAddVoice \"en\" \"MALE1\" \"silent\"\n";
        m_voice = Process({ "speech-dispatcher", "-C", voice, "-L", voice, "-P", voice + "/pid", "-c", "unix_socket",
            "-S", voice + "/socket", "-t", "0", "--run-single" });
        EXPECT_TRUE(WaitUntil([&] { return fs::exists(voice + "/socket"); })) << m_voice.Output();
        m_process = Process({ "DISPLAY=" + screen.Name(), "HOME=" + home, "XDG_DATA_HOME=" + home,
            "DBUS_SESSION_BUS_ADDRESS=" + bus, "SPEECHD_ADDRESS=unix_socket:" + voice + "/socket", "/usr/bin/orca",
            "--debug", "--debug-file", m_log, "--disable", "braille" });
    }
    std::string Output() const { return m_process.Output() + (fs::exists(m_log) ? ReadWholeFile(m_log) : "no log"); }
    /// Presses the keys; whether the reader then says the words.
    bool Says(const std::string& words, Desktop& screen, const std::string& keys = {})
    {
        const auto before = fs::exists(m_log) ? fs::file_size(m_log) : 0;
        if (!keys.empty())
            screen.Press(keys);
        const std::regex wanted("SPEECH OUTPUT: '[^\n]*" + words);
        return WaitUntil([&] {
            return fs::exists(m_log)
                && std::regex_search(
                    ReadWholeFile(m_log).substr(std::min<std::size_t>(before, fs::file_size(m_log))), wanted);
        });
    }

private:
    std::string m_log;
    Process m_voice;
    Process m_process;
};

TEST_F(Evening, IsToldByAScreenReader)
{
    if (!fs::exists("/usr/bin/orca"))
        GTEST_SKIP() << "There is no screen reader";
    const platform::PrivateBus session;
    Process launcher({ "/usr/libexec/at-spi-bus-launcher", "--launch-immediately" });
    const auto folder = MakeFilms();
    std::ofstream(folder + "/all.m3u8") << "1.mkv\n2.mkv\n3.mkv\n";
    Reader reader(Home(), session.Address(), Screen());
    ASSERT_TRUE(reader.Says("Screen reader on", Screen())) << reader.Output();
    auto player = ShowTo(session, { folder + "/all.m3u8" });
    EXPECT_TRUE(player.WaitForTitle("1.mkv"));
    EXPECT_TRUE(reader.Says("1\\.mkv, playing", Screen(), "F6 Home"));
    EXPECT_TRUE(reader.Says("2\\.mkv\\.", Screen(), "Down"));
    EXPECT_TRUE(reader.Says("3\\.mkv\\.", Screen(), "Down"));
    EXPECT_TRUE(reader.Says("notification 3\\.mkv, playing", Screen(), "Return"));
    EXPECT_TRUE(reader.Says("notification Find: 3 +1 of 3", Screen(), "3"));
    EXPECT_TRUE(reader.Says("Video", Screen(), "Escape shift+F6"));
    EXPECT_TRUE(reader.Says("notification Paused", Screen(), "space"));
    EXPECT_TRUE(reader.Says("notification 0:[01].", Screen(), "t"));
    EXPECT_TRUE(reader.Says("notification 0:10 of 0:20", Screen(), "5"));
    EXPECT_TRUE(reader.Says("Audio Track", Screen(), "shift+F10"));
    EXPECT_TRUE(reader.Says("Subtitles", Screen(), "Down"));
    EXPECT_TRUE(reader.Says("Off", Screen(), "Right"));
    EXPECT_TRUE(reader.Says("Track 1", Screen(), "Down"));
    Screen().Press("Return");
    EXPECT_TRUE(reader.Says("notification Saved IMG_", Screen(), "s"));
    EXPECT_TRUE(reader.Says("Find a Command", Screen(), "ctrl+shift+p"));
    EXPECT_TRUE(reader.Says("Mute, M", Screen(), "m u t e"));
    Screen().Press("Escape");
    EXPECT_TRUE(player.WaitForDialogs(0));
    Screen().Press("ctrl+q");
    EXPECT_EQ(player.process.WaitForEnd(), 0);
}

} // namespace
} // namespace zentaro::trial
