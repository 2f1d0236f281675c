#include "app/ClassicHandlers.h"
#include "app/MediaRemote.h"
#include "platform/MprisRules.h"
#include "platform/TextFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

using namespace zentaro;
namespace fs = std::filesystem;

namespace {

class FakeScreen : public PlayerScreen {
public:
    ScreenExtent Extent() const override { return { 1280 * 15, 800 * 15 }; }
    bool IsMaximized() const override { return maximized; }
    double WindowLeft() const override { return left; }
    double WindowTop() const override { return 45; }
    void ShowWindow() override { log << "show "; }
    void SetWindowSize(int width, int height) override { log << "size " << width << "x" << height << " "; }
    void SetWindowPosition(int x, int y) override { log << "at " << x << "," << y << " "; }
    void SetTopmost(bool topmost) override { isTopmost = topmost; }
    void SetFullScreen(bool fullScreen) override { isFullScreen = fullScreen; }
    bool IsFullScreen() const override { return isFullScreen; }
    void ShowCaption(const std::string& text) override { caption = text; }
    void FlashCaption() override { log << "flash "; }
    void CloseWindow() override { isClosed = true; }
    void ShowIdle() override { }
    void SetPlaylistPosition(PlaylistDock position) override { dock = position; }
    bool IsPlaylistVisible() const override { return dock != PlaylistDock::Hidden; }
    void ShowAddProgress(const AddProgress&) override { }
    void ShowPosition(const PositionTick& tick, double) override { timeText = tick.timeText; }
    void ShowTimeText(const std::string& text) override { timeText = text; }
    void ShowRate(const std::string& text) override { rateText = text; }
    void StateChanged() override { }
    void FocusVideo() override { }
    void ShowNotice(const Notice& notice) override { boxes.push_back(notice.title + ": " + notice.text); }
    void ShowNote(const std::string& text) override { note = text; }
    void ShowPictureNote(const std::string& text, const std::string& file) override { note = text + "|" + file; }
    std::vector<std::string> AskForFiles(const std::string&, const std::string&) override { return chosen; }
    void ShowOptions() override { log << "options " << isTopmost << " "; }
    void ShowAbout() override { log << "about " << isTopmost << " "; }
    void ShowHelp() override { log << "help "; }
    void SetTrayShown(bool shown) override { hasTrayIcon = shown; }
    void PopupMenu(const std::string& menu) override { log << "menu " << menu << " "; }
    std::string AskForSubtitles() override { return {}; }
    void PumpMessages(int times) override { log << "pump " << times << " "; }
    void PumpFor(std::chrono::milliseconds time) override
    {
        log << "for " << time.count() << " ";
        if (auto meanwhile = std::exchange(whilePumping, {}))
            meanwhile();
    }
    void PumpUntil(const std::function<bool()>& done) override
    {
        while (!done() && pump())
            ;
        EXPECT_TRUE(done());
    }

    std::function<bool()> pump;
    std::function<void()> whilePumping;
    PlaylistDock dock = PlaylistDock::Hidden;
    std::string timeText;
    std::string rateText;
    std::vector<std::string> boxes;
    std::string note;
    std::vector<std::string> chosen;
    std::ostringstream log;
    std::string caption;
    double left = 30;
    bool maximized = false;
    bool isTopmost = false;
    bool isFullScreen = false;
    bool hasTrayIcon = false;
    bool isClosed = false;
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

class FakeStore : public platform::StringStore {
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
    std::map<std::string, std::string> values;
};

class FakePower : public platform::Power {
public:
    void EnableShutdownPrivilege() override { }
    Result<void> Restart() override
    {
        requests += "restart ";
        return {};
    }
    Result<void> PowerOff() override
    {
        requests += "off ";
        return {};
    }
    std::string requests;
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
    void Deliver(std::function<void(std::string)>) override { }
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
        screen.pump = [this] { return inspections.AnswerOne(*player); };
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
    FakeStore store;
    FakePower power;
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

/// A player with the desktop's media controls on it.
class MediaRemoteTest : public PlayerTest {
protected:
    using Kind = platform::MediaCommand::Kind;
    using Playback = platform::MediaPlayback;

    platform::MediaStatus Do(const platform::MediaCommand& command)
    {
        remote->Do(command);
        return remote->Status();
    }
    void StartRemote(int count)
    {
        StartWithEntries(count, kPlayContinuous, kRepeatAll);
        remote.emplace(*player,
            MediaRemote::Window{ [] {}, [] {}, [this] { return screen.isFullScreen; },
                [](std::uint64_t, const Picture&) { return std::string(); } });
        engines.trace.length = 60'000;
        engines.trace.time = 10'000;
    }
    std::size_t Starts() const { return engines.trace.played.size(); }

