#include "app/Snapshots.h"

#include "base/Paths.h"
#include "base/Words.h"
#include "platform/Files.h"
#include "playback/Snapshot.h"

namespace zentaro {

void TakeSnapshot(Transport& transport, const SettingsStore& settings, WindowFace& window, char separator)
{
    auto* const engine = CanTakeSnapshot(transport) ? transport.LoadedEngine() : nullptr;
    if (engine == nullptr)
        return;
    const auto folder = settings.SnapshotFolderOf(transport.Item().name);
    const auto pathOf = [&](const std::string& name) { return WithTrailingSeparator(folder, separator) + name; };
    const auto name = NextSnapshotName(settings.Settings().SnapshotPrefix, separator,
        [&](const std::string& each) { return platform::PathExists(pathOf(each)); });
    const bool isWritten = !name.empty() && platform::MakeFolder(folder) && engine->TakeSnapshot(pathOf(name))
        && platform::PathExists(pathOf(name));
    if (isWritten)
        window.ShowNote(
            Words("Saved %1", { name }), settings.Settings().SnapshotPreview != 0 ? pathOf(name) : std::string());
    else
        window.ShowNote(Words("No snapshot could be saved in %1", { folder }));
}

} // namespace zentaro
