#include "app/ConfigFile.h"
#include "tests/desktop/PlayerDesk.h"

#include <filesystem>

namespace zentaro::trial {
namespace {

namespace fs = std::filesystem;

/// The options, the about box and the help, without a hand on the mouse.
class Dialogs : public PlayerDesk {
protected:
    Dialogs()
    {
        fs::create_directories(InHome("bin"));
        PutBrowser();
    }
    /// A browser that only notes what it is to show.
    void PutBrowser() const
    {
        WriteWholeFile(InHome("bin/xdg-open"), "#!/bin/sh\necho \"$1\" >> '" + InHome("opened") + "'\n");
        fs::permissions(InHome("bin/xdg-open"), fs::perms::owner_all);
    }
    ShownPlayer ShowWithBrowser() const
    {
        return Show(Start({}, ".", { "PATH=" + InHome("bin") + ":" + std::getenv("PATH") }));
    }
    /// The first entry of the menu with that access letter opens a dialog.
    static Window OpenByMenu(const ShownPlayer& player, const std::string& menu)
    {
        Screen().Activate(player.window);
        Screen().Press("alt+" + menu);
        EXPECT_TRUE(player.WaitForMenus(1));
        Screen().Press("Return");
        EXPECT_TRUE(player.WaitForDialogs(1));
        return player.Dialogs().empty() ? 0 : player.Dialogs().front();
    }
    static bool IsAbove(const ShownPlayer& player) { return Screen().HasState(player.window, "_NET_WM_STATE_ABOVE"); }
    /// A button acts a moment after its letter; until then the next key would call that off.
    static void Choose(const std::string& letter)
    {
        const auto before = Screen().Grab(Screen().Area());
        Screen().Press("alt+" + letter);
        EXPECT_TRUE(WaitUntil([&] { return Screen().Grab(Screen().Area()) != before; })) << letter;
        SettledLook(Screen().Area());
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
    OpenByMenu(player, "t");
    EXPECT_FALSE(IsAbove(player));
    Choose("k");
    Screen().Press("Escape");
    EXPECT_TRUE(player.WaitForDialogs(0));
    EXPECT_EQ(ReadWholeFile(ConfigPath()), before);

    OpenByMenu(player, "t");
    Choose("o");
    Choose("d");
    Screen().Press("Down");
    Screen().Press("ctrl+Tab");
    Choose("g");
    Screen().Press("ctrl+Tab");
    Choose("f");
    Screen().Type("/tmp/shots,old");
    Screen().Press("Return");
    EXPECT_TRUE(player.WaitForDialogs(2)); // a comma would not come back
    Screen().Press("Return");
    EXPECT_TRUE(player.WaitForDialogs(1));
    EXPECT_EQ(ReadWholeFile(ConfigPath()), before);
    Choose("f");
    Screen().Type("/tmp/shots");
    Screen().Press("Return");
    EXPECT_TRUE(player.WaitForDialogs(0));
    EXPECT_TRUE(WaitUntil([&] { return IsAbove(player); }));
    auto expected = ParseConfigurations(before).value();
    expected.WindowLeft = player.Place().left * 15;
    expected.WindowTop = player.Place().top * 15;
    expected.TitleBarMode = 0;
    expected.PlaylistPosition = 1;
    expected.Associations[12] = expected.Associations[13] = -1;
    expected.SnapshotPath = "/tmp/shots";
    EXPECT_EQ(FormatConfigurations(StoredSettings()), FormatConfigurations(expected));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Dialogs, ASecondStartHandsItsFileOverWhileTheOptionsAreOpen)
{
    auto player = StartAndShow({ ClipNamed("first.mp4") });
    EXPECT_TRUE(player.WaitForTitle("first.mp4"));
    const auto options = OpenByMenu(player, "t");
    auto second = Start({ ClipNamed("second.mp4") });
    EXPECT_EQ(second.WaitForEnd(), 0);
    EXPECT_TRUE(player.WaitForTitle("second.mp4"));
    EXPECT_EQ(player.Dialogs(), std::vector{ options });

    // What has to be said about a file can be read and answered.
    WriteWholeFile(InHome("broken.mp4"), "no clip");
    auto third = Start({ InHome("broken.mp4") });
    EXPECT_TRUE(player.WaitForDialogs(2));
    EXPECT_EQ(player.AnswerDialog(), "Zentaro");
    EXPECT_EQ(third.WaitForEnd(), 0);
    EXPECT_EQ(player.Dialogs(), std::vector{ options });
    Screen().Activate(options);
    Screen().Press("Escape");
    EXPECT_TRUE(player.WaitForDialogs(0));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Dialogs, HelpAndTheWebPageOpenInTheBrowserAndWhatIsMissingIsSaid)
{
    auto player = ShowWithBrowser();
    Screen().Activate(player.window);
    Screen().Press("F1");
    EXPECT_TRUE(WasOpened("/program/help/en/index.html"));
    // What has the focus has its page.
    Screen().Press("F6 F1");
    EXPECT_TRUE(WasOpened("/program/help/en/playlist.html"));
    Screen().Press("ctrl+shift+p");
    EXPECT_TRUE(player.WaitForDialogs(1));
    Screen().Press("F1");
    EXPECT_TRUE(WasOpened("/program/help/en/keys.html"));
    Screen().Press("Escape");
    EXPECT_TRUE(player.WaitForDialogs(0));
    // No browser is found, or the help is not there.
    WriteWholeFile(InHome("bin/xdg-open"), "#!/bin/sh\nexit 3\n");
    Screen().Press("F1");
    EXPECT_EQ(player.AnswerDialog(), "Zentaro");
    EXPECT_TRUE(player.WaitForDialogs(0));
    fs::remove(fs::path(ConfigPath()).parent_path() / "help");
    Screen().Press("F1");
    EXPECT_EQ(player.AnswerDialog(), "Zentaro");

    PutBrowser();
    OpenByMenu(player, "h");
    Screen().Press("Tab");
    Screen().Press("Return");
    EXPECT_TRUE(WasOpened("https://www.videolan.org/vlc/"));
    Screen().Press("Escape");
    EXPECT_TRUE(player.WaitForDialogs(0));
    EXPECT_CLOSES_CLEANLY(player);
}

} // namespace
} // namespace zentaro::trial
