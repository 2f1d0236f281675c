#include "shell/ClassicTree.h"
#include "shell/CommandTree.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace zentaro;

namespace {

// parent, key, kind, caption, modifier and virtual key of the shortcut, checked, enabled, visible
constexpr const char* kCommandMenu = R"(
 File 0 "&File" 0 0 -EV
File OpenMenu 0 "&Open" 0 0 -EV
OpenMenu OpenFile 0 "Open Media File..." 2 79 -EV
OpenMenu OpenDVD 0 "Open DVD" 0 0 -EV
OpenDVD DVDList0 0 "<No DVD drives were found>" 0 0 --V
OpenDVD DVDList1 0 "" 0 0 -E-
OpenDVD DVDList2 0 "" 0 0 -E-
OpenDVD DVDList3 0 "" 0 0 -E-
OpenDVD DVDList4 0 "" 0 0 -E-
OpenDVD DVDList5 0 "" 0 0 -E-
File RecentMenu 0 "Recently Played Files" 0 0 -EV
RecentMenu History0 0 "<No History>" 0 0 --V
RecentMenu History1 0 "" 0 0 -E-
RecentMenu History2 0 "" 0 0 -E-
RecentMenu History3 0 "" 0 0 -E-
RecentMenu History4 0 "" 0 0 -E-
RecentMenu History5 0 "" 0 0 -E-
RecentMenu History6 0 "" 0 0 -E-
RecentMenu History7 0 "" 0 0 -E-
RecentMenu History8 0 "" 0 0 -E-
RecentMenu History9 0 "" 0 0 -E-
RecentMenu History10 0 "" 0 0 -E-
File  3 "" 0 0 -EV
File Exit 0 "E&xit" 2 88 -EV
 Play 0 "&Play" 0 0 -EV
Play PlayPause 0 "Play/Pause" 2 80 -EV
Play Stop 0 "Stop" 2 83 -EV
Play  3 "" 0 0 -EV
Play PlayMode 0 "Play Mode" 0 0 -EV
PlayMode PMNormal 2 "&Normal" 0 0 CEV
PlayMode PMContinuous 2 "&Continuous" 0 0 -EV
PlayMode PMShuffle 2 "&Shuffle" 0 0 -EV
Play RepeatMode 0 "Repeat Mode" 0 0 -EV
RepeatMode RMNoRepeat 2 "&No Repeat" 0 0 -EV
RepeatMode RMSingleRepeat 2 "&Single Repeat" 0 0 -EV
RepeatMode RMRepeatAll 2 "&Repeat All" 0 0 -EV
Play  3 "" 0 0 -EV
Play FullScreen 0 "Full Screen" 2 70 -EV
Play  3 "" 0 0 -EV
Play IncreaseSpeed 0 "Increase Speed" 2 38 -EV
Play DecreaseSpeed 0 "Decrease Speed" 2 40 -EV
Play ResetSpeed 0 "Reset Speed" 2 82 -EV
Play  3 "" 0 0 -EV
Play AfterPlay 0 "After file playing finished" 2 80 -EV
AfterPlay Donothing 2 "Do nothing" 0 0 -EV
AfterPlay ExitZentaro 2 "Exit Zentaro" 0 0 -EV
AfterPlay RestartTheComputer 2 "Restart the Computer" 0 0 -EV
AfterPlay ShutdownTheComputer 2 "Shutdown the Computer" 0 0 -EV
 PlayList 0 "&Play&List" 0 0 -EV
PlayList AddVideoFile 0 "Add Media File(s)..." 0 0 -EV
PlayList Remove 0 "Remove" 0 0 -EV
PlayList RemoveAll 0 "Remove All" 0 0 -EV
PlayList  3 "" 0 0 -EV
PlayList Next 0 "Next" 0 34 -EV
PlayList Previous 0 "Previous" 0 33 -EV
 Tools 0 "&Tools" 0 0 -EV
Tools Options 0 "Options" 0 0 -EV
 Help 0 "&Help" 0 0 -EV
Help About 0 "&About" 0 0 -EV
Help HelpTopics 0 "&Help Topics" 0 112 -EV
)";

// parent, control, caption; an empty caption is a separator's or a slot's
constexpr const char* kClassicMenus = R"(
 mnuFileMenu "&File"
mnuFileMenu mnuOpenMenu "&Open"
mnuOpenMenu mnuOpenFile "Open Video File..."
mnuOpenMenu mnuOpenDVD "Open DVD"
mnuOpenDVD dvdsList "<No DVD drives were found>" off
mnuFileMenu mnuRecentMenu "&Recently Played files"
mnuRecentMenu mnuRecent "<No History>" off
mnuFileMenu SepFile1 ""
mnuFileMenu mnuExit "E&xit"
 mnuPlayBackMenu "&Play"
