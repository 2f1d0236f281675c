#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zentaro {

enum class CommandKind : std::int16_t {
    Item = 0,   ///< an item or a submenu
    Option = 2, ///< shows a check mark
    Separator = 3,
};

/// One item of the command menu.
struct CommandItem {
    std::string parent; ///< the key of the submenu it lies in; empty at the top
    std::string key;    ///< empty for separators
    CommandKind kind = CommandKind::Item;
    std::string caption;           ///< "&" marks the access letter
    std::string shortcut;          ///< "Ctrl+O"; empty for none
    std::string_view command = {}; ///< the id of what it does; empty for submenus, separators and slots that do nothing
    int slot = 0;                  ///< which of a row of equal items it is
    bool checked = false;
    bool enabled = true;
    bool visible = true;
    std::string tag = {};
};

inline constexpr int kHistorySlots = 11;
inline constexpr int kDvdSlots = 6;
inline constexpr const char* kNoHistory = "<No History>";
inline constexpr const char* kNoDvdDrives = "<No DVD drives were found>";

/// "History0" to "History10".
std::string HistoryKey(int slot);
/// "DVDList0" to "DVDList5".
std::string DvdKey(int slot);

// Groups of which one item is checked. The index is the value of the setting.
inline constexpr std::array<std::string_view, 3> kPlayModeKeys{ "PMNormal", "PMContinuous", "PMShuffle" };
inline constexpr std::array<std::string_view, 3> kRepeatModeKeys{ "RMNoRepeat", "RMSingleRepeat", "RMRepeatAll" };

/// The data of `SmartMenuXP1`: the commands of the menu strip by their keys. What is shown, enabled and checked stands
/// here; the menus on the screen follow.
class CommandTree {
public:
    CommandTree();

    /// In the order of creation: an item's submenu comes before it.
    const std::vector<CommandItem>& Items() const { return m_items; }
    /// Null when no item has this key.
    const CommandItem* Find(std::string_view key) const;
    bool HasSubmenu(const CommandItem& item) const;
    /// Whether the captions in it are names of files or discs: then no character of them has a meaning.
    static bool IsSlot(const CommandItem& item) { return item.parent == "RecentMenu" || item.parent == "OpenDVD"; }

    // By key; an unknown key changes nothing.
    void SetEnabled(std::string_view key, bool enabled);
    void SetEnabled(std::initializer_list<std::string_view> keys, bool enabled);
    void SetChecked(std::string_view key, bool checked);
    void SetVisible(std::string_view key, bool visible);
    void SetCaption(std::string_view key, const std::string& caption);
    void SetTag(std::string_view key, const std::string& tag);
    /// Checks one of a group; an index outside it leaves the marks as they are.
    void CheckOnly(std::span<const std::string_view> keys, std::size_t index);

    /// Called with the item after each change of it.
    std::function<void(const CommandItem&)> onChange;

private:
    template <typename Value> void Set(std::string_view key, Value CommandItem::*field, const Value& value);

    std::vector<CommandItem> m_items;
};

} // namespace zentaro
