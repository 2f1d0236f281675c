#include "app/ListMemory.h"

#include "app/StateText.h"
#include "base/Numbers.h"
#include "playlist/LoadThumb.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace zentaro {

namespace {

constexpr std::string_view kHeader = "Zentaro list 1";

RememberedList::Entry ReadEntry(const std::vector<std::string>& row)
{
    PlaylistEntry entry;
    entry.FullPath = TextAt(row, 1);
    entry.Title = TextAt(row, 2);
    entry.MediaInfo = TextAt(row, 4);
    entry.IsThumbnailKept = true; // if what is known of files still has it
    entry.Facts.duration = NumberAt(row, 5);
    entry.Facts.width = RoundHalfEven(NumberAt(row, 6));
    entry.Facts.height = RoundHalfEven(NumberAt(row, 7));
    entry.Facts.fileSize = static_cast<std::int64_t>(std::clamp(NumberAt(row, 8), 0.0, 1e18));
    entry.Facts.modified = static_cast<std::int64_t>(std::clamp(NumberAt(row, 9), -1e18, 1e18));
    entry.Facts.artist = TextAt(row, 10);
    entry.Facts.album = TextAt(row, 11);
    entry.Facts.song = TextAt(row, 12);
    entry.Facts.number = RoundHalfEven(NumberAt(row, 13));
    entry.Facts.year = RoundHalfEven(NumberAt(row, 14));
    return { std::move(entry), TextAt(row, 3) };
}

bool IsOrderOf(const std::vector<int>& order, std::size_t count)
{
    std::vector<bool> seen(count);
    for (const int value : order) {
        if (value < 0 || static_cast<std::size_t>(value) >= count || seen[static_cast<std::size_t>(value)])
            return false;
        seen[static_cast<std::size_t>(value)] = true;
    }
    return order.size() == count;
}

} // namespace

RememberedList Remembered(
    Playlist& playlist, std::int32_t playMode, const std::function<bool(const std::string& path)>& isKept)
{
    RememberedList list;
    list.playMode = playMode;
    bool isWhole = true;
    for (int i = 0; i < playlist.Count(); ++i) {
        auto entry = *playlist.EntryAt(i);
        if (!isKept(entry.FullPath)) {
            isWhole = false;
            continue;
        }
        entry.Thumbnail = {};
        if (i == playlist.List().SelectedItem())
            list.selected = static_cast<int>(list.entries.size());
        list.entries.push_back({ std::move(entry), playlist.List().Item(i).Detail });
    }
    if (!isWhole || playMode != kPlayShuffle)
        return list;
    for (int i = 0; i < playlist.Order().Count(); ++i)
        list.order.push_back(playlist.Order().At(i));
    list.position = playlist.Order().Position();
    return list;
}

std::string FormatList(const RememberedList& list)
{
    StateWriter writer(kHeader);
    writer.Row("list").Number(list.selected).Number(list.position).Number(list.playMode);
    for (const auto& [entry, detail] : list.entries) {
        writer.Row("entry").Field(entry.FullPath).Field(entry.Title).Field(detail).Field(entry.MediaInfo);
        writer.Number(entry.Facts.duration).Number(entry.Facts.width).Number(entry.Facts.height);
        writer.Number(static_cast<double>(entry.Facts.fileSize)).Number(static_cast<double>(entry.Facts.modified));
        writer.Field(entry.Facts.artist).Field(entry.Facts.album).Field(entry.Facts.song);
        writer.Number(entry.Facts.number).Number(entry.Facts.year);
    }
    if (!list.order.empty())
        writer.Row("order");
    for (const int value : list.order)
        writer.Number(value);
    return writer.Take();
}

RememberedList ParseList(std::string_view text)
{
    RememberedList list;
    for (const auto& row : ReadState(text, kHeader)) {
        if (row[0] == "list") {
            list.selected = RoundHalfEven(NumberAt(row, 1));
            list.position = RoundHalfEven(NumberAt(row, 2));
            list.playMode = RoundHalfEven(NumberAt(row, 3));
        } else if (row[0] == "entry" && !TextAt(row, 1).empty()) {
            list.entries.push_back(ReadEntry(row));
        } else if (row[0] == "order") {
            list.order.clear();
            for (std::size_t i = 1; i < row.size(); ++i)
                list.order.push_back(RoundHalfEven(NumberAt(row, i)));
        }
    }
    if (!IsOrderOf(list.order, list.entries.size()))
        list.order.clear();
    return list;
}

void Restore(const RememberedList& list, Playlist& playlist, std::int32_t playMode)
{
    const bool wasEmpty = playlist.Count() == 0;
    for (const auto& [entry, detail] : list.entries) {
        if (!playlist.IsInPlaylist(entry.FullPath))
            playlist.Append(entry, detail);
    }
    if (wasEmpty)
        playlist.List().SetSelectedItem(list.selected);
    playlist.BuildOrder(playMode);
    const bool isOurs = wasEmpty && playMode == list.playMode && playMode == kPlayShuffle
        && static_cast<int>(list.order.size()) == playlist.Count();
    if (!isOurs)
        return;
    playlist.Order().Restore({ list.order, PlayOrder::kNone, PlayOrder::kNone, false });
    playlist.Order().SetPosition(list.position);
}

} // namespace zentaro
