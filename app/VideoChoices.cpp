#include "app/VideoChoices.h"

#include "app/Player.h"
#include "base/Words.h"

#include <utility>

namespace zentaro {

namespace {

using Named = std::pair<const char*, const char*>; // caption and the engine's word

constexpr Named kAspectRatios[] = { { "As in the file", "" }, { "16:9", "16:9" }, { "4:3", "4:3" },
    { "16:10", "16:10" }, { "5:4", "5:4" }, { "1:1", "1:1" }, { "1.85:1", "185:100" }, { "2.21:1", "221:100" },
    { "2.35:1", "235:100" }, { "2.39:1", "239:100" } };
constexpr Named kFilters[] = { { "Off", "" }, { "Blend", "blend" }, { "Linear", "linear" }, { "Yadif", "yadif" },
    { "Yadif, full rate", "yadif2x" } };
constexpr const char* kDocks[] = { "Left", "Right", "Top", "Bottom", "Whole Window" };

std::vector<VideoChoice> TrackChoices(
    Player& player, const std::vector<EngineTrack>& tracks, int present, void (Engine::*choose)(int))
{
    std::vector<VideoChoice> choices;
    for (const auto& track : tracks) {
        choices.push_back(
            { track.id < 0 ? Words("Off") : track.name, track.id == present, [&player, choose, id = track.id] {
                 if (auto* const engine = player.Transporting().LoadedEngine())
                     (engine->*choose)(id);
             } });
    }
    return choices;
}

std::vector<VideoChoice> PartChoices(Player& player, const PartChoice& parts, void (DiscSession::*choose)(int))
{
    std::vector<VideoChoice> choices;
    for (int i = 0; i < static_cast<int>(parts.captions.size()); ++i)
        choices.push_back({ parts.captions[static_cast<std::size_t>(i)], i == parts.present,
            [&player, choose, i] { (player.Discs().*choose)(i); } });
    return choices;
}

template <std::size_t Count>
std::vector<VideoChoice> NamedChoices(
    Player& player, const Named (&rows)[Count], const std::string& present, void (Engine::*choose)(const std::string&))
{
    std::vector<VideoChoice> choices;
    for (const auto& [caption, word] : rows) {
        choices.push_back({ Words(caption), present == word, [&player, choose, word = word] {
                               if (auto* const engine = player.Transporting().LoadedEngine())
                                   (engine->*choose)(word);
                           } });
    }
    return choices;
}

} // namespace

VideoChoices ReadVideoChoices(Player& player)
{
    VideoChoices choices;
    for (int dock = 0; dock < static_cast<int>(std::size(kDocks)); ++dock) {
        choices.docking.push_back({ Words(kDocks[dock]), player.Settings().PlaylistPosition == dock,
            [&player, dock] { player.Window().DockPlaylist(static_cast<PlaylistDock>(dock)); } });
    }
    auto* const engine = player.Transporting().LoadedEngine();
    if (engine == nullptr)
        return choices;
    choices.audioTracks = TrackChoices(player, engine->AudioTracks(), engine->AudioTrack(), &Engine::SetAudioTrack);
    choices.titles = PartChoices(player, player.Discs().Titles(), &DiscSession::SetTitle);
    choices.chapters = PartChoices(player, player.Discs().Chapters(), &DiscSession::SetChapter);
    choices.hasVideo = engine->HasVideoOutput();
    if (!choices.hasVideo)
        return choices;
    choices.subtitles =
        TrackChoices(player, engine->SubtitleTracks(), engine->SubtitleTrack(), &Engine::SetSubtitleTrack);
    choices.aspectRatios = NamedChoices(player, kAspectRatios, engine->AspectRatio(), &Engine::SetAspectRatio);
    const auto filter = engine->Deinterlacing();
    choices.deinterlacing = NamedChoices(player, kFilters, filter, &Engine::SetDeinterlacing);
    // It is the engine's own choice until another is made.
    if (filter == Engine::kDeinterlaceAuto)
        choices.deinterlacing.insert(choices.deinterlacing.begin(), { "Automatic", true, [] {} });
    return choices;
}

void LoadSubtitleFile(Player& player)
{
    player.Face().dialogs->AskForSubtitles([&player](const std::string& path) {
        // The item can have ended under the dialog.
        auto* const engine = player.Transporting().LoadedEngine();
        if (!path.empty() && engine != nullptr && !engine->AddSubtitleFile(path))
            player.Face().window->ShowNote(Words("The subtitles cannot be opened"));
    });
}

} // namespace zentaro
