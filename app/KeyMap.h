#pragma once

#include "app/Commands.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace zentaro {

class OwnSettings;

/// The keys of commands, by the commands' ids.
using KeyTable = std::map<std::string, std::vector<std::string>, std::less<>>;

/// Which keys run which command: those that the list of commands names, unless the user has chosen others.
class KeyMap {
public:
    /// Reads what is kept of the user's choices; the settings outlive it.
    explicit KeyMap(OwnSettings& settings);

    /// None for a command that has none, and for an unknown one.
    const std::vector<std::string>& KeysOf(std::string_view id) const;
    /// What tooltips and menus name; empty where there is nothing to name.
    std::string Shown(const Command& command) const;

    const KeyTable& Table() const { return m_keys; }
    /// All at once; they are kept.
    void Take(const KeyTable& keys);

    /// What the list of commands names.
    static KeyTable Defaults();
    /// Whether the user may choose other keys for it.
    static bool IsChangeable(const Command& command);
    /// Another command than `id` that this key would run, too; null when the key is free. Parts of the window that use
    /// a key only while they have the focus do not meet.
    static const Command* UserOf(const KeyTable& keys, std::string_view key, std::string_view id);

    /// Called after each change.
    std::vector<std::function<void()>> onChange;

private:
    OwnSettings& m_settings;
    KeyTable m_keys;
};

} // namespace zentaro
