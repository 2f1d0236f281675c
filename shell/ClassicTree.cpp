#include "shell/ClassicTree.h"

#include "shell/CommandTree.h"

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

ClassicItem Row(const char* parent, const char* name, std::string caption, int index = 0)
{
    ClassicItem item;
    item.name = name;
    item.index = index;
    item.caption = std::move(caption);
    item.parent = parent;
    item.isSeparator = item.caption.empty();
    return item;
}

} // namespace

ClassicTree::ClassicTree()
    : m_items{
        Row("", "mnuFileMenu", "&File"),
        Row("mnuFileMenu", "mnuOpenMenu", "&Open"),
        Row("mnuOpenMenu", "mnuOpenFile", "Open Video File..."),
        Row("mnuOpenMenu", "mnuOpenDVD", "Open DVD"),
        Row("mnuOpenDVD", "dvdsList", kNoDvdDrives),
        Row("mnuFileMenu", "mnuRecentMenu", "&Recently Played files"),
        Row("mnuRecentMenu", "mnuRecent", kNoHistory),
        Row("mnuFileMenu", "SepFile1", ""),
        Row("mnuFileMenu", "mnuExit", "E&xit"),
        Row("", "mnuPlayBackMenu", "&Play"),
        Row("mnuPlayBackMenu", "mnuplay", "Play/Pause"),
        Row("mnuPlayBackMenu", "mnustop", "Stop"),
        Row("mnuPlayBackMenu", "sepplay1", ""),
        Row("mnuPlayBackMenu", "mnuPlayModeMenu", "Play Mode"),
        Row("mnuPlayModeMenu", "mnuPBNormal", "&Normal"),
        Row("mnuPlayModeMenu", "mnuPBCont", "&Continuous"),
        Row("mnuPlayModeMenu", "mnuPBShuffle", "&Shuffle"),
        Row("mnuPlayBackMenu", "mnuRepeatMode", "Repeat Mode"),
        Row("mnuRepeatMode", "mnuRMNoRepeat", "&No Repeat"),
        Row("mnuRepeatMode", "mnuRMSingleRepeat", "&Single Repeat"),
        Row("mnuRepeatMode", "mnuRMRepeatAll", "&Repeat All"),
        Row("mnuPlayBackMenu", "sepplay2", ""),
        Row("mnuPlayBackMenu", "mnufullscreen", "Full Screen"),
        Row("mnuPlayBackMenu", "sepplay3", ""),
        Row("mnuPlayBackMenu", "mnuincspeed", WithKey("Increase Speed", "Ctrl+Up")),
        Row("mnuPlayBackMenu", "mnudecSpeed", WithKey("Decrease Speed", "Ctrl+Down")),
        Row("mnuPlayBackMenu", "mnuresSpeed", "Reset Speed"),
        Row("mnuPlayBackMenu", "plsep4", ""),
        Row("mnuPlayBackMenu", "mnuAfterMenu", "After playing finish"),
        Row("mnuAfterMenu", "mnuAfterPlaying", "Do nothing", 0),
        Row("mnuAfterMenu", "mnuAfterPlaying", "Exit Zentaro", 1),
        Row("mnuAfterMenu", "mnuAfterPlaying", "Restart the Computer", 2),
        Row("mnuAfterMenu", "mnuAfterPlaying", "Shutdown the Computer", 3),
        Row("", "mnuPlayListmenu", "Play &List"),
        Row("mnuPlayListmenu", "mnuPlayListAdd", "Add Media File(s)..."),
        Row("mnuPlayListmenu", "mnuPlayListRemove", "Remove"),
        Row("mnuPlayListmenu", "mnuPlayListRemoveAll", "Remove All"),
        Row("mnuPlayListmenu", "plsep", ""),
        Row("mnuPlayListmenu", "mnuNext", WithKey("Next", "PgDown")),
        Row("mnuPlayListmenu", "mnuPrev", WithKey("Previous", "PgUp")),
        Row("", "mnuToolsMenu", "&Tools"),
        Row("mnuToolsMenu", "mnuSettings", "&Options..."),
        Row("", "mnuHelpMenu", "&Help"),
        Row("mnuHelpMenu", "mnuAbout", "&About"),
        Row("mnuHelpMenu", "mnuHelp", "Help Topics"),
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
    auto item = Row(last->parent.c_str(), last->name.c_str(), caption, last->index + 1);
    item.isSeparator = false;
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

} // namespace zentaro
