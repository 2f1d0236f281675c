#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace zentaro {

class Player;

/// The names of keys that a command can be given by, such as "Ctrl+Shift+T".
template <std::size_t Count> using Keys = std::array<std::string_view, Count>;

/// Where the focus must be for a command's keys to work.
enum class KeyPlace {
    Anywhere,
    List,  ///< in the list, while it is in sight
    Video, ///< on the video, or nowhere else
};

/// One thing that can be asked of the player. Menus, keys, buttons, the tray and the desktop's media controls know it
/// by its id; what it is called and what it does stands in one list.
struct Command {
    std::string_view id;      ///< the key of the command tree's item where it has one
    std::string_view caption; ///< "&" marks the access letter of menus
    /// Names of keys such as "Shift+Left". The first one of an item of the command tree is its shortcut there.
    std::span<const std::string_view> keys = {};
    /// `which`: which of its keys was pressed, or which item of a row of equal ones was chosen; from 0.
    void (*run)(Player& player, int which) = nullptr;
    /// Whether it can do anything now, for buttons and menus beside the two trees; null: always.
    bool (*isAvailable)(const Player& player) = nullptr;
    /// Whether it names what is chosen now; null where there is nothing to choose.
    bool (*isChecked)(const Player& player) = nullptr;
    /// What ends it, for commands that last as long as they are held; null for all others.
    void (*release)(Player& player) = nullptr;
    /// Its key does it again and again while it is held.
    bool repeats = false;
    /// The command of the same effect whose key tooltips name; empty: its own.
    std::string_view shownKeyOf = {};
    KeyPlace place = KeyPlace::Anywhere;
    /// What a list of all commands calls it where its caption does not do by itself; "-": it is not in the list.
    std::string_view name = {};
};

/// One whose key does it again and again while it is held.
constexpr Command Repeated(std::string_view id, std::string_view caption, std::span<const std::string_view> keys,
    void (*run)(Player&, int), bool (*isAvailable)(const Player&) = nullptr)
{
    return { .id = id, .caption = caption, .keys = keys, .run = run, .isAvailable = isAvailable, .repeats = true };
}

/// In the order in which a list of them is to be read.
std::span<const Command> AllCommands();

/// Null for an id that no command has.
const Command* FindCommand(std::string_view id);

/// Does it. An unknown id does nothing.
void RunCommand(Player& player, std::string_view id, int which = 0);

/// What a list of all commands calls it, without marks of menus; empty when it is not in the list.
std::string ListedName(const Command& command);

} // namespace zentaro