mnuPlayBackMenu mnuplay "Play/Pause"
mnuPlayBackMenu mnustop "Stop"
mnuPlayBackMenu sepplay1 ""
mnuPlayBackMenu mnuPlayModeMenu "Play Mode"
mnuPlayModeMenu mnuPBNormal "&Normal"
mnuPlayModeMenu mnuPBCont "&Continuous"
mnuPlayModeMenu mnuPBShuffle "&Shuffle"
mnuPlayBackMenu mnuRepeatMode "Repeat Mode"
mnuRepeatMode mnuRMNoRepeat "&No Repeat"
mnuRepeatMode mnuRMSingleRepeat "&Single Repeat"
mnuRepeatMode mnuRMRepeatAll "&Repeat All"
mnuPlayBackMenu sepplay2 ""
mnuPlayBackMenu mnufullscreen "Full Screen"
mnuPlayBackMenu sepplay3 ""
mnuPlayBackMenu mnuincspeed "Increase Speed~Ctrl+Up"
mnuPlayBackMenu mnudecSpeed "Decrease Speed~Ctrl+Down"
mnuPlayBackMenu mnuresSpeed "Reset Speed"
mnuPlayBackMenu plsep4 ""
mnuPlayBackMenu mnuAfterMenu "After playing finish"
mnuAfterMenu mnuAfterPlaying "Do nothing"
mnuAfterMenu mnuAfterPlaying1 "Exit Zentaro"
mnuAfterMenu mnuAfterPlaying2 "Restart the Computer"
mnuAfterMenu mnuAfterPlaying3 "Shutdown the Computer"
 mnuPlayListmenu "Play &List"
mnuPlayListmenu mnuPlayListAdd "Add Media File(s)..."
mnuPlayListmenu mnuPlayListRemove "Remove"
mnuPlayListmenu mnuPlayListRemoveAll "Remove All"
mnuPlayListmenu plsep ""
mnuPlayListmenu mnuNext "Next~PgDown"
mnuPlayListmenu mnuPrev "Previous~PgUp"
 mnuToolsMenu "&Tools"
mnuToolsMenu mnuSettings "&Options..."
 mnuHelpMenu "&Help"
mnuHelpMenu mnuAbout "&About"
mnuHelpMenu mnuHelp "Help Topics"
)";

std::string BlanksAsTilde(std::string caption)
{
    const auto first = caption.find("    ");
    if (first != std::string::npos)
        caption.replace(first, caption.find_first_not_of(' ', first) - first, "~");
    return caption;
}

} // namespace

TEST(CommandTree, holds_every_item_in_its_place)
{
    std::ostringstream text("\n", std::ios::ate);
    const CommandTree tree;
    for (const auto& item : tree.Items()) {
        text << item.parent << ' ' << item.key << ' ' << static_cast<int>(item.kind) << " \"" << item.caption << "\" "
             << item.shortcutModifier << ' ' << item.shortcutKey << ' ' << (item.checked ? 'C' : '-')
             << (item.enabled ? 'E' : '-') << (item.visible ? 'V' : '-') << '\n';
    }
    EXPECT_EQ(text.str(), kCommandMenu);
}

TEST(CommandTree, changes_are_told_by_key_and_unknown_keys_change_nothing)
{
    CommandTree tree;
    std::string told;
    tree.onChange = [&](const CommandItem& item) { told += item.key + " "; };
    tree.SetEnabled("Stop", false);
    tree.SetEnabled("Stop", false);
    tree.CheckOnly(kPlayModeKeys, 2);
    tree.CheckOnly(kPlayModeKeys, 3);
    for (const auto* const unknown : { "", "stop", "DVDList", "History" })
        tree.SetCaption(unknown, "no");
    EXPECT_EQ(told, "Stop PMNormal PMShuffle ");
}

TEST(ClassicTree, holds_every_menu_in_its_place)
{
    std::ostringstream text("\n", std::ios::ate);
    const ClassicTree tree;
    for (const auto& item : tree.Items()) {
        if (!item.visible)
            continue;
        text << item.parent << ' ' << item.name << (item.index > 0 ? std::to_string(item.index) : "") << " \""
             << BlanksAsTilde(item.caption) << '"' << (item.enabled ? "" : " off") << '\n';
    }
    EXPECT_EQ(text.str(), kClassicMenus);
}

TEST(ClassicTree, control_arrays_grow_and_shrink_in_their_place)
{
    ClassicTree tree;
    tree.Load("dvdsList", "FILM (E:)");
    EXPECT_EQ(tree.Find("dvdsList", 1)->caption, "FILM (E:)");
    EXPECT_EQ(tree.Find("dvdsList", 1)->parent, "mnuOpenDVD");
    EXPECT_EQ(&tree.Items()[5], tree.Find("dvdsList", 1));
    tree.UnloadLast("dvdsList");
    tree.UnloadLast("dvdsList");
    EXPECT_EQ(tree.Count("dvdsList"), 1);
}
