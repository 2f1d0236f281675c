#pragma once

#include "app/Menus.h"
#include "platform/StringStore.h"

#include <cstdint>
#include <string>

namespace zentaro {

/// The recently played files: kept in the user's store, offered in both menu trees.
class History {
public:
    History(platform::StringStore& store, Menus& menus);

    /// Stored entries, 0 to 10.
    std::int16_t CountHistory();
    /// Fills the menus from the store.
    void LoadHistory();
    /// Records a file that is played. One that is there already stays where it is.
    void AddToHistory(const std::string& path, const std::string& title);
    /// 0 to 10; empty while the slot is not filled.
    std::string PathAt(int slot) const { return Slot(slot).tag; }
    std::string TitleAt(int slot) const { return Slot(slot).caption; }

private:
    const CommandItem& Slot(int slot) const { return *m_menus.SmartMenuXP1.Find(HistoryKey(slot)); }
    std::string Read(const char* key, int slot);
    void Write(int slot, const std::string& path, const std::string& title);
    void Fill(int slot, const std::string& caption, const std::string& path);
    void Record(int slot, const std::string& path, const std::string& title);
    void ShiftDown(const std::string& path, const std::string& title);

    platform::StringStore& m_store;
    Menus& m_menus;
};

} // namespace zentaro
