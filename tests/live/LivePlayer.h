#pragma once

#include "playback/VideoFrame.h"
#include "playback/VlcEngines.h"
#include "tests/desktop/Wait.h"
#include "tests/platform/WorkingFolder.h"
#include "tests/world/World.h"

#include <gtest/gtest.h>

namespace zentaro::live {

using namespace std::chrono_literals;

/// A player with the real engine on a virtual display without a sound device. The test drives its operations and lets
/// time pass.
class LivePlayer : public testing::Test {
protected:
    LivePlayer();
    ~LivePlayer() override { player.Unload(); }

    /// A tick every 500 ms, and the world goes on every 10 ms, until `done`; false when it never came true.
    bool RunUntil(const std::function<bool()>& done, std::chrono::milliseconds limit = trial::kPatience);
    void RunFor(std::chrono::milliseconds time)
    {
        RunUntil([] { return false; }, time);
    }
    void AddEntries(const std::vector<std::string>& paths);

    /// Of the item that is loaded; 0 while there is none.
    int EngineState();
    double Time();

    const platform::WorkingFolder files;
    const std::string folder = files / "";
    VideoFrame frame;
    VlcEngines engines{ frame, "" };
    World world{ folder, &engines };
    Player& player = world.Make();
    std::vector<std::string> played; ///< paths, in order

private:
    std::uint64_t m_generation = 0;
};

} // namespace zentaro::live
