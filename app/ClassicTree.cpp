#include "app/ClassicTree.h"

#include "app/CommandTree.h"
#include "app/Commands.h"
#include "app/Player.h"

#include <algorithm>
#include <iterator>

namespace zentaro {

namespace {

// The key stands in the caption as plain text, pushed to the right by blanks.
std::string WithKey(const std::string& caption, const std::string& key)
{
    constexpr std::size_t keyColumn = 24;
    return caption + std::string(keyColumn - caption.size(), ' ') + key;
}

using Needs = ClassicItem::Needs;

ClassicItem Row(
    const char* parent, const char* name, std::string caption, const char* command = "", Needs needs = Needs::Nothing)
{
    ClassicItem item;
    item.name = name;
    item.caption = std::move(caption);
    item.parent = parent;
    item.command = command;
    item.needs = needs;
    item.isSeparator = item.caption.empty();
    return item;
}

ClassicItem Indexed(int index, ClassicItem item)
{
    item.index = index;
    return item;
}

bool IsEnabled(const ClassicItem& item, const Player& player)
{
    return item.needs == Needs::LoadedItem ? player.State().mediaControlsEnabled : player.Entries().Count() > 0;
}

/// The checks and the states that menus take on when they open.
void Refresh(Player& player)
{
    auto& tree = player.BothMenus().frmMenu;
    for (const auto& item : std::vector(tree.Items())) {
        const auto* const command = FindCommand(item.command);
        if (command != nullptr && command->isChecked != nullptr)
            tree.SetChecked(item.name, item.index, command->isChecked(player));
        if (item.needs != Needs::Nothing)
            tree.SetEnabled(item.name, item.index, IsEnabled(item, player));
    }
}

} // namespace

ClassicTree::ClassicTree()
    : m_items{
        Row("", "mnuFileMenu", "&File"),
        Row("mnuFileMenu", "mnuOpenMenu", "&Open"),
        Row("mnuOpenMenu", "mnuOpenFile", "Open Video File...", "OpenFile"),
        Row("mnuOpenMenu", "mnuOpenDVD", "Open DVD"),
        Row("mnuOpenDVD", "dvdsList", kNoDvdDrives, "PlayDisc"),
        Row("mnuFileMenu", "mnuRecentMenu", "&Recently Played files"),
        Row("mnuRecentMenu", "mnuRecent", kNoHistory, "History"),
        Row("mnuFileMenu", "SepFile1", ""),
        Row("mnuFileMenu", "mnuExit", "E&xit", "Exit"),
        Row("", "mnuPlayBackMenu", "&Play"),
        Row("mnuPlayBackMenu", "mnuplay", "Play/Pause", "Play"),
        Row("mnuPlayBackMenu", "mnustop", "Stop", "Stop", Needs::LoadedItem),
        Row("mnuPlayBackMenu", "sepplay1", ""),
        Row("mnuPlayBackMenu", "mnuPlayModeMenu", "Play Mode"),
        Row("mnuPlayModeMenu", "mnuPBNormal", "&Normal", "PMNormal"),
        Row("mnuPlayModeMenu", "mnuPBCont", "&Continuous", "PMContinuous"),
        Row("mnuPlayModeMenu", "mnuPBShuffle", "&Shuffle", "PMShuffle"),
        Row("mnuPlayBackMenu", "mnuRepeatMode", "Repeat Mode"),
        Row("mnuRepeatMode", "mnuRMNoRepeat", "&No Repeat", "RMNoRepeat"),
        Row("mnuRepeatMode", "mnuRMSingleRepeat", "&Single Repeat", "RMSingleRepeat"),
        Row("mnuRepeatMode", "mnuRMRepeatAll", "&Repeat All", "RMRepeatAll"),
        Row("mnuPlayBackMenu", "sepplay2", ""),
        Row("mnuPlayBackMenu", "mnufullscreen", "Full Screen", "FullScreen"),
        Row("mnuPlayBackMenu", "sepplay3", ""),
        Row("mnuPlayBackMenu", "mnuincspeed", WithKey("Increase Speed", "Ctrl+Up"), "IncreaseSpeed", Needs::LoadedItem),
        Row("mnuPlayBackMenu", "mnudecSpeed", WithKey("Decrease Speed", "Ctrl+Down"), "DecreaseSpeed",
            Needs::LoadedItem),
        Row("mnuPlayBackMenu", "mnuresSpeed", "Reset Speed", "ResetSpeed", Needs::LoadedItem),
        Row("mnuPlayBackMenu", "plsep4", ""),
        Row("mnuPlayBackMenu", "mnuAfterMenu", "After playing finish"),
        Indexed(0, Row("mnuAfterMenu", "mnuAfterPlaying", "Do nothing", "Donothing")),
        Indexed(1, Row("mnuAfterMenu", "mnuAfterPlaying", "Exit Zentaro", "ExitZentaro")),
        Indexed(2, Row("mnuAfterMenu", "mnuAfterPlaying", "Restart the Computer", "RestartTheComputer")),
        Indexed(3, Row("mnuAfterMenu", "mnuAfterPlaying", "Shutdown the Computer", "ShutdownTheComputer")),
        Row("", "mnuPlayListmenu", "Play &List"),
        Row("mnuPlayListmenu", "mnuPlayListAdd", "Add Media File(s)...", "AddFiles"),
        Row("mnuPlayListmenu", "mnuPlayListRemove", "Remove", "RemoveEntry"),
        Row("mnuPlayListmenu", "mnuPlayListRemoveAll", "Remove All", "RemoveEntries", Needs::Entries),
        Row("mnuPlayListmenu", "plsep", ""),
        Row("mnuPlayListmenu", "mnuNext", WithKey("Next", "PgDown"), "Next", Needs::Entries),
        Row("mnuPlayListmenu", "mnuPrev", WithKey("Previous", "PgUp"), "Previous", Needs::Entries),
        Row("", "mnuToolsMenu", "&Tools"),
        Row("mnuToolsMenu", "mnuSettings", "&Options...", "Options"),
        Row("", "mnuHelpMenu", "&Help"),
        Row("mnuHelpMenu", "mnuAbout", "&About", "About"),
        Row("mnuHelpMenu", "mnuHelp", "Help Topics", "HelpTopics"),
    }
{
    SetEnabled("dvdsList", 0, false);
    SetEnabled("mnuRecent", 0, false);
    for (int slot = 1; slot < kHistorySlots; ++slot) {
        Load("mnuRecent", {});
        SetVisible("mnuRecent", slot, false);
    }
}

const ClassicItem* ClassicTree::Find(std::string_view name, int index) const
{
    const auto at = std::ranges::find_if(
        m_items, [&](const ClassicItem& item) { return item.name == name && item.index == index; });
    return at == m_items.end() ? nullptr : &*at;
}

bool ClassicTree::IsMenu(const ClassicItem& item) const
{
    return std::ranges::find(m_items, item.name, &ClassicItem::parent) != m_items.end();
}

int ClassicTree::Count(std::string_view name) const
{
    return static_cast<int>(std::ranges::count(m_items, name, &ClassicItem::name));
}

template <typename Value>
void ClassicTree::Set(std::string_view name, int index, Value ClassicItem::*field, const Value& value)
{
    const auto at = std::ranges::find_if(
        m_items, [&](const ClassicItem& item) { return item.name == name && item.index == index; });
    if (at == m_items.end() || (*at).*field == value)
        return;
    (*at).*field = value;
    Changed();
}

void ClassicTree::SetCaption(std::string_view name, int index, const std::string& caption)
{
    Set(name, index, &ClassicItem::caption, caption);
}

void ClassicTree::SetTag(std::string_view name, int index, const std::string& tag)
{
    Set(name, index, &ClassicItem::tag, tag);
}

void ClassicTree::SetChecked(std::string_view name, int index, bool checked)
{
    Set(name, index, &ClassicItem::checked, checked);
}

void ClassicTree::SetEnabled(std::string_view name, int index, bool enabled)
{
    Set(name, index, &ClassicItem::enabled, enabled);
}

void ClassicTree::SetVisible(std::string_view name, int index, bool visible)
{
    Set(name, index, &ClassicItem::visible, visible);
}

void ClassicTree::Load(std::string_view name, const std::string& caption)
{
    const auto* const last = Find(name, Count(name) - 1);
    if (last == nullptr)
        return;
    auto item = *last;
    item.index = last->index + 1;
    item.caption = caption;
    item.tag.clear();
    item.checked = false;
    item.enabled = item.visible = true;
    m_items.insert(m_items.begin() + (last - m_items.data()) + 1, std::move(item));
    Changed();
}

void ClassicTree::UnloadLast(std::string_view name)
{
    const auto* const last = Find(name, Count(name) - 1);
    if (last == nullptr || last->index == 0)
        return;
    m_items.erase(m_items.begin() + (last - m_items.data()));
    Changed();
}

void ClassicTree::Changed() const
{
    if (onChange)
        onChange();
}

void ClickClassicItem(Player& player, const ClassicItem& item)
{
    // Copies: what the click does can move the items.
    const auto command = item.command;
    const int index = item.index;
    if (item.enabled)
        RunCommand(player, command, index);
    Refresh(player);
}

void OpenClassicMenu(Player& player, std::string_view menu)
{
    Refresh(player);
    if (menu == "mnuOpenDVD")
        player.Discs().mnuOpenDVD_Click();
}

} // namespace zentaro
