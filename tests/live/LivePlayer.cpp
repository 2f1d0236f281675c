#include "tests/live/LivePlayer.h"

#include "tests/desktop/Desktop.h"

#include <QApplication>

#include <cstdlib>
#include <filesystem>

namespace zentaro::live {

namespace {

constexpr auto kTick = 500ms;
constexpr auto kStep = 10ms;

class WatchedEngine : public Engine {
public:
    WatchedEngine(std::unique_ptr<Engine> engine, Watch& watch)
        : m_engine(std::move(engine))
        , m_watch(watch)
    {
        m_watch.rate = 1;
        m_watch.mostAlive = std::max(m_watch.mostAlive, ++m_watch.alive);
    }
    ~WatchedEngine() override { --m_watch.alive; }

    void SetVolume(int percent) override { m_engine->SetVolume(m_watch.volume = percent); }
    void SetMute(bool muted) override { m_engine->SetMute(m_watch.muted = muted); }
    double Length() override { return m_watch.length = m_engine->Length(); }
    double Time() override { return m_watch.time = m_engine->Time(); }
    double Position() override { return m_watch.position = m_engine->Position(); }
    void SetPosition(double position) override { m_engine->SetPosition(position); }
    int State() override { return m_watch.state = m_engine->State(); }
    double Rate() override { return m_engine->Rate(); }
    void SetRate(double rate) override { m_engine->SetRate(m_watch.rate = rate); }
    bool HasVideoOutput() override { return m_engine->HasVideoOutput(); }
    void Navigate(DiscKey key) override { m_engine->Navigate(key); }
    std::vector<DiscPart> Titles() override { return m_engine->Titles(); }
    int Title() override { return m_engine->Title(); }
    void SetTitle(int index) override { m_engine->SetTitle(index); }
    std::vector<DiscPart> Chapters() override { return m_engine->Chapters(); }
    int Chapter() override { return m_engine->Chapter(); }
    void SetChapter(int index) override { m_engine->SetChapter(index); }
    bool TakeSnapshot(const std::string& file) override { return m_engine->TakeSnapshot(file); }
    std::vector<EngineTrack> AudioTracks() override { return m_engine->AudioTracks(); }
    int AudioTrack() override { return m_engine->AudioTrack(); }
    void SetAudioTrack(int id) override { m_engine->SetAudioTrack(id); }
    std::vector<EngineTrack> SubtitleTracks() override { return m_engine->SubtitleTracks(); }
    int SubtitleTrack() override { return m_engine->SubtitleTrack(); }
    void SetSubtitleTrack(int id) override { m_engine->SetSubtitleTrack(id); }
    bool AddSubtitleFile(const std::string& path) override { return m_engine->AddSubtitleFile(path); }
    std::string AspectRatio() override { return m_engine->AspectRatio(); }
    void SetAspectRatio(const std::string& ratio) override { m_engine->SetAspectRatio(ratio); }
    std::string Deinterlacing() override { return m_engine->Deinterlacing(); }
    void SetDeinterlacing(const std::string& filter) override { m_engine->SetDeinterlacing(filter); }
    void Add(const MediaLocation& location, const EngineOptions& options) override
    {
        m_watch.played.push_back(location.text);
        m_engine->Add(location, options);
    }
    void Play() override { m_engine->Play(); }
    void TogglePause() override { m_engine->TogglePause(); }
    void Stop() override { m_engine->Stop(); }
    int ItemCount() override { return m_engine->ItemCount(); }

private:
    std::unique_ptr<Engine> m_engine;
    Watch& m_watch;
};

/// Before anything of Qt or the engine is made.
void EnterSilentDesktop()
{
    static trial::Desktop screen(640, 480, trial::Desktop::WindowManager::None);
    static const bool entered = [] {
        setenv("DISPLAY", screen.Name().c_str(), 1);
        setenv("QT_QPA_PLATFORM", "xcb", 1);
        // Nobody listens there: without an address, libraries would start a bus of their own.
        setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent", 1);
        setenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent", 1);
        setenv("PULSE_SERVER", "unix:/nonexistent", 1);
        setenv("ALSA_CONFIG_PATH", "/nonexistent", 1);
        static int argc = 1;
        static char name[] = "zentaro-desktop-engine";
        static char* argv[] = { name, nullptr };
        static QApplication application(argc, argv);
        return true;
    }();
    static_cast<void>(entered);
}

std::string MakeFolder()
{
    EnterSilentDesktop();
    auto path = (std::filesystem::temp_directory_path() / "zentaro-live-XXXXXX").string();
    return std::string(mkdtemp(path.data())) + "/";
}

} // namespace

std::unique_ptr<Engine> WatchedEngines::Create()
{
    auto engine = m_engines.Create();
    return engine ? std::make_unique<WatchedEngine>(std::move(engine), watch) : nullptr;
}

LivePlayer::LivePlayer()
    : folder(MakeFolder())
    , frame("", nullptr)
    , engines(frame)
    , world(folder, &engines)
    , player(world.Make())
    , watch(engines.watch)
{
    frame.resize(320, 240);
    frame.show();
    player.Load("", { &world.window, &world.dialogs });
}

LivePlayer::~LivePlayer()
{
    player.Unload();
    std::filesystem::remove_all(folder);
}

void LivePlayer::Pump(std::chrono::milliseconds time)
{
    const auto end = std::chrono::steady_clock::now() + time;
    do {
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(2ms);
    } while (std::chrono::steady_clock::now() < end);
}

bool LivePlayer::RunUntil(const std::function<bool()>& done, std::chrono::milliseconds limit)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    auto tick = std::chrono::steady_clock::now() + kTick;
    while (!done()) {
        if (std::chrono::steady_clock::now() >= end)
            return false;
        Pump(kStep);
        world.Elapse(kStep);
        player.Transporting().OnRewindTick();
        if (std::chrono::steady_clock::now() < tick)
            continue;
        tick += kTick;
        player.OnPositionTick();
    }
    return true;
}

void LivePlayer::AddEntries(const std::vector<std::string>& paths)
{
    for (const auto& path : paths)
        player.Files().LoadThumb(path, path, false, false);
    world.Settle();
}

} // namespace zentaro::live
