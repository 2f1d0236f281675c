#pragma once

#include "base/PlayerSettings.h"
#include "shell/WindowLayout.h"
#include "tests/desktop/Clips.h"
#include "tests/desktop/Desktop.h"

#include <functional>
#include <gtest/gtest.h>

namespace zentaro::desktop {

/// A player whose window is on the screen.
class ShownPlayer {
public:
    ShownPlayer(Desktop& desktop, Process process, Window window);

    Process process;
    Window window;

    std::string Title() const { return m_desktop->Title(window); }
    bool WaitForTitle(const std::string& part) const;
    Rect Place() const { return m_desktop->Place(window); }
    WindowLayout Layout() const;
    /// Where the video is on the screen, whatever lies over it; empty when there is none.
    Rect Video() const;
    Rect OnScreen(const Rect& inWindow) const;
    /// Message boxes and other windows that belong to the main one.
    std::vector<Window> Dialogs() const;
    /// Waits for a message box and answers it with Return; its title, or nothing when none came.
    std::optional<std::string> AnswerDialog() const;

    /// Whether the video changes from look to look, never black.
    bool PictureMoves() const;
    /// Whether the video's place shows the picture that stands for sound.
    bool ShowsAudioLogo() const;
    /// Whether the time label changes twice.
    bool ClockRuns() const;
    /// Closes the window as its user would and waits for the end of the process: its exit code.
    std::optional<int> Close();

private:
    Desktop* m_desktop;
};

/// A user with a home and a program folder of their own, before a desktop that all tests of the program share.
class PlayerDesk : public testing::Test {
protected:
    PlayerDesk();
    ~PlayerDesk() override;
    static void SetUpTestSuite();
    void TearDown() override;

    static Desktop& Screen();

    const std::string& Home() const { return m_home; }
    std::string InHome(const std::string& name) const { return m_home + "/" + name; }
    std::string ConfigPath() const { return m_programFolder + "/Config.cfg"; }
    PlayerSettings StoredSettings() const;
    /// Writes a Config.cfg of the defaults with these changes.
    void StoreSettings(const std::function<void(PlayerSettings&)>& change) const;
    /// A file of this name in the home that is the clip.
    std::string CopyOf(const std::string& clip, const std::string& name) const;

    /// A process of the player that may be a messenger; `folder` is its working folder.
    Process Start(const std::vector<std::string>& arguments = {}, const std::string& folder = {},
        const std::map<std::string, std::string>& environment = {});
    /// Waits for the main window, on `desktop` or on the shared one. Fails the test and throws when none comes.
    ShownPlayer Show(Process process, Desktop* desktop = nullptr);
    ShownPlayer StartAndShow(const std::vector<std::string>& arguments = {}) { return Show(Start(arguments)); }

private:
    std::string m_home;
    std::string m_programFolder;
    int m_starts = 0;
};

/// `Close` and what must be true after it: nothing left, nothing said.
#define EXPECT_CLOSES_CLEANLY(player)                                                                                  \
    do {                                                                                                               \
        EXPECT_EQ((player).Close(), 0);                                                                                \
        EXPECT_EQ((player).process.ErrorText(), "");                                                                   \
        EXPECT_TRUE(WaitUntil([&] { return ProcessesAtHome(Home()).empty(); }, 5s));                                   \
    } while (false)

} // namespace zentaro::desktop
