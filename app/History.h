#pragma once

#include "app/Menus.h"
#include "platform/StringStore.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace zentaro {

/// The recently played files: kept in the user's store, offered in both menu trees.
class History {
public:
    /// As RunInBackground(), for reading and writing the store.
    using Background = std::function<void(std::function<std::function<void()>()>)>;

    /// `store` is used by nobody else while files are recorded.
    History(platform::StringStore& store, Menus& menus, Background background);

    /// Stored entries, 0 to 10.
    std::int16_t CountHistory();
    /// Fills the menus from the store.
    void LoadHistory();
    /// Records a file that is played. One that is there already stays where it is. The menus show it when it is stored.
    void AddToHistory(const std::string& path, const std::string& title);
    /// Records a file that is played as the first one; one that is there already goes there.
    void AddNewest(const std::string& path, const std::string& title);
    void Clear() { Replace({}); }
    /// Stores at once what still waits for that.
    void Close();
    /// 0 to 10; empty while the slot is not filled.
    std::string PathAt(int slot) const { return Slot(slot).tag; }
    std::string TitleAt(int slot) const { return Slot(slot).caption; }

private:
    struct Played {
        std::string path;
        std::string title;
        bool isFirst = false; ///< the menus show none
        bool isTaken = false; ///< it is being stored, or only to be shown yet
    };

    using Files = std::vector<std::pair<std::string, std::string>>; // paths and titles

    /// Menus and store hold these from now on.
    void Replace(const Files& files);
    const CommandItem& Slot(int slot) const { return *m_menus.SmartMenuXP1.Find(HistoryKey(slot)); }
    std::string Read(const char* key, int slot);
    void Write(int slot, const std::string& path, const std::string& title);
    void Fill(int slot, const std::string& caption, const std::string& path);
    /// The slot that it was stored in; kFull when all others have to move up.
    int Store(const Played& file);
    /// Stores the file that waits longest, one at a time; gives back what shows it, nothing when none waits.
    std::function<void()> StoreNext();
    void Show(const Played& file, int slot);

    platform::StringStore& m_store;
    Menus& m_menus;
    Background m_background;
    std::mutex m_storing;
    std::mutex m_mutex; ///< of the files below; nobody holds it while the disk works
    std::deque<Played> m_waiting;
};

} // namespace zentaro
