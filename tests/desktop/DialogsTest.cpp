#include "tests/desktop/PlayerDesk.h"

#include <filesystem>
#include <thread>

namespace zentaro::desktop {
namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t kF1 = 0xffbe;

/// The options, the about box and the help, without a hand on the mouse.
class Dialogs : public PlayerDesk {
protected:
    /// A browser that only notes what it is to show.
    Dialogs()
    {
        fs::create_directories(InHome("bin"));
        WriteWholeFile(InHome("bin/xdg-open"), "#!/bin/sh\necho \"$1\" >> '" + InHome("opened") + "'\n");
        fs::permissions(InHome("bin/xdg-open"), fs::perms::owner_all);
    }
    ShownPlayer ShowWithBrowser(const std::vector<std::string>& arguments = {})
    {
        return Show(Start(arguments, {}, { { "PATH", InHome("bin") + ":" + std::getenv("PATH") } }));
    }
    /// The first entry of the menu with that access letter opens a dialog.
    static Window OpenByMenu(const ShownPlayer& player, char menu)
    {
        Screen().Activate(player.window);
        EXPECT_TRUE(WaitUntil([&] { return Screen().Active() == player.window; }));
        Screen().Press(static_cast<std::uint32_t>(menu), { kAlt });
        Screen().Press(kReturn);
        EXPECT_TRUE(
            WaitUntil([&] { return player.Dialogs().size() == 1 && Screen().Active() == player.Dialogs().front(); }));
        return player.Dialogs().empty() ? 0 : player.Dialogs().front();
    }
    static bool WaitForNoDialog(const ShownPlayer& player)
    {
        return WaitUntil([&] { return player.Dialogs().empty(); });
    }
    static bool IsAbove(const ShownPlayer& player) { return Screen().HasState(player.window, "_NET_WM_STATE_ABOVE"); }
    /// A button acts a moment after its letter; until then the next key would call that off.
    static void Choose(char letter)
    {
        Screen().Press(static_cast<std::uint32_t>(letter), { kAlt });
        Picture before;
        WaitUntil([&] {
            std::this_thread::sleep_for(200ms);
            const auto now = Screen().Grab(Screen().Area());
            return std::exchange(before, now).pixels == now.pixels;
        });
    }
    static void Type(const std::string& text)
    {
        for (const char letter : text)
            Screen().Press(static_cast<std::uint32_t>(letter));
    }
    bool WasOpened(const std::string& what) const
    {
        return WaitUntil([&] { return ReadWholeFile(InHome("opened")).find(what) != std::string::npos; });
    }
};

TEST_F(Dialogs, OptionsChosenByKeysAreWrittenByOkAndForgottenByCancel)
{
    StoreSettings([](PlayerSettings& settings) { settings.AlwaysOnTop = 1; });
    auto player = ShowWithBrowser();
    EXPECT_TRUE(WaitUntil([&] { return IsAbove(player); }));
    const auto before = ReadWholeFile(ConfigPath());
    OpenByMenu(player, 't');
    EXPECT_FALSE(IsAbove(player));
    Choose('k');
    Screen().Press(kEscape);
    EXPECT_TRUE(WaitForNoDialog(player));
    EXPECT_TRUE(WaitUntil([&] { return IsAbove(player); }));
    EXPECT_EQ(ReadWholeFile(ConfigPath()), before);

    const auto options = OpenByMenu(player, 't');
    Choose('o');
    Choose('d');
    Screen().Press(kDown);
    Screen().Press(kTab, { kControl });
    Choose('g');
    Screen().Press(kTab, { kControl });
    Choose('f');
    Type("/tmp/shots, old");
    Screen().Press(kReturn);
    EXPECT_TRUE(WaitUntil([&] { return player.Dialogs().size() == 2; })); // a comma would not come back
    Screen().Press(kReturn);
    EXPECT_TRUE(WaitUntil([&] { return player.Dialogs().size() == 1 && Screen().Active() == options; }));
    EXPECT_EQ(ReadWholeFile(ConfigPath()), before);
    Choose('f');
    Type("/tmp/shots");
    Screen().Press(kReturn);
    EXPECT_TRUE(WaitForNoDialog(player));
    EXPECT_TRUE(WaitUntil([&] { return IsAbove(player); }));
    const auto stored = StoredSettings();
    EXPECT_EQ(stored.AlwaysOnTop, -1);
    EXPECT_EQ(stored.DisableScreenSaver, -1);
    EXPECT_EQ(stored.KeepHistory, 0);
    EXPECT_EQ(stored.TitleBarMode, 0);
    EXPECT_EQ(stored.PlaylistPosition, 1);
    EXPECT_EQ(stored.Associations[12], -1);
    EXPECT_EQ(stored.Associations[13], -1);
    EXPECT_EQ(stored.Associations[14], 0);
    EXPECT_EQ(stored.SnapshotPath, "/tmp/shots");
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Dialogs, ASecondStartHandsItsFileOverWhileTheOptionsAreOpen)
{
    auto player = StartAndShow({ CopyOf(Clips::Make("clip.mp4"), "first.mp4") });
    EXPECT_TRUE(player.WaitForTitle("first.mp4"));
    const auto options = OpenByMenu(player, 't');
    auto second = Start({ CopyOf(Clips::Make("clip.mp4"), "second.mp4") });
    EXPECT_EQ(second.WaitForEnd(), 0);
    EXPECT_TRUE(player.WaitForTitle("second.mp4"));
    EXPECT_EQ(player.Dialogs(), std::vector{ options });

    // What has to be said about a file can be read and answered.
    WriteWholeFile(InHome("broken.mp4"), "no clip");
    auto third = Start({ InHome("broken.mp4") });
    EXPECT_TRUE(WaitUntil([&] { return player.Dialogs().size() == 2; }));
    EXPECT_EQ(player.AnswerDialog(), "Zentaro");
    EXPECT_EQ(third.WaitForEnd(), 0);
    EXPECT_EQ(player.Dialogs(), std::vector{ options });
    Screen().Activate(options);
    Screen().Press(kEscape);
    EXPECT_TRUE(WaitForNoDialog(player));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Dialogs, HelpAndTheWebPageOpenInTheBrowserAndMissingHelpIsSaid)
{
    auto player = ShowWithBrowser();
    Screen().Activate(player.window);
    Screen().Press(kF1);
    EXPECT_TRUE(WasOpened("/program/help/index.html"));
    fs::remove(fs::path(ConfigPath()).parent_path() / "help");
    Screen().Press(kF1);
    EXPECT_EQ(player.AnswerDialog(), "Zentaro");

    OpenByMenu(player, 'h');
    Screen().Press(kTab);
    Screen().Press(kReturn);
    EXPECT_TRUE(WasOpened("https://www.videolan.org/vlc/"));
    Screen().Press(kEscape);
    EXPECT_TRUE(WaitForNoDialog(player));
    EXPECT_CLOSES_CLEANLY(player);
}

} // namespace
} // namespace zentaro::desktop
