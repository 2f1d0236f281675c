#include "app/KeyMap.h"

#include "app/OwnSettings.h"

#include <algorithm>

namespace zentaro {

namespace {

constexpr std::string_view kPrefix = "keys.";
constexpr char kBetween = '\t';

std::string Joined(const std::vector<std::string>& keys)
{
    std::string text;
    for (const auto& key : keys)
        text += text.empty() ? key : kBetween + key;
    return text;
}

std::vector<std::string> Separated(const std::string& text)
{
    std::vector<std::string> keys;
    for (std::size_t from = 0; from < text.size();) {
        const auto end = std::min(text.find(kBetween, from), text.size());
        if (end > from)
            keys.push_back(text.substr(from, end - from));
        from = end + 1;
    }
    return keys;
}

std::vector<std::string> DefaultsOf(const Command& command)
{
    std::vector<std::string> keys;
    for (const auto key : command.keys) {
        if (!key.empty())
            keys.emplace_back(key);
    }
    return keys;
}

bool CanMeet(KeyPlace a, KeyPlace b)
{
    return a == b || a == KeyPlace::Anywhere || b == KeyPlace::Anywhere;
}

} // namespace

KeyMap::KeyMap(OwnSettings& settings)
    : m_settings(settings)
    , m_keys(Defaults())
{
    std::vector<std::string> chosenIds;
    for (auto& [id, keys] : m_keys) {
        if (const auto chosen = settings.Find(std::string(kPrefix) + id); chosen && IsChangeable(*FindCommand(id))) {
            keys = Separated(*chosen);
            chosenIds.push_back(id);
        }
    }
    // A command that came with a newer version does not take a key that the user gave to another.
    for (const auto& id : chosenIds) {
        for (const auto& key : m_keys[id]) {
            const auto* const user = UserOf(m_keys, key, id);
            if (user != nullptr && std::ranges::find(chosenIds, user->id) == chosenIds.end())
                std::erase(m_keys.find(user->id)->second, key);
        }
    }
}

const std::vector<std::string>& KeyMap::KeysOf(std::string_view id) const
{
    static const std::vector<std::string> none;
    const auto at = m_keys.find(id);
    return at == m_keys.end() ? none : at->second;
}

std::string KeyMap::Shown(const Command& command) const
{
    const auto& keys = KeysOf(command.shownKeyOf.empty() ? command.id : command.shownKeyOf);
    return keys.empty() ? std::string() : keys.front();
}

void KeyMap::Take(const KeyTable& keys)
{
    const auto defaults = Defaults();
    for (auto& [id, mine] : m_keys) {
        const auto at = keys.find(id);
        if (at == keys.end() || at->second == mine)
            continue;
        mine = at->second;
        const auto key = std::string(kPrefix) + id;
        mine == defaults.at(id) ? m_settings.Remove(key) : m_settings.Set(key, Joined(mine));
    }
    IgnoreFailure(m_settings.Save());
    for (const auto& changed : onChange)
        changed();
}

KeyTable KeyMap::Defaults()
{
    KeyTable table;
    for (const auto& command : AllCommands())
        table[std::string(command.id)] = DefaultsOf(command);
    return table;
}

bool KeyMap::IsChangeable(const Command& command)
{
    // Which of ten keys was pressed means something.
    constexpr std::size_t kMany = 10;
    return !ListedName(command).empty() && command.keys.size() < kMany;
}

const Command* KeyMap::UserOf(const KeyTable& keys, std::string_view key, std::string_view id)
{
    const auto* const asking = FindCommand(id);
    for (const auto& command : AllCommands()) {
        const auto at = keys.find(command.id);
        if (at == keys.end() || command.id == id || (asking != nullptr && !CanMeet(asking->place, command.place)))
            continue;
        if (std::ranges::find(at->second, key) != at->second.end())
            return &command;
    }
    return nullptr;
}

} // namespace zentaro
