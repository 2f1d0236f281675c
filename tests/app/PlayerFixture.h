#pragma once

#include "app/ClassicHandlers.h"
#include "platform/Files.h"
#include "tests/live/StillWorld.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace zentaro {

namespace fs = std::filesystem;

/// Remembers what it was asked to show.
class FakeScreen : public StillScreen {
public:
    bool IsMaximized() const override { return maximized; }
    double WindowLeft() const override { return left; }
    void ShowWindow() override { log << "show "; }
    void SetWindowSize(int width, int height) override { log << "size " << width << "x" << height << " "; }
    void SetWindowPosition(int x, int y) override { log << "at " << x << "," << y << " "; }
    void SetTopmost(bool topmost) override { isTopmost = topmost; }
    void SetFullScreen(bool fullScreen) override { isFullScreen = fullScreen; }
    bool IsFullScreen() const override { return isFullScreen; }
    void ShowCaption(const std::string& text) override { caption = text; }
    void FlashCaption() override { log << "flash "; }
    void SetPlaylistPosition(PlaylistDock position) override { dock = position; }
    bool IsPlaylistVisible() const override { return dock != PlaylistDock::Hidden; }
    void ShowPosition(const PositionTick& tick, double) override { timeText = tick.timeText; }
    void ShowTimeText(const std::string& text) override { timeText = text; }
    void ShowRate(const std::string& text) override { rateText = text; }
    void ShowNotice(const Notice& notice) override { boxes.push_back(notice.title + ": " + notice.text); }
    void ShowNote(const std::string& text) override { note = text; }
    void ShowPictureNote(const std::string& text, const std::string& file) override { note = text + "|" + file; }
    void ShowOptions() override { log << "options " << isTopmost << " "; }
    void ShowAbout() override { log << "about " << isTopmost << " "; }
    void ShowHelp() override { log << "help "; }
    void SetTrayShown(bool shown) override { hasTrayIcon = shown; }
    void PopupMenu(const std::string& menu) override { log << "menu " << menu << " "; }
    void PumpMessages(int times) override { log << "pump " << times << " "; }
    void PumpFor(std::chrono::milliseconds time) override
    {
        log << "for " << time.count() << " ";
        if (auto meanwhile = std::exchange(whilePumping, {}))
            meanwhile();
    }
    void PumpUntil(const std::function<bool()>& done) override
    {
        while (!done() && answer())
            ;
        EXPECT_TRUE(done());
    }

    std::function<bool()> answer; ///< lets one inspection end; false when none is at work
    std::function<void()> whilePumping;
    PlaylistDock dock = PlaylistDock::Hidden;
    std::string timeText;
    std::string rateText;
    std::vector<std::string> boxes;
    std::string note;
    std::ostringstream log;
    std::string caption;
    double left = 30;
    bool maximized = false;
    bool isTopmost = false;
    bool isFullScreen = false;
    bool hasTrayIcon = false;
};

struct EngineTrace {
    int alive = 0;
    int mostAlive = 0;
    std::vector<std::string> played; ///< a location in brackets
    int plays = 0;
    std::vector<DiscKey> keys;
    int title = 0;
    EngineOptions options;
    int volume = -1;
    bool muted = false;
    double rateSet = 0;
    int stops = 0;
    int state = Engine::kPlaying;
    double time = 0;
    double length = 0;
    bool hasVideo = true;
};

class FakeEngine : public Engine {
public:
    explicit FakeEngine(EngineTrace& trace)
        : m_trace(trace)
    {
        m_trace.mostAlive = std::max(m_trace.mostAlive, ++m_trace.alive);
    }
    ~FakeEngine() override { --m_trace.alive; }
    void SetVolume(int percent) override { m_trace.volume = percent; }
    void SetMute(bool muted) override { m_trace.muted = muted; }
    double Length() override { return m_trace.length; }
    double Time() override { return m_trace.time; }
    double Position() override { return m_trace.length > 0 ? m_trace.time / m_trace.length : 0; }
    void SetPosition(double position) override { m_trace.time = position * m_trace.length; }
    int State() override { return m_trace.state; }
    double Rate() override { return 1; }
    void SetRate(double rate) override { m_trace.rateSet = rate; }
    bool HasVideoOutput() override { return m_trace.hasVideo; }
    bool TakeSnapshot(const std::string& file) override
    {
        std::ofstream(file) << "picture";
        return true;
    }
    void Add(const MediaLocation& location, const EngineOptions& options) override
    {
        m_trace.played.push_back(location.isLocation ? "<" + location.text + ">" : location.text);
        m_trace.options = options;
    }
    void Play() override
    {
        ++m_trace.plays;
        m_trace.state = m_trace.state == kPaused ? kPlaying : m_trace.state;
    }
    void Navigate(DiscKey key) override { m_trace.keys.push_back(key); }
    std::vector<DiscPart> Titles() override { return {}; }
    int Title() override { return m_trace.title; }
    void SetTitle(int) override { }
    std::vector<DiscPart> Chapters() override { return {}; }
    int Chapter() override { return -1; }
    void SetChapter(int) override { }
    void TogglePause() override
    {
        m_trace.state = m_trace.state == Engine::kPaused ? Engine::kPlaying : Engine::kPaused;
    }
    void Stop() override { ++m_trace.stops; }
    int ItemCount() override { return 1; }

private:
    EngineTrace& m_trace;
};

class FakeEngines : public EngineFactory {
public:
    std::unique_ptr<Engine> Create() override { return std::make_unique<FakeEngine>(trace); }
    EngineTrace trace;
};

