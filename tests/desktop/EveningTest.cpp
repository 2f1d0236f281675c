#include "tests/desktop/PlayerDesk.h"
#include "tests/platform/PrivateBus.h"

#include <filesystem>
#include <fstream>

namespace zentaro::trial {
namespace {

namespace fs = std::filesystem;

/// What a screen reader would say, in its order.
class Reader {
public:
    explicit Reader(const Desktop& desktop)
        : m_process({ "DISPLAY=" + desktop.Name(), "/usr/bin/python3", Script("reader.py") })
    {
    }
    static std::string Script(const std::string& name)
    {
        return (fs::path(Helper("")).parent_path() / "data" / name).string();
    }
    /// Waits until it says so, after what was heard before; the rest of that line is heard, too.
    testing::AssertionResult Says(const std::string& words, std::chrono::milliseconds limit = 3 * kPatience)
    {
        const auto start = m_heard;
        const auto isSaid = [&] {
            const auto all = m_process.Output();
            const auto found = all.find(words, start);
            m_heard = found == std::string::npos ? start : all.find('\n', found);
            return found != std::string::npos && m_heard != std::string::npos;
        };
        return WaitUntil(isSaid, limit) ? testing::AssertionSuccess()
                                        : testing::AssertionFailure() << words << " is not in:\n"
                                                                      << m_process.Output().substr(start);
    }
    std::string All() const { return m_process.Output(); }

private:
    Process m_process;
    std::size_t m_heard = 0;
};

class Evening : public PlayerDesk {
protected:
    Evening()
        : m_launcher({ "/usr/libexec/at-spi-bus-launcher", "--launch-immediately" })
    {
        // Readers would take the address from the display, where it may be that of a bus before. The player asks for
        // it.
        m_session.OutputOf("gdbus wait --session org.a11y.Bus");
        const auto answer = m_session.OutputOf("gdbus call --session --dest org.a11y.Bus --object-path /org/a11y/bus "
                                               "--method org.a11y.Bus.GetAddress");
        const auto begin = answer.find('\'') + 1;
        setenv("AT_SPI_BUS_ADDRESS", answer.substr(begin, answer.rfind('\'') - begin).c_str(), 1);
        fs::create_directory(m_folder);
        // Long enough not to end while somebody still looks for its button on a busy machine.
        const auto words = m_folder + "/words.srt";
        std::ofstream(words) << "1\n00:00:00,000 --> 00:02:59,000\nWords\n";
        Process tool({ "ffmpeg", "-v", "error", "-nostdin", "-stream_loop", "8", "-i", Clips::Make("film.mkv", 20),
            "-i", words, "-c", "copy", "-c:s", "srt", "-t", "180", m_folder + "/1.mkv" });
        EXPECT_EQ(tool.WaitForEnd(4 * kPatience), 0) << tool.Output();
        fs::remove(words);
        for (const auto* const name : { "/2.mkv", "/3.mkv" })
            fs::copy_file(m_folder + "/1.mkv", m_folder + name);
        StoreSettings([&](PlayerSettings& settings) { settings.SnapshotPath = m_folder + "/shots"; });
    }

    ShownPlayer ShowOnBus(Desktop& desktop = Screen()) const
    {
        return Show(Start({}, ".",
                        { "DISPLAY=" + desktop.Name(), "DBUS_SESSION_BUS_ADDRESS=" + m_session.Address(),
                            "AT_SPI_BUS_ADDRESS=", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1" }),
            desktop);
    }

    const std::string m_folder = InHome("films");

private:
    platform::PrivateBus m_session;
    Process m_launcher;
};

TEST_F(Evening, GoesByTheAccessibilityTreeAlone)
{
    auto player = ShowOnBus();
    Process listener({ "/usr/bin/python3", Reader::Script("evening.py"), m_folder });
    const auto end = listener.WaitForEnd(10 * kPatience);
    EXPECT_EQ(end, 0) << listener.Output();
    if (end == 0) {
        EXPECT_ENDED_CLEANLY(player);
    }
}

TEST_F(Evening, IsToldByAScreenReader)
{
    if (!fs::exists("/usr/bin/orca"))
        GTEST_SKIP() << "there is no screen reader (package orca)";
    // It changes the keyboard of its display.
    Desktop desktop;
    Reader reader(desktop);
    ASSERT_TRUE(reader.Says("Screen reader on."));
    auto player = ShowOnBus(desktop);
    ASSERT_TRUE(reader.Says("Zentaro frame."));
    desktop.Activate(player.window);
    const auto hear = [&](const std::string& keys, const std::string& words) {
        desktop.Press(keys);
        EXPECT_TRUE(reader.Says(words)) << "after " << keys;
    };
    const auto hearAtLast = [&](const std::string& keys, const std::string& words) {
        const auto pressAndHear = [&] {
            desktop.Press(keys);
            return bool(reader.Says(words, 2s));
        };
        EXPECT_TRUE(WaitUntil(pressAndHear)) << words << ", after " << keys << " again and again";
    };
    hear("ctrl+o", "File name: text.");
    desktop.Type(m_folder);
    hear("Return", "return"); // takes what the dialog offers to complete it
    hear("Return", "return");
    hear("shift+Tab", "Files tree.");
    desktop.Press("ctrl+a");
    hear("Return", "1.mkv, playing");
    hear("F6", "1.mkv, playing");
    // The others come when they have been looked into.
    hearAtLast("End", "3.mkv");
    hear("Return", "3.mkv, playing");
    hear("space", "Paused");
    hear("shift+F6", "Video.");
    // How long the film is comes with its first pictures.
    hearAtLast("t", "of 3:00");
    hear("shift+Right", "of 3:00");
    hear("Menu", "Audio Track.");
    hear("Down", "Subtitles.");
    hear("Right", "Off");
    hear("Down", "Track 1.");
    hear("Return", "Video.");
    hear("s", "Saved IMG_00001.png");
    desktop.Press("ctrl+q");
    EXPECT_EQ(player.process.WaitForEnd(), 0);
    if (HasFailure())
        std::cout << reader.All();
}

} // namespace
} // namespace zentaro::trial
