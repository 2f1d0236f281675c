#include "playlist/ListArranging.h"

#include "base/Paths.h"
#include "base/Words.h"
#include "playlist/DroppedFiles.h"
#include "playlist/LoadThumb.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace zentaro {

namespace {

struct SortKey {
    int row = 0;
    std::string name;
    std::string folder;
    double number = 0;
};

double NumberOf(const MediaFacts& facts, ListSort by)
{
    if (by == ListSort::Length)
        return facts.duration;
    if (by == ListSort::Date)
        return static_cast<double>(facts.modified);
    return by == ListSort::Size ? static_cast<double>(facts.fileSize) : 0;
}

std::vector<SortKey> Keys(const Playlist& playlist, ListSort by, char separator)
{
    std::vector<SortKey> keys;
    keys.reserve(static_cast<std::size_t>(playlist.Count()));
    for (int row = 0; row < playlist.Count(); ++row) {
        auto& key = keys.emplace_back();
        key.row = row;
        key.name = playlist.List().Item(row).Text;
        key.number = NumberOf(playlist.FactsAt(row), by);
        if (by != ListSort::Folder)
            continue;
        key.folder = playlist.PathAt(row);
        key.folder.resize(key.folder.size() - FileNamePart(key.folder, separator).size());
    }
    return keys;
}

std::vector<bool> Chosen(int count, const std::vector<int>& rows)
{
    std::vector<bool> chosen(static_cast<std::size_t>(count));
    for (const int row : rows)
        chosen[static_cast<std::size_t>(row)] = true;
    return chosen;
}

} // namespace

std::string SummaryText(const Playlist& playlist)
{
    if (playlist.Count() == 0)
        return {};
    double length = 0;
    for (int row = 0; row < playlist.Count(); ++row)
        length += std::max(0.0, playlist.FactsAt(row).duration);
    const auto count = CountedWords(playlist.Count(), "%n file", "%n files");
    return length > 0 ? count + " \u00B7 " + DurationText(length) : count;
}

std::vector<int> MovedRows(int count, const std::vector<int>& rows, int to)
{
    const auto chosen = Chosen(count, rows);
    std::vector<int> arranged;
    for (int row = 0; row <= count; ++row) {
        if (row == std::clamp(to, 0, count))
            arranged.insert(arranged.end(), rows.begin(), rows.end());
        if (row < count && !chosen[static_cast<std::size_t>(row)])
            arranged.push_back(row);
    }
    return arranged;
}

std::vector<int> RemainingRows(int count, const std::vector<int>& rows)
{
    const auto chosen = Chosen(count, rows);
    std::vector<int> remaining;
    for (int row = 0; row < count; ++row) {
        if (!chosen[static_cast<std::size_t>(row)])
            remaining.push_back(row);
    }
    return remaining;
}

std::vector<int> SortedRows(const Playlist& playlist, ListSort by, char separator)
{
    auto keys = Keys(playlist, by, separator);
    const auto isLess = [](const SortKey& a, const SortKey& b) {
        if (a.number != b.number)
            return a.number < b.number;
        if (a.folder != b.folder)
            return NaturalLess(a.folder, b.folder);
        return NaturalLess(a.name, b.name);
    };
    if (std::is_sorted(keys.begin(), keys.end(), isLess))
        std::reverse(keys.begin(), keys.end());
    else
        std::stable_sort(keys.begin(), keys.end(), isLess);
    std::vector<int> rows;
    rows.reserve(keys.size());
    for (const auto& key : keys)
        rows.push_back(key.row);
    return rows;
}

} // namespace zentaro
