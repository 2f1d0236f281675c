#include "app/ClassicHandlers.h"

#include "app/Player.h"

#include <algorithm>
#include <array>

namespace zentaro {

namespace {

constexpr std::array<std::string_view, 3> kPlayModeItems{ "mnuPBNormal", "mnuPBCont", "mnuPBShuffle" };
constexpr std::array<std::string_view, 3> kRepeatModeItems{ "mnuRMNoRepeat", "mnuRMSingleRepeat", "mnuRMRepeatAll" };

void CheckOnly(ClassicTree& tree, const std::array<std::string_view, 3>& names, std::int32_t value)
{
    for (std::size_t i = 0; i < names.size(); ++i)
        tree.SetChecked(names[i], 0, static_cast<std::int32_t>(i) == value);
}

void CheckAfterPlaying(Player& player)
{
    auto& tree = player.ClassicMenus();
    const auto marked = player.AfterPlaying().ClassicMarkedItem();
    for (int index = 0; index < tree.Count("mnuAfterPlaying"); ++index)
        tree.SetChecked("mnuAfterPlaying", index, marked && static_cast<int>(*marked) == index);
}

void UsePlayMode(Player& player, std::int32_t mode)
{
    mode == kPlayNormal ? player.PBNormal() : mode == kPlayShuffle ? player.PBShuffle() : player.PBCont();
    CheckOnly(player.ClassicMenus(), kPlayModeItems, mode);
}

void UseRepeatMode(Player& player, std::int32_t mode)
{
    player.SetRepeatMode(mode);
    CheckOnly(player.ClassicMenus(), kRepeatModeItems, mode);
}

struct Handler {
    std::string_view name;
    void (*run)(Player&, const ClassicItem&);
};

constexpr std::array kHandlers{
    Handler{ "mnuOpenFile", [](Player& player, const ClassicItem&) { player.OpenFiles(false); } },
    Handler{ "mnuplay", [](Player& player, const ClassicItem&) { player.CMDPlayClick(); } },
    Handler{ "mnustop", [](Player& player, const ClassicItem&) { player.cmdStopClick(); } },
    Handler{ "mnufullscreen", [](Player& player, const ClassicItem&) { player.cmdFulScreenClick(); } },
    Handler{ "mnuincspeed", [](Player& player, const ClassicItem&) { player.IncreaseRate(); } },
    Handler{ "mnudecSpeed", [](Player& player, const ClassicItem&) { player.DecreaseRate(); } },
    Handler{ "mnuresSpeed", [](Player& player, const ClassicItem&) { player.ResetRate(); } },
    Handler{ "mnuNext", [](Player& player, const ClassicItem&) { player.cmdNextClick(); } },
    Handler{ "mnuPrev", [](Player& player, const ClassicItem&) { player.cmdPreviousClick(); } },
    Handler{ "mnuPlayListAdd", [](Player& player, const ClassicItem&) { player.OpenFiles(true); } },
    Handler{ "mnuPlayListRemove", [](Player& player, const ClassicItem&) { player.RemoveSelected(); } },
    Handler{ "mnuPlayListRemoveAll", [](Player& player, const ClassicItem&) { player.RemoveAll(); } },
    Handler{ "mnuPBNormal", [](Player& player, const ClassicItem&) { UsePlayMode(player, kPlayNormal); } },
    Handler{ "mnuPBCont", [](Player& player, const ClassicItem&) { UsePlayMode(player, kPlayContinuous); } },
    Handler{ "mnuPBShuffle", [](Player& player, const ClassicItem&) { UsePlayMode(player, kPlayShuffle); } },
    Handler{ "mnuRMNoRepeat", [](Player& player, const ClassicItem&) { UseRepeatMode(player, kNoRepeat); } },
    Handler{ "mnuRMSingleRepeat", [](Player& player, const ClassicItem&) { UseRepeatMode(player, kRepeatSingle); } },
    Handler{ "mnuRMRepeatAll", [](Player& player, const ClassicItem&) { UseRepeatMode(player, kRepeatAll); } },
    Handler{ "mnuAfterPlaying",
        [](Player& player, const ClassicItem& item) {
            player.DoAfter(static_cast<std::int16_t>(item.index));
            CheckAfterPlaying(player);
        } },
    Handler{ "mnuExit", [](Player& player, const ClassicItem&) { player.Exit(); } },
    Handler{ "mnuSettings", [](Player& player, const ClassicItem&) { player.ShowOptions(); } },
    Handler{ "mnuAbout", [](Player& player, const ClassicItem&) { player.ShowAbout(); } },
    Handler{ "mnuHelp", [](Player& player, const ClassicItem&) { player.ShowHelp(); } },
    Handler{ "mnuRecent",
        [](Player& player, const ClassicItem& item) { player.LoadThumb(item.caption, item.tag, false, true); } },
    Handler{ "dvdsList", [](Player& player, const ClassicItem& item) { player.dvdsList_Click(item.index); } },
};

void RefreshPlayBackMenu(Player& player)
{
    auto& tree = player.ClassicMenus();
    CheckOnly(tree, kPlayModeItems, player.Settings().PlayMode);
    CheckOnly(tree, kRepeatModeItems, player.Settings().RepeatMode);
    for (const auto* const name : { "mnuincspeed", "mnudecSpeed", "mnuresSpeed", "mnustop" })
        tree.SetEnabled(name, 0, player.MediaControlsEnabled());
}

void RefreshPlayListMenu(Player& player)
{
    for (const auto* const name : { "mnuNext", "mnuPrev", "mnuPlayListRemoveAll" })
        player.ClassicMenus().SetEnabled(name, 0, player.Entries().Count() > 0);
}

} // namespace

void ClickClassicItem(Player& player, const ClassicItem& item)
{
    const auto handler = std::ranges::find(kHandlers, item.name, &Handler::name);
    if (handler == kHandlers.end() || !item.enabled)
        return;
    // A copy: what the click does can move the items.
    const auto clicked = item;
    handler->run(player, clicked);
}

void OpenClassicMenu(Player& player, std::string_view menu)
{
    if (menu == "mnuPlayBackMenu")
        RefreshPlayBackMenu(player);
    else if (menu == "mnuPlayListmenu")
        RefreshPlayListMenu(player);
    else if (menu == "mnuAfterMenu")
        CheckAfterPlaying(player);
    else if (menu == "mnuOpenDVD")
        player.mnuOpenDVD_Click();
}

} // namespace zentaro
