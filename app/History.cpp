#include "app/History.h"

#include <algorithm>
#include <utility>

namespace zentaro {

namespace {

constexpr auto kRoot = platform::StringStore::Root::CurrentUser;
constexpr const char* kPathsKey = "Software\\Quorvane\\Zentaro\\RecentFileNames";
constexpr const char* kTitlesKey = "Software\\Quorvane\\Zentaro\\RecentFileTitles";
constexpr int kFull = 10; // entries, from which on they shift

} // namespace

History::History(platform::StringStore& store, Menus& menus, Background background)
    : m_store(store)
    , m_menus(menus)
    , m_background(std::move(background))
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
    for (int slot = 0; slot < kHistorySlots; ++slot) {
        if (PathAt(slot) == path)
            return;
    }
    {
        const std::lock_guard lock(m_mutex);
        if (std::any_of(m_waiting.begin(), m_waiting.end(), [&](const auto& file) { return file.path == path; }))
            return;
        m_waiting.push_back({ path, title, m_waiting.empty() && TitleAt(0) == kNoHistory });
    }
    m_background([this] {
        const auto show = StoreNext();
        return show ? show : [] {};
    });
}

void History::AddNewest(const std::string& path, const std::string& title)
{
    Files files{ { path, title } };
    for (int slot = 0; slot < kHistorySlots; ++slot) {
        const auto known = PathAt(slot);
        const bool isThere =
            std::any_of(files.begin(), files.end(), [&](const auto& file) { return file.first == known; });
        if (!known.empty() && !isThere && static_cast<int>(files.size()) < kFull)
            files.push_back({ known, TitleAt(slot) });
    }
    Replace(files);
}

void History::Replace(const Files& files)
{
    auto slots = files;
    slots.resize(kHistorySlots);
    for (int slot = 0; const auto& [path, title] : slots)
        Fill(slot++, title, path);
    if (files.empty()) {
        Fill(0, kNoHistory, {});
        m_menus.SmartMenuXP1.SetEnabled(HistoryKey(0), false);
        m_menus.frmMenu.SetEnabled("mnuRecent", 0, false);
    }
    m_background([this, slots = std::move(slots)] {
        const std::lock_guard storing(m_storing);
        m_store.BeginBatch();
        for (int slot = 0; const auto& [path, title] : slots)
            Write(slot++, path, title);
        IgnoreFailure(m_store.CommitBatch());
        return [] {};
    });
}

void History::Close()
{
    while (const auto show = StoreNext())
        show();
}

std::function<void()> History::StoreNext()
{
    const std::lock_guard storing(m_storing);
    Played file;
    {
        const std::lock_guard lock(m_mutex);
        const auto next =
            std::find_if(m_waiting.begin(), m_waiting.end(), [](const auto& each) { return !each.isTaken; });
        if (next == m_waiting.end())
            return nullptr;
        next->isTaken = true;
        file = *next;
    }
    return [this, file, slot = Store(file)] { Show(file, slot); };
}

int History::Store(const Played& file)
{
    // Together: each change by itself would wait for the disk.
    m_store.BeginBatch();
    const int count = file.isFirst ? 0 : CountHistory();
    if (count < kFull) {
        Write(count, file.path, file.title);
    } else {
        // The new file's name into every value, on purpose: the next start shows the first file and nine times this
        // one.
        for (int slot = 1; slot <= kFull; ++slot)
            Write(slot, file.path, file.title);
    }
    IgnoreFailure(m_store.CommitBatch());
    return count;
}

void History::Show(const Played& file, int slot)
{
    for (int upper = 0; slot == kFull && upper < kFull; ++upper)
        Fill(upper, m_menus.frmMenu.Find("mnuRecent", upper + 1)->caption, PathAt(upper + 1));
    Fill(slot, file.title, file.path);
    const std::lock_guard lock(m_mutex);
    std::erase_if(m_waiting, [&](const auto& each) { return each.path == file.path; });
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
