#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace zentaro {

/// Every option that survives a restart. Flags are 16-bit integers: 0 is off, anything else is on (a dialog writes -1).
struct PlayerSettings {
    std::string Language = "English"; // stored and reloaded only
    std::string DefaultFolder;        // stored and reloaded only; the user's Desktop folder when blank
    std::int32_t PlayMode = 1;        // 0 normal, 1 continuous, 2 shuffle
    std::int32_t RepeatMode = 2;      // 0 no repeat, 1 repeat the current entry, 2 repeat all
    std::int16_t AlwaysOnTop = 0;
    std::int16_t TitleBarMode = 1;     // 0 selected title, 1 selected full path, 2 the program's name alone
    std::int16_t KeepHistory = 0;      // stored and reloaded only: the history is kept whatever it says
    std::int16_t LaunchFullScreen = 0; // for files from the command line or from a second start
    std::int16_t RememberLastPos = 0;
    std::int16_t RememberLastSize = 0;
    std::int16_t UseNewPlayer = 0; // a second start plays by itself instead of handing its file over
    std::int16_t DisableScreenSaver = 1;
    std::int16_t ShowInTray = 0;
    std::string SnapshotPath = "C:\\"; // base of the snapshot folders, one for each media file
    std::string SnapshotPrefix = "IMG_";
    std::int16_t SnapshotPreview = 1;
    std::int16_t SnapshotPng = 0;                // stored and reloaded only: snapshots are PNG files
    std::array<std::int16_t, 24> Associations{}; // by media extension, in the order of kMediaExtensions
    std::int32_t WindowLeft = 0;                 // twips, 15 to a logical pixel
    std::int32_t WindowTop = 0;                  // twips
    std::int32_t WindowWidth = 388;              // logical pixels
    std::int32_t WindowHeight = 515;             // logical pixels
    std::int32_t PlaylistPosition = 0;           // 0 left, 1 right, 2 top, 3 bottom, 4 the whole window

    bool operator==(const PlayerSettings&) const = default;
};

/// Visits every field in `Config.cfg` order. Position alone gives a line its meaning.
void VisitInFileOrder(auto& settings, auto&& visit)
{
    visit(settings.Language);
    visit(settings.DefaultFolder);
    visit(settings.PlayMode);
    visit(settings.RepeatMode);
    visit(settings.AlwaysOnTop);
    visit(settings.TitleBarMode);
    visit(settings.KeepHistory);
    visit(settings.LaunchFullScreen);
    visit(settings.RememberLastPos);
    visit(settings.RememberLastSize);
    visit(settings.UseNewPlayer);
    visit(settings.DisableScreenSaver);
    visit(settings.ShowInTray);
    visit(settings.SnapshotPath);
    visit(settings.SnapshotPrefix);
    visit(settings.SnapshotPreview);
    visit(settings.SnapshotPng);
    for (auto& flag : settings.Associations)
        visit(flag);
    visit(settings.WindowLeft);
    visit(settings.WindowTop);
    visit(settings.WindowWidth);
    visit(settings.WindowHeight);
    visit(settings.PlaylistPosition);
}

} // namespace zentaro
