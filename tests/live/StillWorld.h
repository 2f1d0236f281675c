#pragma once

#include "app/Player.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace zentaro {

/// A window that shows nothing and remembers what matters to a test.
class StillScreen : public PlayerScreen {
public:
    ScreenExtent Extent() const override { return { 1280 * 15.0, 800 * 15.0 }; }
    bool IsMaximized() const override { return false; }
    double WindowLeft() const override { return 0; }
    double WindowTop() const override { return 45; }
    void ShowWindow() override { }
    void CloseWindow() override { ++closes; }
    void SetWindowSize(int, int) override { }
    void SetWindowPosition(int, int) override { }
    void SetTopmost(bool) override { }
    void SetFullScreen(bool) override { }
    bool IsFullScreen() const override { return false; }
    void ShowCaption(const std::string&) override { }
    void FlashCaption() override { }
    void SetPlaylistPosition(PlaylistDock) override { }
    bool IsPlaylistVisible() const override { return false; }
    void ShowAddProgress(const AddProgress&) override { }
    void ShowPosition(const PositionTick&, double) override { }
    void ShowTimeText(const std::string&) override { }
    void ShowRate(const std::string&) override { }
    void ShowIdle() override { }
    void StateChanged() override { }
    void FocusVideo() override { }
    void ShowNotice(const Notice&) override { ++boxes; }
    void ShowNote(const std::string&) override { ++notes; }
    void ShowPictureNote(const std::string&, const std::string&) override { ++notes; }
    std::vector<std::string> AskForFiles(const std::string&, const std::string&) override { return chosen; }
    void ShowOptions() override { }
    void ShowAbout() override { }
    void ShowHelp() override { }
    void SetTrayShown(bool) override { }
    void PopupMenu(const std::string&) override { }
    std::string AskForSubtitles() override { return subtitles; }
    void PumpMessages(int times) override
    {
        for (int i = 0; pump && i < times; ++i)
            pump();
    }
    void PumpFor(std::chrono::milliseconds time) override
    {
        const auto end = std::chrono::steady_clock::now() + time;
        PumpUntil([&] { return std::chrono::steady_clock::now() >= end; });
    }
    void PumpUntil(const std::function<bool()>& done) override
    {
        while (!done() && pump)
            pump();
    }

    std::function<void()> pump; ///< handles waiting messages once; empty where there are none
    std::vector<std::string> chosen;
    std::string subtitles;
    int closes = 0;
    int notes = 0;
    int boxes = 0;
};

/// Every file is good, and at once.
class InstantInspections : public InspectionRunner {
public:
    void Start(int ticket, const std::string&) override
    {
        Inspection inspection;
        inspection.ok = true;
        player->InspectionCompleted(ticket, inspection);
    }
    void Cancel(int) override { }

    Player* player = nullptr;
};

class MemoryStore : public platform::StringStore {
public:
    std::string Read(Root, const std::string& key, const std::string& name, const std::string& fallback) override
    {
        const auto at = values.find(key + ":" + name);
        return at == values.end() ? fallback : at->second;
    }
    Result<void> Write(Root, const std::string& key, const std::string& name, const std::string& text) override
    {
        values[key + ":" + name] = text;
        return {};
    }
    Result<void> Delete(Root, const std::string&, const std::string&) override { return {}; }

    std::map<std::string, std::string> values; ///< by key, colon, name
};

/// Counts what a computer would do.
class CountingPower : public platform::Power {
public:
    void EnableShutdownPrivilege() override { }
    Result<void> Restart() override
    {
        ++restarts;
        return {};
    }
    Result<void> PowerOff() override
    {
        ++powerOffs;
        return {};
    }

    int restarts = 0;
    int powerOffs = 0;
};

/// All of it, with a player that keeps its settings in `folder` (with a trailing separator).
class StillWorld {
public:
    StillWorld(EngineFactory& engines, const std::string& folder, RandomSource random, PlayerScreen* shown = nullptr)
        : player(
            { shown != nullptr ? *shown : screen, engines, inspections, store, power, NobodyElse(), std::move(random),
                [](const std::string&) { return true; }, [] {}, folder, '/', {}, [this] { askForDrives(); } })
    {
        inspections.player = &player;
    }

    std::function<void()> askForDrives = [] {};
    StillScreen screen;
    InstantInspections inspections;
    MemoryStore store;
    CountingPower power;
    Player player;

private:
    static HandOverService NobodyElse()
    {
        return { [] {
                    return Result<std::unique_ptr<platform::HandOverEnds>>(Error{ 0, "" });
                },
            [](const std::string&) { return false; }, [](const std::string&, const std::string&) { return false; },
            [] { return std::unique_ptr<platform::HandOverLock>(); } };
    }
};

} // namespace zentaro
