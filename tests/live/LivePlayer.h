#pragma once

#include "playback/VideoFrame.h"
#include "playback/VlcEngine.h"
#include "tests/desktop/Wait.h"
#include "tests/world/World.h"

#include <gtest/gtest.h>

namespace zentaro::live {

using namespace std::chrono_literals;

/// What went to the engines, and what they answered last.
struct Watch {
    std::vector<std::string> played; ///< paths, in order
    int alive = 0;
    int mostAlive = 0;
    int volume = -1; ///< of the present engine, as below
    bool muted = false;
    double rate = 1;
    int state = 0;
    double position = 0;
    double time = 0;
    double length = 0;
};

/// The real engine, looked over the shoulder.
class WatchedEngines : public EngineFactory {
public:
    explicit WatchedEngines(VideoFrame& frame)
        : m_engines(frame, "")
    {
    }
    std::unique_ptr<Engine> Create() override;

    Watch watch;

private:
    VlcEngines m_engines;
};

/// A player with the real engine on a virtual display without a sound device. The test drives its operations and lets
/// time pass.
class LivePlayer : public testing::Test {
protected:
    LivePlayer();
    ~LivePlayer() override;

    /// A tick every 500 ms, and the world goes on every 10 ms, until `done`; false when it never came true.
    bool RunUntil(const std::function<bool()>& done, std::chrono::milliseconds limit = trial::kPatience);
    void RunFor(std::chrono::milliseconds time)
    {
        RunUntil([] { return false; }, time);
    }
    /// Lets messages be handled for a while; no tick comes.
    static void Pump(std::chrono::milliseconds time);
    void AddEntries(const std::vector<std::string>& paths);

    std::string folder;
    VideoFrame frame;
    WatchedEngines engines;
    World world;
    Player& player;
    Watch& watch;
};

} // namespace zentaro::live
