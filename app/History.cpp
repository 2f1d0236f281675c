#include "app/History.h"

namespace zentaro {

namespace {

constexpr auto kRoot = platform::StringStore::Root::CurrentUser;
constexpr const char* kPathsKey = "Software\\Quorvane\\Zentaro\\RecentFileNames";
constexpr const char* kTitlesKey = "Software\\Quorvane\\Zentaro\\RecentFileTitles";
constexpr int kFull = 10; // entries, from which on they shift

} // namespace

History::History(platform::StringStore& store, Menus& menus)
    : m_store(store)
    , m_menus(menus)
{
}

std::int16_t History::CountHistory()
{
    std::int16_t count = 0;
    while (count < kFull && !Read(kPathsKey, count).empty())
        ++count;
    return count;
}

void History::LoadHistory()
{
    const int count = CountHistory();
    for (int slot = 0; slot < count; ++slot)
        Fill(slot, Read(kTitlesKey, slot), Read(kPathsKey, slot));
}

void History::AddToHistory(const std::string& path, const std::string& title)
{
    const int count = CountHistory();
    for (int slot = 0; slot < kHistorySlots; ++slot) {
        if (PathAt(slot) == path)
            return;
    }
    const bool isEmpty = TitleAt(0) == kNoHistory;
    // Together: each change by itself would wait for the disk.
    m_store.BeginBatch();
    if (!isEmpty && count >= kFull)
        ShiftDown(path, title);
    else
        Record(isEmpty ? 0 : count, path, title);
    IgnoreFailure(m_store.CommitBatch());
}

void History::Record(int slot, const std::string& path, const std::string& title)
{
    Fill(slot, title, path);
    Write(slot, path, title);
}

void History::ShiftDown(const std::string& path, const std::string& title)
{
    for (int slot = 0; slot < kFull; ++slot) {
        Fill(slot, m_menus.frmMenu.Find("mnuRecent", slot + 1)->caption, PathAt(slot + 1));
        // The new file's name into every value, on purpose: the next start shows the first file and nine times this
        // one.
        Write(slot + 1, path, title);
    }
    Fill(kFull, title, path);
}

void History::Fill(int slot, const std::string& caption, const std::string& path)
{
    const auto key = HistoryKey(slot);
    auto& commands = m_menus.SmartMenuXP1;
    commands.SetCaption(key, caption);
    commands.SetTag(key, path);
    commands.SetEnabled(key, true);
    commands.SetVisible(key, !caption.empty());
    auto& classic = m_menus.frmMenu;
    classic.SetCaption("mnuRecent", slot, caption);
    classic.SetTag("mnuRecent", slot, path);
    classic.SetEnabled("mnuRecent", slot, true);
    classic.SetVisible("mnuRecent", slot, !caption.empty());
}

std::string History::Read(const char* key, int slot)
{
    return m_store.Read(kRoot, key, std::to_string(slot), {});
}

void History::Write(int slot, const std::string& path, const std::string& title)
{
    IgnoreFailure(m_store.Write(kRoot, kPathsKey, std::to_string(slot), path));
    IgnoreFailure(m_store.Write(kRoot, kTitlesKey, std::to_string(slot), title));
}

} // namespace zentaro
