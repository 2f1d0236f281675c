#include "tests/desktop/PlayerDesk.h"

#include <csignal>
#include <filesystem>
#include <sstream>
#include <sys/stat.h>

namespace zentaro::desktop {
namespace {

namespace fs = std::filesystem;

class Settings : public PlayerDesk { };

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

TEST_F(Settings, TheFirstStartMakesTheFileAndClosingWritesTheWindowsPlace)
{
    auto player = StartAndShow();
    const auto lines = Lines(ReadWholeFile(ConfigPath()));
    ASSERT_EQ(lines.size(), 46u);
    for (const auto& line : lines)
        EXPECT_TRUE(line.ends_with('\r')) << line;
    EXPECT_EQ(lines[0], "English\r");
    EXPECT_EQ(lines[1], Home() + "\r");
    EXPECT_EQ(lines[2], " 1 \r");
    EXPECT_EQ(lines[41], " " + std::to_string((1280 * 15 - 388) / 2) + " \r");
    EXPECT_EQ(lines[44], " 515 \r");
    EXPECT_EQ(player.Place().width, 388);
    EXPECT_EQ(player.Place().height, 515);

    const auto bar = player.OnScreen(player.Layout().TitleBar());
    Screen().Drag(bar.left + 150, bar.top + 15, bar.left + 50, bar.top + 75);
    EXPECT_TRUE(WaitUntil([&] { return player.Place().left <= bar.left - 80; }));
    const auto place = player.Place();
    EXPECT_CLOSES_CLEANLY(player);
    const auto stored = StoredSettings();
    EXPECT_EQ(stored.WindowLeft, place.left * 15);
    EXPECT_EQ(stored.WindowTop, place.top * 15);
}

TEST_F(Settings, PlaceAndSizeComeBackWhenTheyAreToBeRemembered)
{
    StoreSettings([](PlayerSettings& settings) {
        settings.RememberLastPos = -1;
        settings.RememberLastSize = 1;
        settings.WindowLeft = 100 * 15;
        settings.WindowTop = 120 * 15;
        settings.WindowWidth = 600;
        settings.WindowHeight = 560;
    });
    const auto before = ReadWholeFile(ConfigPath());
    auto player = StartAndShow();
    const Rect wanted{ 100, 120, 600, 560 };
    EXPECT_TRUE(WaitUntil([&] { return player.Place() == wanted; }));

    // What a maximised window was before stays what is stored.
    Screen().DoubleClick(wanted.left + 200, wanted.top + 15);
    EXPECT_TRUE(WaitUntil([&] { return player.Place().width == 1280; }));
    EXPECT_CLOSES_CLEANLY(player);
    EXPECT_EQ(ReadWholeFile(ConfigPath()), before);

    // Places that the screen has not, or no longer wholly. What the start does to the size is nobody's choice.
    for (const auto& [left, top] : { std::pair{ -1200, 5000 }, { 1200, 780 } }) {
        StoreSettings([&](PlayerSettings& settings) {
            settings.RememberLastPos = 1;
            settings.WindowLeft = left * 15;
            settings.WindowTop = top * 15;
            settings.WindowWidth = 600;
        });
        auto lost = StartAndShow();
        EXPECT_TRUE(WaitUntil([&] { return SharedArea(lost.Place(), Screen().Area()) == 388 * 515; }));
        std::this_thread::sleep_for(400ms);
        EXPECT_CLOSES_CLEANLY(lost);
        EXPECT_EQ(StoredSettings().WindowWidth, 600);
    }
}

TEST_F(Settings, ADamagedFileIsReplacedByTheDefaults)
{
    std::string twentyLines;
    for (int i = 0; i < 20; ++i)
        twentyLines += " 0 \r\n";
    std::string noise;
    for (unsigned i = 0, state = 1; i < 5000; ++i, state = state * 1664525 + 1013904223)
        noise += static_cast<char>(state >> 24);
    for (const auto& bytes : { twentyLines, noise, std::string(100'000'000, '7'), std::string() }) {
        WriteWholeFile(ConfigPath(), bytes);
        auto player = StartAndShow();
        EXPECT_EQ(Lines(ReadWholeFile(ConfigPath())).size(), 46u);
        EXPECT_EQ(StoredSettings().PlayMode, 1);
        EXPECT_CLOSES_CLEANLY(player);
    }
}

TEST_F(Settings, AReadOnlyFileStaysAsItIs)
{
    StoreSettings([](PlayerSettings& settings) { settings.DefaultFolder = " "; });
    const auto before = ReadWholeFile(ConfigPath());
    ASSERT_EQ(chmod(ConfigPath().c_str(), 0444), 0);
    if (access(ConfigPath().c_str(), W_OK) == 0)
        GTEST_SKIP() << "this user may write everything";
    auto player = StartAndShow();
    EXPECT_CLOSES_CLEANLY(player);
    EXPECT_EQ(ReadWholeFile(ConfigPath()), before);
}

TEST_F(Settings, AFileThatIsDeletedMeanwhileStaysGoneAndAFolderInItsPlaceHarmsNothing)
{
    auto player = StartAndShow();
    fs::remove(ConfigPath());
    EXPECT_CLOSES_CLEANLY(player);
    EXPECT_FALSE(fs::exists(ConfigPath()));

    fs::create_directories(ConfigPath() + "/inside");
    auto beside = StartAndShow();
    EXPECT_CLOSES_CLEANLY(beside);
    EXPECT_TRUE(fs::is_directory(ConfigPath()));
}

} // namespace
} // namespace zentaro::desktop
