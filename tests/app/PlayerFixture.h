#pragma once

#include "app/Commands.h"
#include "tests/platform/WorkingFolder.h"
#include "tests/world/World.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace zentaro {

namespace fs = std::filesystem;

/// A player in a folder of its own, in a world of memory.
class PlayerTest : public testing::Test {
protected:
    std::string ConfigPath() const { return (folder / "Config.cfg").string(); }
    std::optional<std::string> ConfigText() const { return platform::ReadTextFile(ConfigPath(), 100'000); }
    /// The defaults with these changes, on disk.
    void Store(const std::function<void(PlayerSettings&)>& change) const
    {
        auto settings = DefaultSettings("/", {});
        change(settings);
        std::ofstream(ConfigPath(), std::ios::binary) << FormatConfigurations(settings);
    }

    Player& Start(const std::string& commandLine = {})
    {
        isPlayer = world.Load(commandLine);
        world.Settle();
        return *world.player;
    }
    /// A player in the given modes with the entries /a.avi, /b.avi, ...; the first one plays.
    Player& StartWithEntries(int count, std::int32_t playMode, std::int32_t repeatMode)
    {
        Store([&](PlayerSettings& settings) {
            settings.PlayMode = playMode;
            settings.RepeatMode = repeatMode;
        });
        Start();
        for (int i = 0; i < count; ++i)
            Add(std::string("/") + static_cast<char>('a' + i) + ".avi", i == 0);
        return *world.player;
    }
    void Add(const std::string& path, bool playNow)
    {
        world.player->Files().LoadThumb(path.substr(1), path, false, playNow);
        world.Settle();
    }
    /// The engine reports that the item has been played to its end.
    void EndItem()
    {
        trace.state = Engine::kEnded;
        trace.time = trace.length = 2000;
        world.player->OnPositionTick();
        trace.state = Engine::kPlaying;
    }
    /// So many ticks long, nothing that is started can be played.
    void Fail(int ticks = 1)
    {
        trace.state = Engine::kFailed;
        for (int tick = 0; tick < ticks; ++tick)
            world.player->OnPositionTick();
        trace.state = Engine::kPlaying;
    }
    void Run(const char* command, int which = 0) { RunCommand(*world.player, command, which); }
    bool IsEnabled(const char* key) { return world.player->BothMenus().SmartMenuXP1.Find(key)->enabled; }
    /// Which of a group's items are checked.
    std::string Checked(std::span<const std::string_view> keys)
    {
        std::string checked;
        for (const auto key : keys)
            checked += world.player->BothMenus().SmartMenuXP1.Find(key)->checked ? std::string(key) + " " : "";
        return checked;
    }
    bool IsLoaded() const { return world.player->State().mediaControlsEnabled; }
    const std::string& LastPlayed() const { return trace.played.back(); }
    std::size_t Starts() const { return trace.played.size(); }

    const platform::WorkingFolder own;
    const fs::path folder{ own.Path() };
    World world{ own / "" };
    EngineTrace& trace = world.engines.trace;
    bool isPlayer = false;
};

} // namespace zentaro
