#pragma once

#include "base/PlayerSettings.h"
#include "shell/WindowLayout.h"
#include "tests/desktop/Clips.h"
#include "tests/desktop/Desktop.h"
#include "tests/platform/WorkingFolder.h"

#include <gtest/gtest.h>

namespace zentaro::trial {

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
    Rect PlaceOf(Button button) const { return OnScreen(Layout().ButtonRect(button)); }
    void Click(Button button) const;
    /// Message boxes and other windows that belong to the main one.
    std::vector<Window> Dialogs() const;
    /// Waits until so many are open and the keys go to the last of them, or to the main window.
    bool WaitForDialogs(std::size_t count) const;
    /// Waits for a message box and answers it with Return; its title, or nothing when none came.
    std::optional<std::string> AnswerDialog() const;
    bool WaitForMenus(std::size_t count) const;

    /// Whether the video changes from look to look, never black.
    bool PictureMoves() const;
    /// Waits until the video has stayed as it is for a second.
    bool PictureStands() const;
    /// Closes the window as its user would and waits for the end of the process: its exit code.
    std::optional<int> Close();

private:
    Desktop* m_desktop;
};

/// A user with a home and a program folder of their own, before a desktop that all tests of the program share.
class PlayerDesk : public testing::Test {
protected:
    PlayerDesk();
    void TearDown() override;

    static Desktop& Screen();

    /// What a part of the screen looks like when it has come to rest.
    static QImage SettledLook(const Rect& part);

    const std::string& Home() const { return m_home.Path(); }
    std::string InHome(const std::string& name) const { return m_home / name; }
    std::string ConfigPath() const { return InHome("program/Config.cfg"); }
    PlayerSettings StoredSettings() const;
    /// Writes a Config.cfg of the defaults with these changes.
    void StoreSettings(const std::function<void(PlayerSettings&)>& change) const;
    /// A file of this name in the home that is the clip.
    std::string CopyOf(const std::string& clip, const std::string& name) const;
    std::string ClipNamed(const std::string& name) const { return CopyOf(Clips::Make("clip.mp4"), name); }

    /// A process of the player that may be a messenger; `folder` is its working folder, `environment` words NAME=value.
    Process Start(const std::vector<std::string>& arguments = {}, const std::string& folder = ".",
        const std::vector<std::string>& environment = {}) const;
    /// Waits until the main window is painted, on `desktop` or on the shared one. Throws when none comes.
    static ShownPlayer Show(Process process, Desktop& desktop = Screen());
    ShownPlayer StartAndShow(const std::vector<std::string>& arguments = {}) const { return Show(Start(arguments)); }
    /// What runs of all that was started, and of what that has started itself.
    std::vector<std::string> Started() const;

private:
    platform::WorkingFolder m_home;
};

/// `Close` and what must be true after it: nothing left, nothing said.
#define EXPECT_CLOSES_CLEANLY(player)                                                                                  \
    EXPECT_EQ((player).Close(), 0);                                                                                    \
    EXPECT_ENDED_CLEANLY(player)
#define EXPECT_ENDED_CLEANLY(player)                                                                                   \
    EXPECT_EQ((player).process.WaitForEnd(), 0);                                                                       \
    EXPECT_EQ((player).process.Output(), "");                                                                          \
    EXPECT_TRUE(WaitUntil([&] { return Started().empty(); }))

} // namespace zentaro::trial
