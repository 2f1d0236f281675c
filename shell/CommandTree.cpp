#include "shell/CommandTree.h"

#include <algorithm>

namespace zentaro {

namespace {

struct Shortcut {
    std::int16_t modifier = 0;
    std::int16_t key = 0;
};

constexpr Shortcut Ctrl(char letter)
{
    return { kControlModifier, letter };
}

// Windows virtual-key codes.
constexpr std::int16_t kPageUp = 33;
constexpr std::int16_t kPageDown = 34;
constexpr std::int16_t kUp = 38;
constexpr std::int16_t kDown = 40;
constexpr std::int16_t kF1 = 112;

/// Adds items in their order, each below the submenu that was opened last.
class Builder {
public:
    explicit Builder(std::vector<CommandItem>& items)
        : m_items(items)
    {
    }

    void Open(const std::string& key, const std::string& caption, Shortcut shortcut = {})
    {
        Item(key, caption, shortcut);
        m_open.push_back(key);
    }
    void Close() { m_open.pop_back(); }
    CommandItem& Item(const std::string& key, const std::string& caption, Shortcut shortcut = {})
    {
        CommandItem item;
        item.parent = m_open.empty() ? std::string() : m_open.back();
        item.key = key;
        item.caption = caption;
        item.shortcutModifier = shortcut.modifier;
        item.shortcutKey = shortcut.key;
        return m_items.emplace_back(std::move(item));
    }
    void Option(const std::string& key, const std::string& caption) { Item(key, caption).kind = CommandKind::Option; }
    void Separator() { Item({}, {}).kind = CommandKind::Separator; }
    /// A placeholder and hidden items that are filled later.
    void Slots(std::string (*key)(int), int count, const char* placeholder)
    {
        Item(key(0), placeholder).enabled = false;
        for (int slot = 1; slot < count; ++slot)
            Item(key(slot), {}).visible = false;
    }

private:
    std::vector<CommandItem>& m_items;
    std::vector<std::string> m_open;
};

void BuildFile(Builder& menu)
{
    menu.Open("File", "&File");
    menu.Open("OpenMenu", "&Open");
    menu.Item("OpenFile", "Open Media File...", Ctrl('O'));
    menu.Open("OpenDVD", "Open DVD");
    menu.Slots(&DvdKey, kDvdSlots, kNoDvdDrives);
    menu.Close();
    menu.Close();
    menu.Open("RecentMenu", "Recently Played Files");
    menu.Slots(&HistoryKey, kHistorySlots, kNoHistory);
    menu.Close();
    menu.Separator();
    menu.Item("Exit", "E&xit", Ctrl('X'));
    menu.Close();
}

void BuildPlay(Builder& menu)
{
    menu.Open("Play", "&Play");
    menu.Item("PlayPause", "Play/Pause", Ctrl('P'));
    menu.Item("Stop", "Stop", Ctrl('S'));
    menu.Separator();
    menu.Open("PlayMode", "Play Mode");
    menu.Option("PMNormal", "&Normal");
    menu.Option("PMContinuous", "&Continuous");
    menu.Option("PMShuffle", "&Shuffle");
    menu.Close();
    menu.Open("RepeatMode", "Repeat Mode");
    menu.Option("RMNoRepeat", "&No Repeat");
    menu.Option("RMSingleRepeat", "&Single Repeat");
    menu.Option("RMRepeatAll", "&Repeat All");
    menu.Close();
    menu.Separator();
    menu.Item("FullScreen", "Full Screen", Ctrl('F'));
    menu.Separator();
    menu.Item("IncreaseSpeed", "Increase Speed", { kControlModifier, kUp });
    menu.Item("DecreaseSpeed", "Decrease Speed", { kControlModifier, kDown });
    menu.Item("ResetSpeed", "Reset Speed", Ctrl('R'));
    menu.Separator();
    // The keys of "PlayPause" once more, on purpose: a submenu has no command, so they stay with the other item.
    menu.Open("AfterPlay", "After file playing finished", Ctrl('P'));
    menu.Option("Donothing", "Do nothing");
    menu.Option("ExitZentaro", "Exit Zentaro");
    menu.Option("RestartTheComputer", "Restart the Computer");
    menu.Option("ShutdownTheComputer", "Shutdown the Computer");
    menu.Close();
    menu.Close();
}

void BuildTheRest(Builder& menu)
{
    menu.Open("PlayList", "&Play&List");
    menu.Item("AddVideoFile", "Add Media File(s)...");
    menu.Item("Remove", "Remove");
    menu.Item("RemoveAll", "Remove All");
    menu.Separator();
    menu.Item("Next", "Next", { 0, kPageDown });
    menu.Item("Previous", "Previous", { 0, kPageUp });
    menu.Close();
    menu.Open("Tools", "&Tools");
    menu.Item("Options", "Options");
    menu.Close();
    menu.Open("Help", "&Help");
    menu.Item("About", "&About");
    menu.Item("HelpTopics", "&Help Topics", { 0, kF1 });
    menu.Close();
}

} // namespace

std::string HistoryKey(int slot)
{
    return "History" + std::to_string(slot);
}

std::string DvdKey(int slot)
{
    return "DVDList" + std::to_string(slot);
}

CommandTree::CommandTree()
{
    Builder menu(m_items);
    BuildFile(menu);
    BuildPlay(menu);
    BuildTheRest(menu);
    SetChecked("PMNormal", true);
}

const CommandItem* CommandTree::Find(std::string_view key) const
{
    const auto at = std::ranges::find(m_items, key, &CommandItem::key);
    return key.empty() || at == m_items.end() ? nullptr : &*at;
}

bool CommandTree::HasSubmenu(const CommandItem& item) const
{
    return !item.key.empty() && std::ranges::find(m_items, item.key, &CommandItem::parent) != m_items.end();
}

template <typename Value> void CommandTree::Set(std::string_view key, Value CommandItem::*field, const Value& value)
{
    const auto at = std::ranges::find(m_items, key, &CommandItem::key);
    if (key.empty() || at == m_items.end() || (*at).*field == value)
        return;
    (*at).*field = value;
    if (onChange)
        onChange(*at);
}

void CommandTree::SetEnabled(std::string_view key, bool enabled)
{
    Set(key, &CommandItem::enabled, enabled);
}

void CommandTree::SetEnabled(std::initializer_list<std::string_view> keys, bool enabled)
{
    for (const auto key : keys)
        SetEnabled(key, enabled);
}

void CommandTree::SetChecked(std::string_view key, bool checked)
{
    Set(key, &CommandItem::checked, checked);
}

void CommandTree::SetVisible(std::string_view key, bool visible)
{
    Set(key, &CommandItem::visible, visible);
}

void CommandTree::SetCaption(std::string_view key, const std::string& caption)
{
    Set(key, &CommandItem::caption, caption);
}

void CommandTree::SetTag(std::string_view key, const std::string& tag)
{
    Set(key, &CommandItem::tag, tag);
}

void CommandTree::CheckOnly(std::span<const std::string_view> keys, std::size_t index)
{
    if (index >= keys.size())
        return;
    for (std::size_t i = 0; i < keys.size(); ++i)
        SetChecked(keys[i], i == index);
}

} // namespace zentaro