    std::optional<MediaRemote> remote;
};

constexpr const char* kCommandKey = "Software\\Quorvane Zentaro\\Setting:txtHwnd";
constexpr const char* kProbeKey = "Software\\Quorvane Zentaro\\Setting:txtHwnd1";

} // namespace

TEST_F(MediaRemoteTest, play_and_pause_say_what_is_wanted_and_never_toggle)
{
    StartRemote(2);
    EXPECT_EQ(Do({ .kind = Kind::Play }).playback, Playback::Playing);
    EXPECT_EQ(Do({ .kind = Kind::Pause }).playback, Playback::Paused);
    EXPECT_EQ(Do({ .kind = Kind::Pause }).playback, Playback::Paused);
    EXPECT_EQ(Do({ .kind = Kind::Play }).playback, Playback::Playing);
    EXPECT_EQ(Do({ .kind = Kind::PlayPause }).playback, Playback::Paused);
    EXPECT_EQ(Do({ .kind = Kind::PlayPause }).playback, Playback::Playing);
    EXPECT_EQ(Starts(), 1U); // went on, and did not begin again
    EXPECT_TRUE(Do({ .kind = Kind::SetFullScreen, .flag = true }).fullScreen);
    EXPECT_FALSE(Do({ .kind = Kind::SetFullScreen, .flag = false }).fullScreen);
    EXPECT_EQ(Do({ .kind = Kind::Stop }).playback, Playback::Stopped);
    EXPECT_FALSE(Do({ .kind = Kind::SetFullScreen, .flag = true }).fullScreen);
    EXPECT_EQ(remote->Status().track.id, 0U);
    Do({ .kind = Kind::Pause });
    Do({ .kind = Kind::Stop });
    EXPECT_EQ(engines.trace.stops, 1);
    EXPECT_EQ(Do({ .kind = Kind::PlayPause }).playback, Playback::Playing);
    EXPECT_EQ(Starts(), 2U);
}

TEST_F(MediaRemoteTest, without_an_entry_play_asks_nobody_for_files)
{
    screen.chosen = { "/asked.avi" };
    StartRemote(0);
    for (const auto kind : { Kind::Play, Kind::PlayPause, Kind::Next, Kind::Stop })
        EXPECT_EQ(Do({ .kind = kind }).playback, Playback::Stopped);
    EXPECT_EQ(player->Entries().Count(), 0);
    EXPECT_FALSE(platform::CanPlay(remote->Status()));
}

TEST_F(MediaRemoteTest, seeking_stays_in_the_item_or_goes_on_to_the_next)
{
    StartRemote(2);
    const auto track = remote->Status().track.id;
    EXPECT_EQ(Do({ .kind = Kind::SeekBy, .number = -15'000 }).position, 0);
    EXPECT_EQ(Do({ .kind = Kind::SetPosition, .number = 30'000, .track = track }).position, 30'000);
    Do({ .kind = Kind::SetPosition, .number = 40'000, .track = track + 1 }); // of an item that is gone
    Do({ .kind = Kind::SetPosition, .number = 60'001, .track = track });
    Do({ .kind = Kind::SetPosition, .number = -1, .track = track });
    EXPECT_EQ(remote->Status().position, 30'000);
    EXPECT_EQ(Do({ .kind = Kind::SeekBy, .number = 30'001 }).track.path, "/b.avi");
}

TEST_F(MediaRemoteTest, modes_rate_and_volume_follow_and_unwanted_numbers_become_the_nearest)
{
    StartRemote(2);
    EXPECT_EQ(Do({ .kind = Kind::SetLoop, .loop = platform::MediaLoop::Track }).loop, platform::MediaLoop::Track);
    EXPECT_EQ(player->Settings().RepeatMode, kRepeatSingle);
    player->PBNormal();
    remote->Status();
    EXPECT_TRUE(Do({ .kind = Kind::SetShuffle, .flag = true }).shuffle);
    EXPECT_FALSE(Do({ .kind = Kind::SetShuffle, .flag = false }).shuffle);
    EXPECT_EQ(player->Settings().PlayMode, kPlayNormal);
    for (const auto& [wanted, got] : { std::pair(1.9, 2.0), { 100, 16 }, { 0.01, 0.125 }, { -1, 0.125 } }) {
        Do({ .kind = Kind::SetRate, .number = wanted });
        EXPECT_EQ(player->Rate().Value(), got);
    }
    EXPECT_EQ(Do({ .kind = Kind::SetRate, .number = 0 }).playback, Playback::Paused);
    EXPECT_EQ(Do({ .kind = Kind::SetVolume, .number = 0.5 }).volume, 0.5);
    EXPECT_EQ(Do({ .kind = Kind::SetVolume, .number = 7 }).volume, 1);
    EXPECT_EQ(Do({ .kind = Kind::SetVolume, .number = -7 }).volume, 0);
}

TEST_F(MediaRemoteTest, tracks_keep_their_numbers_and_an_item_taken_off_the_list_plays_on)
{
    StartRemote(3);
    const auto tracks = *remote->Status().tracks;
    EXPECT_EQ(Do({ .kind = Kind::GoToTrack, .track = tracks[2].id }).track, tracks[2]);
    EXPECT_EQ(*Do({ .kind = Kind::RemoveTrack, .track = tracks[0].id }).tracks, (std::vector{ tracks[1], tracks[2] }));
    EXPECT_EQ(player->Entries().List().SelectedText(), tracks[2].title);
    EXPECT_EQ(Do({ .kind = Kind::RemoveTrack, .track = tracks[2].id }).track, tracks[2]);
    Do({ .kind = Kind::GoToTrack, .track = tracks[2].id });
    EXPECT_EQ(remote->Status().playback, Playback::Playing);
    EXPECT_EQ(Starts(), 2U);
    // A track that was chosen goes before a disc that was loaded.
    player->DrivesFound({ { "/dev/sr0", "MOVIE", true, {} } });
    player->dvdsList_Click(0);
    player->LoadThumb("", "/d.avi", false, false);
    EXPECT_EQ(Do({ .kind = Kind::GoToTrack, .track = remote->Status().tracks->back().id }).track.path, "/d.avi");
}

TEST_F(PlayerTest, sleep_is_held_off_while_a_video_plays_and_the_settings_want_it)
{
    auto& started = StartWithEntries(1, kPlayContinuous, kRepeatAll);
    const auto isHeldOff = [&] {
        started.OnPositionTick();
        return sleepHeldOff;
    };
    EXPECT_TRUE(isHeldOff());
    started.CMDPauseClick();
    EXPECT_FALSE(isHeldOff());
    started.CMDPauseClick();
    EXPECT_TRUE(isHeldOff());
    started.cmdStopClick();
    EXPECT_FALSE(sleepHeldOff);
    EXPECT_FALSE(isHeldOff());
    started.CMDPlayClick();
    EXPECT_TRUE(isHeldOff());
    engines.trace.hasVideo = false;
    EXPECT_FALSE(isHeldOff());
    engines.trace.hasVideo = true;
    EXPECT_TRUE(isHeldOff());
    started.Unload();
    EXPECT_FALSE(sleepHeldOff);

    auto settings = DefaultSettings("/", {});
    settings.DisableScreenSaver = 0;
    WriteConfig(FormatConfigurations(settings));
    Start().LoadThumb("", "/a.avi", false, true);
    player->OnPositionTick();
    EXPECT_FALSE(sleepHeldOff);
}

TEST_F(PlayerTest, the_first_start_publishes_its_handles_and_makes_the_settings_file)
{
    Start();
    EXPECT_TRUE(isPlayer);
    EXPECT_EQ(store.values[kCommandKey], "4711");
    EXPECT_EQ(store.values[kProbeKey], "4712");
    EXPECT_EQ(ConfigText(), FormatConfigurations(player->Settings()));
    EXPECT_TRUE(engines.trace.played.empty());
}

TEST_F(PlayerTest, types_are_taken_once_the_start_is_over_or_when_it_ends)
{
    auto settings = DefaultSettings("/", {});
    settings.Associations[20] = -1;
    WriteConfig(FormatConfigurations(settings));
    Start("/clips/a.avi");
    EXPECT_EQ(associations.ours, -1);
    later();
    EXPECT_EQ(associations.ours, 1);
    EXPECT_EQ(store.values[".avi:"] + store.values[".avi:OldAss"], "Zentaro.aviother.desktop");
    const auto choices = player->AssociationChoices();
    ASSERT_EQ(choices.size(), 24U);
    EXPECT_EQ(choices[4].listText, "Mp3 Format Sound(*.mp3)");
    associations.ours = -1;
    player->Unload();
    EXPECT_EQ(associations.ours, -1);

    Start("/clips/a.avi");
    player->Unload();
    EXPECT_EQ(associations.ours, 1);
    associations.ours = -1;
    later();
    EXPECT_EQ(associations.ours, -1);

    const auto before = store.values;
    otherPlayerLives = true;
    later = nullptr;
    Start("/clips/a.avi");
    EXPECT_FALSE(later);
    EXPECT_EQ(store.values, before);
}

TEST_F(PlayerTest, a_messenger_shows_and_publishes_nothing)
{
    store.values = { { kCommandKey, "1" }, { kProbeKey, "4712" } };
    otherPlayerLives = true;
    Start("/clips/a.avi *Add");
    EXPECT_FALSE(isPlayer);
    EXPECT_EQ(sent, std::vector<std::string>{ "1:/clips/a.avi *Add" });
    EXPECT_EQ(store.values[kCommandKey], "1");
    EXPECT_EQ(screen.log.str().find("show"), std::string::npos);
    EXPECT_EQ(engines.trace.mostAlive, 0);
}

TEST_F(PlayerTest, a_call_that_nobody_answers_makes_a_player)
{
    store.values = { { kCommandKey, "1" }, { kProbeKey, "4712" } };
    otherPlayerLives = true;
    sendSucceeds = false;
    Start();
    EXPECT_TRUE(isPlayer);
    EXPECT_EQ(sent, std::vector<std::string>{ "4712:Hello" });
    EXPECT_EQ(store.values[kCommandKey], "4711");
}

TEST_F(PlayerTest, the_files_of_starts_play_in_fresh_engines_one_at_a_time)
{
    auto settings = DefaultSettings("/", {});
    settings.LaunchFullScreen = -1;
    WriteConfig(FormatConfigurations(settings));
    Start("/clips/a b.avi");
    EXPECT_EQ(screen.caption, "Zentaro - (/clips/a b.avi)");
    EXPECT_TRUE(screen.isFullScreen);
    EXPECT_EQ(engines.trace.options[2], "snapshot-path=C:\\\\a b.avi Images");
    player->Host().SetVolume(40);
    player->Host().ToggleMute();
    player->ReceiveText("");
    player->ReceiveText("/clips/no media.txt");
    EXPECT_EQ(engines.trace.played, (std::vector<std::string>{ "/clips/a b.avi", "/clips/no media.txt" }));
    EXPECT_EQ(engines.trace.mostAlive, 1);
    EXPECT_EQ(engines.trace.volume, 40);
    EXPECT_TRUE(engines.trace.muted);
    EXPECT_EQ(engines.trace.rateSet, 0); // a fresh engine runs at 1.0 by itself
    EXPECT_TRUE(screen.isFullScreen);    // it survives the change of the item
    EXPECT_NE(screen.log.str().find("flash pump 6"), std::string::npos);
    player->PlayItem(static_cast<std::int16_t>(player->Entries().Count()), false);
    player->PlayItem(-1, false);
    EXPECT_EQ(engines.trace.played.size(), 2u);
}

TEST_F(PlayerTest, a_start_that_adds_plays_nothing_and_later_files_are_added_too)
{
    Start("/clips/a.avi *Add");
    EXPECT_EQ(player->Entries().Count(), 1);
    EXPECT_EQ(player->Entries().PathAt(0), "/clips/a.avi");
    player->ReceiveText("/clips/b.avi");
    EXPECT_EQ(player->Entries().Count(), 2);
    EXPECT_TRUE(engines.trace.played.empty());
}

TEST_F(PlayerTest, a_damaged_file_is_replaced_and_one_without_a_default_folder_is_not)
{
    WriteConfig("English\r\n/home\r\n 1 \r\n");
    Start();
    EXPECT_EQ(ConfigText(), FormatConfigurations(player->Settings()));

    auto settings = DefaultSettings("  ", {});
    WriteConfig(FormatConfigurations(settings));
    Start();
    EXPECT_NE(player->Settings().DefaultFolder, "  ");
    EXPECT_FALSE(player->Settings().DefaultFolder.empty());
    EXPECT_EQ(ConfigText(), FormatConfigurations(settings));
}

TEST_F(PlayerTest, the_window_comes_back_as_it_was_remembered)
{
    auto settings = DefaultSettings("/", {});
    settings.RememberLastPos = settings.RememberLastSize = settings.AlwaysOnTop = 1;
    settings.WindowLeft = -1200;
    settings.WindowWidth = 800;
    WriteConfig(FormatConfigurations(settings));
    Start();
    EXPECT_TRUE(screen.log.str().starts_with("size 800x515 at -1200,")) << screen.log.str();
    EXPECT_TRUE(screen.isTopmost);
}

TEST_F(PlayerTest, the_end_saves_where_the_window_is_unless_it_is_maximised)
{
    Start();
    screen.left = -1200.5;
    player->WindowResized(640, 480);
    player->Unload();
    EXPECT_TRUE(ended);
    auto saved = *ParseConfigurations(*ConfigText());
    EXPECT_EQ(saved.WindowLeft, -1200);
    EXPECT_EQ(saved.WindowWidth, 640);

    screen.maximized = true;
    screen.left = 0;
    player->WindowResized(1280, 800);
    player->Unload();
    saved = *ParseConfigurations(*ConfigText());
    EXPECT_EQ(saved.WindowLeft, -1200);
    EXPECT_EQ(saved.WindowWidth, 640);
}

TEST_F(PlayerTest, a_file_that_is_gone_or_read_only_at_the_end_stays_so)
{
    Start();
    const auto before = ConfigText();
    screen.left = 999;
    fs::permissions(ConfigPath(), fs::perms::owner_read);
    EXPECT_FALSE(player->WriteConfigurations());
    EXPECT_EQ(ConfigText(), before);
    fs::permissions(ConfigPath(), fs::perms::owner_all);
    fs::remove(ConfigPath());
    EXPECT_FALSE(player->WriteConfigurations());
    EXPECT_FALSE(fs::exists(ConfigPath()));
}

TEST_F(PlayerTest, files_that_cannot_be_opened_or_are_there_already_are_told_in_boxes)
{
    auto& loaded = StartWithEntries(2, kPlayContinuous, kRepeatAll);
    EXPECT_EQ(loaded.Inspected().StreamInfoText, "Stream information of /b.avi");
    loaded.LoadThumb("broken.avi", "/broken.avi", false, true);
    EXPECT_EQ(loaded.Inspected().LastSourceError, "No good.");
    EXPECT_EQ(loaded.Entries().Count(), 2);
    loaded.LoadThumb("a.avi", "/a.avi", false, true);
    EXPECT_EQ(screen.boxes,
        (std::vector<std::string>{ "Zentaro: Cannot open file </broken.avi>\r\nNo good.",
            "Media Player: \"a.avi\" is already in your playlist" }));
    // The last entry plays, not the one that was there.
    EXPECT_EQ(LastPlayed(), "/b.avi");
}

TEST_F(PlayerTest, continuous_play_goes_round_and_normal_play_stops)
{
    auto& loaded = StartWithEntries(2, kPlayContinuous, kRepeatAll);
    EndItem();
    EXPECT_EQ(LastPlayed(), "/b.avi");
    EndItem();
    EXPECT_EQ(LastPlayed(), "/a.avi");
    loaded.SetRepeatMode(kRepeatSingle);
    EndItem();
    EXPECT_EQ(LastPlayed(), "/a.avi");
    EXPECT_EQ(engines.trace.played.size(), 4u);
    loaded.PBNormal();
    loaded.SetRepeatMode(kRepeatAll);
    EndItem();
    EXPECT_EQ(engines.trace.played.size(), 4u);
    EXPECT_FALSE(loaded.MediaControlsEnabled());
    loaded.OnPositionTick();
    EXPECT_EQ(screen.timeText, "00:00:00 / 00:00:00");
    loaded.cmdNextClick();
    EXPECT_EQ(engines.trace.played.size(), 4u); // nothing is loaded
}

TEST_F(PlayerTest, an_order_that_names_a_removed_entry_plays_nothing)
{
    auto& loaded = StartWithEntries(3, kPlayContinuous, kRepeatAll);
    loaded.RemoveSelected(); // the order is now "1", "2" for two entries
    EndItem();
    EXPECT_EQ(engines.trace.played.size(), 1u);
    EXPECT_FALSE(loaded.MediaControlsEnabled());
}

TEST_F(PlayerTest, a_round_in_which_nothing_plays_stops_with_a_note)
{
    auto& loaded = StartWithEntries(3, kPlayContinuous, kRepeatAll);
    engines.trace.state = Engine::kFailed;
    for (int tick = 0; tick < 10; ++tick)
        loaded.OnPositionTick();
    EXPECT_EQ(engines.trace.played.size(), 3u);
    EXPECT_FALSE(loaded.MediaControlsEnabled());
    EXPECT_FALSE(screen.note.empty());
    EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(PlayerTest, a_double_click_plays_and_hides_the_list_and_the_button_brings_it_back)
{
    auto& loaded = StartWithEntries(2, kPlayContinuous, kRepeatAll);
    loaded.Entries().List().SetSelectedItem(1);
    loaded.ListDoubleClicked();
    EXPECT_EQ(LastPlayed(), "/b.avi");
    EXPECT_EQ(screen.dock, PlaylistDock::Hidden);
    EXPECT_EQ(loaded.Settings().PlaylistPosition, 0);
    loaded.cmdPlayListClick();
    EXPECT_EQ(screen.dock, PlaylistDock::Left);
}

TEST_F(PlayerTest, chosen_files_are_added_and_only_the_first_plays)
{
    Start();
    screen.chosen = { std::string("/clips\0c.avi\0d.avi", 18), "/more/e.avi" };
    player->CMDPlayClick(); // an empty list asks for files
    while (inspections.AnswerOne(*player))
        ;
    EXPECT_EQ(player->Entries().Count(), 3);
    EXPECT_EQ(player->Entries().EntryAt(2)->Title, "e.avi");
    EXPECT_EQ(engines.trace.played, std::vector<std::string>{ "/clips/c.avi" });
}

TEST_F(PlayerTest, the_after_play_action_runs_at_the_end_of_the_sequence_only)
{
    auto& loaded = StartWithEntries(2, kPlayContinuous, kNoRepeat);
    loaded.DoAfter(2);
    EndItem();
    EXPECT_EQ(power.requests, "");
    EndItem();
    EXPECT_EQ(power.requests, "off ");
    EXPECT_EQ(engines.trace.played.size(), 2u);
    loaded.SetRepeatMode(kRepeatAll);
    loaded.CMDPlayClick();
    EndItem();
    EndItem();
    EXPECT_EQ(power.requests, "off ");
}

TEST_F(PlayerTest, what_is_held_ends_with_the_item_and_the_rate_starts_anew)
{
    auto& loaded = StartWithEntries(2, kPlayContinuous, kRepeatAll);
    loaded.IncreaseRate();
    EXPECT_EQ(engines.trace.rateSet, 2);
    loaded.cmdffMouseDown();
    EXPECT_EQ(engines.trace.rateSet, 10);
    loaded.RewindPressed();
    loaded.cmdStopClick();
    EXPECT_EQ(engines.trace.rateSet, 1);
    EXPECT_FALSE(loaded.IsRewinding());
    EXPECT_EQ(screen.rateText, "Playing rate:1x");
    loaded.CMDPlayClick();
    EXPECT_EQ(loaded.Rate().Value(), 1);
    EXPECT_EQ(screen.rateText, "Loading...");
}

TEST_F(PlayerTest, closing_while_files_are_added_ends_the_waiting)
{
    StartWithEntries(1, kPlayContinuous, kRepeatAll);
    screen.pump = [this] {
        player->Unload();
        return true;
    };
    player->LoadThumb("late.avi", "/late.avi", false, true);
    EXPECT_TRUE(ended);
    EXPECT_EQ(player->Entries().Count(), 1);
    EXPECT_EQ(engines.trace.alive, 0);
}

namespace {

platform::OpticalDrive Disc(const std::string& name, const std::string& label)
{
    return { name, label, true, label };
}

} // namespace

TEST_F(PlayerTest, a_disc_replaces_the_list_and_plays_by_its_root_after_half_a_second)
{
    StartWithEntries(2, kPlayContinuous, kRepeatAll);
    player->DrivesFound({ Disc("/dev/sr0", "MOVIE") });
    EXPECT_EQ(LastPlayed(), "/a.avi"); // while something plays the answer only fills the menus
    screen.whilePumping = [&] {
        player->OnPositionTick();
        EXPECT_EQ(screen.timeText, "LOADING...");
        EXPECT_EQ(engines.trace.plays, 1);
    };
    player->dvdsList_Click(0);
    EXPECT_EQ(LastPlayed(), "<dvd:///dev/sr0>");
    EXPECT_EQ(engines.trace.plays, 2);
    EXPECT_NE(screen.log.str().find("for 500 "), std::string::npos);
    ASSERT_EQ(player->Entries().Count(), 1);
    const auto* const entry = player->Entries().EntryAt(0);
    EXPECT_EQ(
        entry->Title + "|" + entry->FullPath + "|" + entry->MediaInfo, "MOVIE (/dev/sr0)|dvd:///dev/sr0|Video DVD");
    EXPECT_EQ(player->Entries().List().SelectedItem(), 0);
    EXPECT_EQ(screen.caption, "Zentaro - (dvd:///dev/sr0)");
    EXPECT_TRUE(player->NavigateDisc(DiscKey::Down));
    engines.trace.title = 1; // no menu any more
    EXPECT_FALSE(player->NavigateDisc(DiscKey::Down));
    EXPECT_EQ(engines.trace.keys, std::vector{ DiscKey::Down });
}

TEST_F(PlayerTest, a_disc_ends_by_the_engines_word_alone_and_nothing_follows)
{
    StartWithEntries(1, kPlayNormal, kNoRepeat);
    player->DoAfter(1);
    player->DrivesFound({ Disc("/dev/sr0", "MOVIE") });
    player->dvdsList_Click(0);
    engines.trace.time = engines.trace.length = 4'800; // a menu waits
    player->OnPositionTick();
    EXPECT_TRUE(player->MediaControlsEnabled());
    EndItem();
    EXPECT_FALSE(player->MediaControlsEnabled());
    EXPECT_FALSE(player->NavigateDisc(DiscKey::Down));
    EXPECT_EQ(power.requests, "");
    const auto engineCount = engines.trace.played.size();
    player->CMDPlayClick(); // the same engine goes on with the disc
    EXPECT_EQ(engines.trace.played.size(), engineCount);
    EXPECT_TRUE(player->MediaControlsEnabled());
    // From the list it plays in an engine of its own, and is a disc all the same.
    player->PlayItem(0, false);
    EXPECT_EQ(LastPlayed(), "<dvd:///dev/sr0>");
    EXPECT_EQ(player->SmartMenuXP1().Find("History1")->caption, "MOVIE (/dev/sr0)");
    engines.trace.time = engines.trace.length = 4'800;
    player->OnPositionTick();
    EXPECT_TRUE(player->MediaControlsEnabled());
    player->LoadThumb("", "/b.avi", false, true);
    player->OnPositionTick();
    EXPECT_FALSE(player->MediaControlsEnabled());
    EXPECT_EQ(power.requests, "restart ");
}

TEST_F(PlayerTest, what_happens_while_a_disc_is_awaited_holds)
{
    StartWithEntries(1, kPlayNormal, kNoRepeat);
    player->DrivesFound({ Disc("/dev/sr0", "MOVIE"), Disc("/dev/sr1", "OTHER") });
    screen.whilePumping = [&] { player->cmdStopClick(); };
    player->dvdsList_Click(0);
    EXPECT_FALSE(player->MediaControlsEnabled());
    screen.whilePumping = [&] { player->LoadThumb("", "/b.avi", false, true); };
    player->dvdsList_Click(0);
    EXPECT_EQ(LastPlayed(), "/b.avi");
    screen.whilePumping = [&] { player->dvdsList_Click(1); };
    player->dvdsList_Click(0);
    EXPECT_EQ(LastPlayed(), "<dvd:///dev/sr1>");
    EXPECT_TRUE(player->MediaControlsEnabled());
    screen.whilePumping = [&] { player->RemoveAll(); };
    player->dvdsList_Click(0);
    screen.whilePumping = [&] { player->Unload(); };
    player->dvdsList_Click(0);
    EXPECT_FALSE(player->MediaControlsEnabled());
}

TEST_F(PlayerTest, a_disc_that_cannot_be_played_is_said_and_an_empty_drive_does_nothing)
{
    StartWithEntries(1, kPlayNormal, kNoRepeat);
    player->dvdsList_Click(0);
    player->DrivesFound({ { "/dev/sr0", {}, false, {} }, { "/dev/sr1", "DATA", false, {} } });
    player->dvdsList_Click(0);
    player->dvdsList_Click(7);
    EXPECT_EQ(player->Entries().Count(), 1);
    EXPECT_EQ(LastPlayed(), "/a.avi");
    player->dvdsList_Click(1);
    engines.trace.state = Engine::kFailed;
    player->OnPositionTick();
    EXPECT_EQ(screen.boxes, std::vector<std::string>{ "Zentaro: Please insert a valid DVD." });
    EXPECT_EQ(screen.timeText, "");
}

TEST_F(PlayerTest, the_watcher_starts_each_video_disc_once_while_nothing_plays)
{
    const auto movie = Disc("/dev/sr0", "MOVIE");
    Start();
    player->OnDVDTick();
    EXPECT_EQ(driveQuestions, 0);
    player->DrivesFound({ movie });
    EXPECT_TRUE(engines.trace.played.empty()); // not before the first tick
    player->OnPositionTick();
    player->OnDVDTick();
    EXPECT_EQ(driveQuestions, 1);
    player->DrivesFound({ { "/dev/sr0", "DATA", false, {} } });
    EXPECT_TRUE(engines.trace.played.empty());
    player->DrivesFound({ movie });
    EXPECT_EQ(LastPlayed(), "<dvd:///dev/sr0>");
    EXPECT_FALSE(player->IsWatchingDiscs());
    EXPECT_TRUE(IsEnabled("Remove") && IsEnabled("Next"));
    player->cmdStopClick();
    TickAndFind({ movie });
    EXPECT_TRUE(player->IsWatchingDiscs());
    EXPECT_EQ(engines.trace.played.size(), 1U); // stopped, and still in the drive
    TickAndFind({ { "/dev/sr0", {}, false, {} } });
    TickAndFind({ movie, Disc("/dev/sr1", "OTHER") });
    EXPECT_EQ(engines.trace.played.size(), 3U); // the second replaces the first
    EXPECT_EQ(LastPlayed(), "<dvd:///dev/sr1>");
}

TEST_F(PlayerTest, commands_by_key_move_playback_and_modes)
{
    auto& loaded = StartWithEntries(3, kPlayContinuous, kRepeatAll);
    EXPECT_EQ(Checked(kPlayModeKeys), "PMContinuous ");
    EXPECT_EQ(Checked(kRepeatModeKeys), "RMRepeatAll ");
    EXPECT_EQ(Checked(kAfterPlayKeys), "Donothing ");
    loaded.RunCommand("Next");
    EXPECT_EQ(LastPlayed(), "/b.avi");
    loaded.RunCommand("Previous");
    EXPECT_EQ(LastPlayed(), "/a.avi");
    loaded.RunCommand("PlayPause");
    EXPECT_EQ(engines.trace.state, Engine::kPaused);
    loaded.RunCommand("FullScreen");
    EXPECT_TRUE(screen.isFullScreen);
    for (const double rate : { 2, 4, 8, 16 }) {
        loaded.RunCommand("IncreaseSpeed");
        EXPECT_EQ(engines.trace.rateSet, rate);
    }
    EXPECT_FALSE(IsEnabled("IncreaseSpeed"));
    loaded.RunCommand("DecreaseSpeed");
    EXPECT_EQ(engines.trace.rateSet, 8);
    EXPECT_TRUE(IsEnabled("IncreaseSpeed"));
    loaded.RunCommand("ResetSpeed");
    EXPECT_EQ(engines.trace.rateSet, 1);
    for (const auto& [keys, value] : { std::pair(kPlayModeKeys, &PlayerSettings::PlayMode),
             std::pair(kRepeatModeKeys, &PlayerSettings::RepeatMode) }) {
        for (std::size_t i = keys.size(); i-- > 0;) {
            loaded.RunCommand(keys[i]);
            EXPECT_EQ(loaded.Settings().*value, static_cast<std::int32_t>(i));
            EXPECT_EQ(Checked(keys), std::string(keys[i]) + " ");
        }
    }
    for (std::size_t i = kAfterPlayKeys.size(); i-- > 0;) {
        loaded.RunCommand(kAfterPlayKeys[i]);
        EXPECT_EQ(loaded.AfterPlaying().AfterPlayAction(), static_cast<std::int16_t>(i));
        EXPECT_EQ(Checked(kAfterPlayKeys), std::string(kAfterPlayKeys[i]) + " ");
    }
    loaded.RunCommand("Stop");
    for (const auto* const key : { "Stop", "FullScreen", "IncreaseSpeed", "DecreaseSpeed", "ResetSpeed" })
        EXPECT_FALSE(IsEnabled(key)) << key;
    EXPECT_FALSE(screen.isClosed);
    loaded.RunCommand("Exit");
    EXPECT_TRUE(screen.isClosed);
}

TEST_F(PlayerTest, commands_on_the_list_come_and_go_with_its_entries)
{
    auto& loaded = StartWithEntries(2, kPlayNormal, kNoRepeat);
    loaded.RunCommand("Remove");
    EXPECT_TRUE(IsEnabled("RemoveAll"));
    loaded.Entries().List().SetSelectedItem(0);
    loaded.RunCommand("Remove");
    EXPECT_EQ(loaded.Entries().Count(), 0);
    EXPECT_TRUE(IsEnabled("Remove"));
    for (const auto* const key : { "RemoveAll", "Next", "Previous" })
        EXPECT_FALSE(IsEnabled(key)) << key;

    loaded.cmdStopClick();
    loaded.RunCommand("PlayPause"); // the dialog is cancelled
    EXPECT_TRUE(IsEnabled("Stop"));

    const auto played = engines.trace.played.size();
    screen.chosen = { std::string("/clips\0c.avi\0d.avi", 18) };
    loaded.Entries().List().Clear();
    loaded.RunCommand("AddVideoFile");
    EXPECT_FALSE(IsEnabled("Next"));
    while (inspections.AnswerOne(loaded))
        ;
    EXPECT_EQ(loaded.Entries().List().SelectedItem(), 0);
    EXPECT_EQ(engines.trace.played.size(), played);
    for (const auto* const key : { "Remove", "RemoveAll", "Next", "Previous" })
        EXPECT_TRUE(IsEnabled(key)) << key;
    loaded.RunCommand("RemoveAll");
    EXPECT_EQ(loaded.Entries().Count(), 0);
    EXPECT_FALSE(IsEnabled("RemoveAll"));

    loaded.RunCommand("OpenFile");
    while (inspections.AnswerOne(loaded))
        ;
    EXPECT_EQ(LastPlayed(), "/clips/c.avi");
}

TEST_F(PlayerTest, dialogs_are_never_under_a_window_that_stays_on_top)
{
    auto settings = DefaultSettings("/", {});
    settings.AlwaysOnTop = settings.ShowInTray = -1;
    WriteConfig(FormatConfigurations(settings));
    Start();
    EXPECT_TRUE(screen.isTopmost && screen.hasTrayIcon);
    screen.log.str({});
    for (const auto* const key : { "Options", "About", "HelpTopics" })
        player->RunCommand(key);
    EXPECT_EQ(screen.log.str(), "options 0 about 0 help ");
    player->DialogClosed();
    EXPECT_TRUE(screen.isTopmost);
    player->Unload();
    EXPECT_FALSE(screen.hasTrayIcon);
}

TEST_F(PlayerTest, keys_without_a_command_do_nothing)
{
    auto& loaded = StartWithEntries(1, kPlayNormal, kNoRepeat);
    loaded.RunCommand("Stop");
    screen.log.str({});
    for (const auto* const key : { "", "exit", "Exit ", "File", "AfterPlay", "DVDList", "DVDList0", "DVDList1",
             "History", "History1", "History10", "History11", "Stop", "FullScreen" })
        loaded.RunCommand(key);
    EXPECT_EQ(screen.log.str(), "");
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_FALSE(screen.isClosed || screen.isFullScreen);
    EXPECT_EQ(engines.trace.played.size(), 1u);
}

TEST_F(PlayerTest, what_was_played_can_be_played_again_after_a_restart)
{
    Start();
    player->LoadThumb("A & a", "/a.avi", false, true);
    player->LoadThumb("B", "/b.avi", false, true);
    Start();
    engines.trace.played.clear();
    EXPECT_TRUE(IsEnabled("History0"));
    player->RunCommand("History1");
    EXPECT_EQ(player->Entries().EntryAt(0)->Title, "B");
    ClickClassicItem(*player, *player->ClassicMenus().Find("mnuRecent", 0));
    EXPECT_EQ(player->Entries().EntryAt(1)->Title, "A & a");
    // One that is in the list already plays the list's last entry.
    player->RunCommand("History1");
    EXPECT_EQ(engines.trace.played, (std::vector<std::string>{ "/b.avi", "/a.avi", "/a.avi" }));
    EXPECT_EQ(screen.boxes.size(), 1u);
}

TEST_F(PlayerTest, classic_menus_do_the_same_and_take_the_states_when_they_open)
{
    auto& loaded = StartWithEntries(3, kPlayNormal, kNoRepeat);
    auto& menus = loaded.ClassicMenus();
    const auto click = [&](const char* name, int index = 0) { ClickClassicItem(loaded, *menus.Find(name, index)); };
    click("mnuNext");
    EXPECT_EQ(LastPlayed(), "/b.avi");
    click("mnuPrev");
    EXPECT_EQ(LastPlayed(), "/a.avi");
    click("mnufullscreen");
    EXPECT_TRUE(screen.isFullScreen);
    click("mnuPBShuffle");
    click("mnuRMRepeatAll");
    click("mnuAfterPlaying", 2);
    EXPECT_EQ(loaded.AfterPlaying().AfterPlayAction(), 2);
    EXPECT_EQ(Checked(kPlayModeKeys) + Checked(kRepeatModeKeys) + Checked(kAfterPlayKeys),
        "PMShuffle RMRepeatAll RestartTheComputer ");

    loaded.RunCommand("PMContinuous");
    loaded.RunCommand("RMSingleRepeat");
    loaded.RunCommand("ExitZentaro");
    for (const auto* const menu : { "mnuPlayBackMenu", "mnuPlayListmenu", "mnuAfterMenu" })
        OpenClassicMenu(loaded, menu);
    std::string checked;
    for (const auto& item : menus.Items())
        checked += item.checked ? item.name + std::to_string(item.index) + " " : "";
    EXPECT_EQ(checked, "mnuPBCont0 mnuRMSingleRepeat0 mnuAfterPlaying1 ");
    EXPECT_TRUE(menus.Find("mnuincspeed")->enabled && menus.Find("mnustop")->enabled);

    click("mnustop");
    EXPECT_FALSE(loaded.MediaControlsEnabled());
    click("mnuplay");
    EXPECT_TRUE(loaded.MediaControlsEnabled());
    click("mnuPlayListRemove");
    EXPECT_EQ(loaded.Entries().Count(), 2);
    click("mnuPlayListRemoveAll");
    loaded.cmdStopClick();
    for (const auto* const menu : { "mnuPlayBackMenu", "mnuPlayListmenu" })
        OpenClassicMenu(loaded, menu);
    for (const auto* const name :
        { "mnuincspeed", "mnudecSpeed", "mnuresSpeed", "mnustop", "mnuNext", "mnuPrev", "mnuPlayListRemoveAll" })
        EXPECT_FALSE(menus.Find(name)->enabled) << name;
    click("dvdsList");
    click("mnuplay"); // an empty list asks for files
    screen.chosen = { "/clips/new.avi" };
    click("mnuplay");
    while (inspections.AnswerOne(loaded))
        ;
    EXPECT_EQ(LastPlayed(), "/clips/new.avi");
}

TEST_F(PlayerTest, a_snapshot_takes_the_next_free_name_in_the_folder_of_its_file)
{
    auto settings = DefaultSettings("/", {});
    settings.SnapshotPath = (folder / "new" / "shots").string();
    settings.SnapshotPrefix = "up/IMG_";
    WriteConfig(FormatConfigurations(settings));
    Start().LoadThumb("", "/clips/a.avi", false, true);
    engines.trace.hasVideo = false;
    player->OnPositionTick();
    player->TakeSnapshot();
    EXPECT_EQ(screen.note, "");

    engines.trace.hasVideo = true;
    player->OnPositionTick();
    // With this test's separator on every system.
    const auto images = fs::path((folder / "new" / "shots").string() + "/a.avi Images");
    player->TakeSnapshot();
    EXPECT_EQ(screen.note, "Saved up_IMG_00001.png|" + images.string() + "/up_IMG_00001.png");
    player->TakeSnapshot();
    player->TakeSnapshot();
    fs::remove(images / "up_IMG_00002.png");
    player->TakeSnapshot();
    EXPECT_TRUE(screen.note.starts_with("Saved up_IMG_00002.png|"));

    fs::remove_all(images);
    std::ofstream(images) << "in the way";
    player->TakeSnapshot();
    EXPECT_EQ(screen.note, "No snapshot could be saved in " + images.string());
    player->cmdStopClick();
    EXPECT_FALSE(player->CanTakeSnapshot());
}
