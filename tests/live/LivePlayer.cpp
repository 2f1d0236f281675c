#include "tests/live/LivePlayer.h"

#include "tests/desktop/Desktop.h"

#include <QApplication>

#include <cstdlib>

namespace zentaro::live {

namespace {

constexpr auto kTick = 500ms;
constexpr auto kStep = 10ms;

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

} // namespace

LivePlayer::LivePlayer()
    : frame((EnterSilentDesktop(), ""), nullptr)
{
    frame.resize(320, 240);
    frame.show();
    player.Load("", { &world.window, &world.dialogs });
}

int LivePlayer::EngineState()
{
    auto* const engine = player.Transporting().LoadedEngine();
    return engine != nullptr ? engine->State() : 0;
}

double LivePlayer::Time()
{
    auto* const engine = player.Transporting().LoadedEngine();
    return engine != nullptr ? engine->Time() : 0;
}

bool LivePlayer::RunUntil(const std::function<bool()>& done, std::chrono::milliseconds limit)
{
    const auto end = std::chrono::steady_clock::now() + limit;
    auto tick = std::chrono::steady_clock::now() + kTick;
    while (!done()) {
        if (const auto present = player.Transporting().Generation();
            present != m_generation && player.State().mediaControlsEnabled) {
            m_generation = present;
            played.push_back(player.Transporting().Item().path);
        }
        if (std::chrono::steady_clock::now() >= end)
            return false;
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(kStep);
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
