#pragma once

#include "platform/StringStore.h"
#include "shell/ClassicTree.h"
#include "shell/CommandTree.h"

#include <array>
#include <cstdint>
#include <string>

namespace zentaro {

/// The recently played files: kept in the user's store, offered in both menu trees.
class History {
public:
    History(platform::StringStore& store, CommandTree& commands, ClassicTree& classic);

    /// Stored entries, 0 to 10.
    std::int16_t CountHistory();
    /// Fills the menus from the store.
    void LoadHistory();
    /// Records a file that is played. One that is there already stays where it is.
    void AddToHistory(const std::string& path, const std::string& title);
    /// 0 to 10; empty while the slot is not filled.
    const std::string& PathAt(int slot) const { return m_paths[static_cast<std::size_t>(slot)]; }

private:
    std::string Read(const char* key, int slot);
    void Write(int slot, const std::string& path, const std::string& title);
    void Fill(int slot, const std::string& caption, const std::string& path);
    void ShiftDown(const std::string& path, const std::string& title);

    platform::StringStore& m_store;
    CommandTree& m_commands;
    ClassicTree& m_classic;
    std::array<std::string, kHistorySlots> m_paths;
};

} // namespace zentaro