/// Answers one inspection for each pump; a path with "broken" in it fails.
class FakeInspections : public InspectionRunner {
public:
    void Start(int ticket, const std::string& path) override { waiting.push_back({ ticket, path }); }
    void Cancel(int ticket) override
    {
        std::erase_if(waiting, [&](const auto& job) { return job.first == ticket; });
    }
    bool AnswerOne(Player& player)
    {
        if (waiting.empty())
            return false;
        const auto [ticket, path] = waiting.front();
        waiting.erase(waiting.begin());
        Inspection inspection;
        inspection.ok = path.find("broken") == std::string::npos;
        inspection.errorText = inspection.ok ? "" : "No good.";
        inspection.mediaInfo = "Stream information of " + path;
        player.InspectionCompleted(ticket, inspection);
        return true;
    }
    std::vector<std::pair<int, std::string>> waiting;
};

class FakeAssociations : public platform::AssociationShell {
public:
    bool Refresh() override { return true; }
    std::optional<platform::LiveOwner> CurrentOwner(const std::string&) override
    {
        return platform::LiveOwner{ false, "other.desktop", "" };
    }
    void AssociationsChanged() override { }
    bool BringInLine(const std::vector<platform::AssociatedType>& types) override
    {
        ours =
            static_cast<int>(std::count_if(types.begin(), types.end(), [](const auto& type) { return type.isOurs; }));
        return true;
    }
    int ours = -1;
};

class FakeEnds : public platform::HandOverEnds {
public:
    std::string CommandHandle() const override { return "4711"; }
    std::string ProbeHandle() const override { return "4712"; }
    void Deliver(std::function<void(std::string, platform::HandOverDone)>) override { }
};

/// A player in a folder of its own, in a world of fakes.
class PlayerTest : public testing::Test {
protected:
    PlayerTest()
    {
        folder = fs::temp_directory_path()
            / ("zentaro-player-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    ~PlayerTest() override { fs::remove_all(folder); }

    std::string ConfigPath() const { return (folder / "Config.cfg").string(); }
    std::optional<std::string> ConfigText() const { return platform::ReadTextFile(ConfigPath(), 100'000); }
    void WriteConfig(const std::string& text) const { std::ofstream(ConfigPath(), std::ios::binary) << text; }

    Player& Start(const std::string& commandLine = {})
    {
        HandOverService handOver{
            [] { return Result<std::unique_ptr<platform::HandOverEnds>>(std::make_unique<FakeEnds>()); },
            [this](const std::string& handle) { return handle == "4712" && otherPlayerLives; },
            [this](const std::string& handle, const std::string& text) {
                sent.push_back(handle + ":" + text);
                otherPlayerLives = sendSucceeds;
                return sendSucceeds;
            },
            [] { return std::unique_ptr<platform::HandOverLock>(); },
        };
        screen.answer = [this] { return inspections.AnswerOne(*player); };
        player = std::make_unique<Player>(PlayerWorld{ screen, engines, inspections, store, power, handOver,
            [] { return 0.0; }, [](const std::string& path) { return path != "/clips/missing.avi"; },
            [this] { ended = true; }, folder.string() + "/", '/',
            { &associations, "zentaro", "/program/", {}, [this](std::function<void()> work) { later = work; } },
            [this] { ++driveQuestions; }, [] { return Picture(); }, [this](bool held) { sleepHeldOff = held; } });
        isPlayer = player->Load(commandLine);
        return *player;
    }

    /// A player in the given modes with the entries /a.avi, /b.avi, ...
    Player& StartWithEntries(int count, std::int32_t playMode, std::int32_t repeatMode)
    {
        auto settings = DefaultSettings("/", {});
        settings.PlayMode = playMode;
        settings.RepeatMode = repeatMode;
        WriteConfig(FormatConfigurations(settings));
        Start();
        for (int i = 0; i < count; ++i)
            player->LoadThumb("", std::string("/") + static_cast<char>('a' + i) + ".avi", false, i == 0);
        return *player;
    }
    /// The engine reports that the item has been played to its end.
    void EndItem()
    {
        engines.trace.state = Engine::kEnded;
        engines.trace.time = engines.trace.length = 2000;
        player->OnPositionTick();
        engines.trace.state = Engine::kPlaying;
    }
    /// The drives answer, after a tick that lets the watcher see to them.
    void TickAndFind(const std::vector<platform::OpticalDrive>& drives)
    {
        player->OnPositionTick();
        player->DrivesFound(drives);
    }
    bool IsEnabled(const char* key) { return player->SmartMenuXP1().Find(key)->enabled; }
    /// Which of a group's items are checked.
    std::string Checked(std::span<const std::string_view> keys)
    {
        std::string checked;
        for (const auto key : keys)
            checked += player->SmartMenuXP1().Find(key)->checked ? std::string(key) + " " : "";
        return checked;
    }
    const std::string& LastPlayed() const { return engines.trace.played.back(); }

    fs::path folder;
    FakeScreen screen;
    FakeEngines engines;
    FakeInspections inspections;
    MemoryStore store;
    CountingPower power;
    FakeAssociations associations;
    std::function<void()> later;
    std::unique_ptr<Player> player;
    std::vector<std::string> sent;
    bool sleepHeldOff = false;
    bool otherPlayerLives = false;
    bool sendSucceeds = true;
    int driveQuestions = 0;
    bool isPlayer = false;
    bool ended = false;
};

} // namespace zentaro
