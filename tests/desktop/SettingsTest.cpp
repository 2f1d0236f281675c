#include "tests/desktop/PlayerDesk.h"

namespace zentaro::trial {
namespace {

class Settings : public PlayerDesk { };

TEST_F(Settings, TheFirstStartMakesTheFileAndClosingWritesTheWindowsPlace)
{
    auto player = StartAndShow();
    EXPECT_TRUE(ReadWholeFile(ConfigPath()).starts_with("English\r\n" + Home() + "\r\n 1 \r\n"));
    EXPECT_EQ(player.Place().width, 388);
    EXPECT_EQ(player.Place().height, 515);

    const auto bar = player.OnScreen(player.Layout().TitleBar());
    EXPECT_TRUE(Screen().DragWindow(player.window, bar.left + 150, bar.top + 15, bar.left + 50, bar.top + 75,
        [&] { return player.Place().left <= bar.left - 80; }));
    const auto place = player.Place();
    EXPECT_CLOSES_CLEANLY(player);
    EXPECT_EQ(StoredSettings().WindowLeft, place.left * 15);
    EXPECT_EQ(StoredSettings().WindowTop, place.top * 15);
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
    EXPECT_TRUE(WaitUntil([&] { return player.Place() == Screen().Area(); }));
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
    std::string noise;
    for (unsigned i = 0, state = 1; i < 5000; ++i, state = state * 1664525 + 1013904223)
        noise += static_cast<char>(state >> 24);
    for (const auto& bytes : { noise, std::string(100'000'000, '7'), std::string() }) {
        WriteWholeFile(ConfigPath(), bytes);
        auto player = StartAndShow();
        EXPECT_EQ(StoredSettings().PlayMode, 1);
        EXPECT_CLOSES_CLEANLY(player);
    }
}

} // namespace
} // namespace zentaro::trial
