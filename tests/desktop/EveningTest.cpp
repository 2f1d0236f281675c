#include "tests/desktop/PlayerDesk.h"
#include "tests/platform/PrivateBus.h"

#include <filesystem>
#include <fstream>

namespace zentaro::trial {
namespace {

namespace fs = std::filesystem;

class Evening : public PlayerDesk {
protected:
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
    const auto folder = InHome("films");
    fs::create_directory(folder);
    for (const auto* const name : { "/1.mkv", "/2.mkv", "/3.mkv" })
        MakeFilm(folder + name);
    StoreSettings([&](PlayerSettings& settings) { settings.SnapshotPath = folder + "/shots"; });
    auto player =
        Show(Start({}, ".", { "DBUS_SESSION_BUS_ADDRESS=" + session.Address(), "QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1" }));
    Process listener({ "/usr/bin/python3", (fs::path(Helper("")).parent_path() / "data/evening.py").string(), folder });
    const auto end = listener.WaitForEnd(10 * kPatience);
    EXPECT_EQ(end, 0) << listener.Output();
    if (end == 0) {
        EXPECT_ENDED_CLEANLY(player);
    }
}

} // namespace
} // namespace zentaro::trial
