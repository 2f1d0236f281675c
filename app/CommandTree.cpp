#include "app/CommandTree.h"

#include "app/Commands.h"

#include <algorithm>

namespace zentaro {

namespace {

/// One item below the submenu that stands before it with a smaller depth. What a command is called and its key come
/// from the list of commands; a submenu has a caption of its own.
struct Node {
    int depth;
    const char* key;
    const char* caption = nullptr;
    CommandKind kind = CommandKind::Item;
};

constexpr auto kOption = CommandKind::Option;
constexpr Node kSeparator(int depth)
{
    return { depth, "", "", CommandKind::Separator };
}
constexpr const char* kHistoryCommand = "History";
constexpr const char* kDvdSlot = "DVDList";
constexpr const char* kAfterPlay = "AfterPlay";

constexpr Node kTree[] = {
    { 0, "File", "&File" },
    { 1, "OpenMenu", "&Open" },
    { 2, "OpenFile" },
    { 2, "OpenDVD", "Open DVD" },
    { 3, kDvdSlot, kNoDvdDrives },
    { 1, "RecentMenu", "Recently Played Files" },
    { 2, kHistoryCommand, kNoHistory },
    kSeparator(1),
    { 1, "Exit" },
    { 0, "Play", "&Play" },
    { 1, "PlayPause" },
    { 1, "Stop" },
    kSeparator(1),
    { 1, "PlayMode", "Play Mode" },
    { 2, "PMNormal", nullptr, kOption },
    { 2, "PMContinuous", nullptr, kOption },
    { 2, "PMShuffle", nullptr, kOption },
    { 1, "RepeatMode", "Repeat Mode" },
    { 2, "RMNoRepeat", nullptr, kOption },
    { 2, "RMSingleRepeat", nullptr, kOption },
    { 2, "RMRepeatAll", nullptr, kOption },
    kSeparator(1),
    { 1, "FullScreen" },
    kSeparator(1),
    { 1, "IncreaseSpeed" },
    { 1, "DecreaseSpeed" },
    { 1, "ResetSpeed" },
    kSeparator(1),
    { 1, kAfterPlay, "After file playing finished" },
    { 2, "Donothing", nullptr, kOption },
    { 2, "ExitZentaro", nullptr, kOption },
    { 2, "RestartTheComputer", nullptr, kOption },
    { 2, "ShutdownTheComputer", nullptr, kOption },
    { 0, "PlayList", "&Play&List" },
    { 1, "AddVideoFile" },
    { 1, "Remove" },
    { 1, "RemoveAll" },
    kSeparator(1),
    { 1, "Next" },
    { 1, "Previous" },
    { 0, "Tools", "&Tools" },
    { 1, "Options" },
    { 0, "Help", "&Help" },
    { 1, "About" },
    { 1, "HelpTopics" },
};

/// A placeholder and hidden items that are filled later.
void AddSlots(std::vector<CommandItem>& items, const std::string& parent, const Node& node)
{
    const bool isHistory = std::string_view(node.key) == kHistoryCommand;
    const int count = isHistory ? kHistorySlots : kDvdSlots;
    for (int slot = 0; slot < count; ++slot) {
        auto& item = items.emplace_back();
        item.parent = parent;
        item.key = node.key + std::to_string(slot);
        item.caption = slot == 0 ? node.caption : "";
        item.enabled = slot > 0;
        item.visible = slot == 0;
        item.slot = slot;
        item.command = isHistory ? kHistoryCommand : "";
    }
}

void AddItem(std::vector<CommandItem>& items, const std::string& parent, const Node& node)
{
    auto& item = items.emplace_back();
    item.parent = parent;
    item.key = node.key;
    item.kind = node.kind;
    if (node.caption != nullptr) {
        item.caption = node.caption;
        return;
    }
    const auto& command = *FindCommand(node.key);
    item.command = command.id;
    item.caption = command.caption;
    item.shortcut = command.keys.empty() ? "" : command.keys.front();
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
    std::array<std::string, 4> submenus; // the key of the last item of each depth
    for (const auto& node : kTree) {
        const auto depth = static_cast<std::size_t>(node.depth);
        const auto& parent = depth > 0 ? submenus[depth - 1] : std::string();
        const std::string_view key = node.key;
        const bool isSlots = key == kDvdSlot || key == kHistoryCommand;
        isSlots ? AddSlots(m_items, parent, node) : AddItem(m_items, parent, node);
        submenus[depth] = node.key;
    }
    // The shortcut of "PlayPause" once more, on purpose: a submenu has no command, so the key stays with the other
    // item.
    Set(kAfterPlay, &CommandItem::shortcut, Find("PlayPause")->shortcut);
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
