#include "app/ListFiles.h"

#include "app/Player.h"
#include "base/Paths.h"
#include "base/Words.h"
#include "platform/Files.h"
#include "playlist/ListFile.h"

namespace zentaro {

namespace {

std::vector<ListedEntry> ListedEntries(const Playlist& playlist)
{
    std::vector<ListedEntry> entries;
    entries.reserve(static_cast<std::size_t>(playlist.Count()));
    for (int i = 0; i < playlist.Count(); ++i)
        entries.push_back({ playlist.PathAt(i), playlist.List().Item(i).Text, playlist.FactsAt(i).duration });
    return entries;
}

void WriteList(Player& player, std::string path)
{
    const char separator = platform::PathSeparator();
    auto format = ListFormatOf(path, separator);
    if (!format) {
        path += ".m3u8";
        format = ListFormat::M3u;
    }
    const auto name = FileNamePart(path, separator);
    const auto folder = path.substr(0, path.size() - name.size());
    const auto text = FormatListFile(ListedEntries(player.Entries()), *format, folder, separator);
    if (const auto written = platform::ReplaceTextFile(path, text); !written)
        player.Face().dialogs->ShowNotice(
            { Words("Cannot save the list <%1>", { path }) + "\r\n" + written.error().text }, [] {});
    else
        player.Face().window->ShowNote(Words("Saved %1", { name }));
}

void ShowSubtitles(Player& player, const std::vector<std::string>& files)
{
    auto* const engine = player.Transporting().LoadedEngine();
    if (engine == nullptr)
        return player.Face().window->ShowNote(Words("Nothing plays that the subtitles could belong to"));
    const char separator = platform::PathSeparator();
    for (const auto& file : files) {
        const auto name = FileNamePart(file, separator);
        player.Face().window->ShowNote(
            engine->AddSubtitleFile(file) ? Words("Subtitles: %1", { name }) : Words("The subtitles cannot be opened"));
    }
}

} // namespace

void SaveList(Player& player)
{
    player.Face().dialogs->AskForListName([&player](const std::string& path) {
        if (!path.empty())
            WriteList(player, path);
    });
}

void TakeFound(Player& player, const FoundFiles& found)
{
    if (!found.subtitles.empty())
        ShowSubtitles(player, found.subtitles);
    if (const auto missing = MissingText(found); !missing.empty())
        player.Face().window->ShowNote(missing);
}

} // namespace zentaro
