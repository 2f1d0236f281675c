#include "tests/desktop/Clips.h"
#include "tests/live/LivePlayer.h"
#include "tests/live/Replay.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <numeric>
#include <random>
#include <sstream>

namespace zentaro::live {
namespace {

using desktop::Clips;

constexpr auto kLongestCommand = 10s; // on a busy machine; what hangs lasts for ever

class RandomCommands : public LivePlayer {
protected:
    struct Command {
        const char* name;
        int weight;
        std::function<void()> run; ///< on the player and on the replay
    };

    int Random(int below) { return std::uniform_int_distribution(0, below - 1)(m_random); }
    bool Chance() { return Random(2) == 0; }
    void Seed(unsigned seed) { m_random.seed(seed); }

    std::vector<Command> Commands()
    {
        return {
            { "tick", 20, [this] { Tick(); } },
            { "play", 6, [this] { player.CMDPlayClick(), replay.Play(); } },
            { "pause", 4, [this] { player.CMDPauseClick(); } },
            { "stop", 3, [this] { player.cmdStopClick(), replay.Stop(); } },
            { "next", 5, [this] { player.cmdNextClick(), replay.Step(1); } },
            { "previous", 5, [this] { player.cmdPreviousClick(), replay.Step(-1); } },
            { "fast forward", 4, [this] { FastForward(); } },
            { "rewind", 4, [this] { player.RewindPressed(), replay.rewinds = replay.enabled; } },
            { "release fast forward", 3, [this] { ReleaseFastForward(); } },
            { "release rewind", 3, [this] { player.RewindReleased(), replay.rewinds = false; } },
            { "lose the focus", 2, [this] { player.ReleaseHeldButtons(), replay.ReleaseHeld(); } },
            { "seek", 8, [this] { player.Seek(Random(101) / 100.0); } },
            { "seek by", 4, [this] { player.SeekBy((Random(13) - 6) * 500); } },
            { "volume", 2, [this] { player.SetVolume(replay.volume = Random(101)); } },
            { "mute", 2, [this] { player.cmdMuteClick(), replay.muted = !replay.muted; } },
            { "faster", 5, [this] { player.IncreaseRate(), replay.Faster(); } },
            { "slower", 4, [this] { player.DecreaseRate(), replay.Slower(); } },
            { "normal speed", 2, [this] { player.ResetRate(), replay.NormalSpeed(); } },
            { "after play", 3, [this] { AfterPlay(); } },
            { "play mode", 4, [this] { PlayMode(); } },
            { "repeat mode", 4, [this] { player.SetRepeatMode(replay.repeatMode = Random(3)); } },
            { "full screen", 1, [this] { player.cmdFulScreenClick(); } },
            { "click", 3, [this] { Click(); } },
            { "double click", 3, [this] { DoubleClick(); } },
            { "remove", 2, [this] { player.RemoveSelected(), replay.Remove(); } },
            { "remove all", 1, [this] { player.RemoveAll(), replay.RemoveAll(); } },
            { "load", 5, [this] { Load(); } },
            { "item Stop", 2, [this] { player.RunCommand("Stop"), replay.StopItem(); } },
            { "item PlayPause", 2, [this] { player.RunCommand("PlayPause"), replay.PlayPauseItem(); } },
            { "item Remove", 2, [this] { player.RunCommand("Remove"), replay.RemoveItem(); } },
            { "item RemoveAll", 1, [this] { player.RunCommand("RemoveAll"), replay.RemoveAllItem(); } },
        };
    }

    void Tick()
    {
        player.OnPositionTick();
        replay.Tick({ watch.state, watch.position, watch.time, watch.length });
    }
    void FastForward()
    {
        player.cmdffMouseDown();
        if (!replay.enabled)
            return;
        replay.fastForwards = true;
        replay.engineRate = 10;
    }
    void ReleaseFastForward()
    {
        player.cmdffMouseUp();
        if (std::exchange(replay.fastForwards, false))
            replay.engineRate = 1;
    }
    void AfterPlay()
    {
        replay.afterPlay = Random(4);
        player.DoAfter(static_cast<std::int16_t>(replay.afterPlay));
    }
    void PlayMode()
    {
        const int mode = Random(3);
        mode == 0 ? player.PBNormal() : mode == 1 ? player.PBCont() : player.PBShuffle();
        replay.SetPlayMode(mode);
    }
    void Click()
    {
        const int row = Random(4);
        player.Entries().List().SetSelectedItem(row);
        player.ListClicked();
        replay.Select(row);
    }
    void DoubleClick()
    {
        Click();
        player.ListDoubleClicked();
        replay.DoubleClick();
    }
    void Load()
    {
        const auto& path = replay.chosen[static_cast<std::size_t>(Random(3))];
        const bool playNow = Chance();
        player.LoadThumb("clip", path, Chance(), playNow);
        replay.Load(path, playNow);
    }

    /// A random order is no less right for being another one, but it must hold every entry once.
    void TakeShuffledOrder()
    {
        if (!std::exchange(replay.isShuffled, false))
            return;
        std::vector<int> order;
        for (int at = 0; at < replay.Count(); ++at)
            order.push_back(player.Entries().Order().At(at));
        EXPECT_TRUE(std::is_permutation(order.begin(), order.end(), replay.order.begin(), replay.order.end()));
        replay.order = order;
    }

    std::string Checked(std::initializer_list<const char*> keys)
    {
        std::string checked;
        for (const auto* const key : keys)
            checked += player.SmartMenuXP1().Find(key)->checked ? std::string(" ") + key : "";
        return checked;
    }
    std::string CheckedItems()
    {
        return Checked({ "PMNormal", "PMContinuous", "PMShuffle" })
            + Checked({ "RMNoRepeat", "RMSingleRepeat", "RMRepeatAll" })
            + Checked({ "Donothing", "ExitZentaro", "RestartTheComputer", "ShutdownTheComputer" });
    }
    std::string CheckedInReplay() const
    {
        constexpr const char* kPlay[] = { " PMNormal", " PMContinuous", " PMShuffle" };
        constexpr const char* kRepeat[] = { " RMNoRepeat", " RMSingleRepeat", " RMRepeatAll" };
        constexpr const char* kAfter[] = { " Donothing", " ExitZentaro", " RestartTheComputer",
            " ShutdownTheComputer" };
        return std::string(kPlay[replay.playMode]) + kRepeat[replay.repeatMode] + kAfter[replay.afterPlay];
    }

    /// Everything that the window shows or enables by.
    std::string StateOfPlayer()
    {
        std::ostringstream text;
        auto& entries = player.Entries();
        text << "enabled " << player.MediaControlsEnabled() << ", play mode " << player.Settings().PlayMode
             << ", repeat mode " << player.Settings().RepeatMode << ", rate " << player.Rate().Value() << " engine "
             << watch.rate << ", rewinding " << player.IsRewinding() << ", muted " << player.Host().IsMuted()
             << ", volume " << player.Host().Volume() << ", after play " << player.AfterPlaying().AfterPlayAction()
             << " marked " << player.AfterPlaying().MarkedItem() << ", selected " << entries.List().SelectedItem()
             << ", position " << entries.Order().Position() << " of " << entries.Order().Count() << ":";
        for (int at = 0; at < entries.Order().Count(); ++at)
            text << ' ' << entries.Order().At(at);
        text << ", entries " << entries.Count() << " rows " << entries.List().Count() << ", played "
             << watch.played.size() << ' ' << (watch.played.empty() ? "" : watch.played.back()) << ", power "
             << world.power.restarts << ' ' << world.power.powerOffs << ' ' << world.screen.closes << ", notes "
             << world.screen.notes << ", checked" << CheckedItems() << ", disabled";
        for (const auto& [key, enabled] : replay.items)
            text << (player.SmartMenuXP1().Find(key)->enabled ? "" : " " + key);
        return text.str();
    }
    std::string StateOfReplay() const
    {
        std::ostringstream text;
        text << "enabled " << replay.enabled << ", play mode " << replay.playMode << ", repeat mode "
             << replay.repeatMode << ", rate " << replay.rate << " engine " << replay.engineRate << ", rewinding "
             << replay.rewinds << ", muted " << replay.muted << ", volume " << replay.volume << ", after play "
             << replay.afterPlay << " marked " << replay.afterPlay << ", selected " << replay.selected << ", position "
             << replay.position << " of " << replay.order.size() << ":";
        for (const int index : replay.order)
            text << ' ' << index;
        text << ", entries " << replay.Count() << " rows " << replay.Count() << ", played " << replay.played.size()
             << ' ' << (replay.played.empty() ? "" : replay.played.back()) << ", power " << replay.restarts << ' '
             << replay.powerOffs << ' ' << replay.closes << ", notes " << replay.notes << ", checked"
             << CheckedInReplay() << ", disabled";
        for (const auto& [key, enabled] : replay.items)
            text << (enabled ? "" : " " + key);
        return text.str();
    }

    Replay replay;

private:
    std::mt19937 m_random;
};

TEST_F(RandomCommands, LeaveThePlayerInTheStatesOfTheReplay)
{
    const bool isLongRun = std::getenv("ZENTARO_LONG_RUN") != nullptr;
    const auto* const given = std::getenv("ZENTARO_SEED");
    // A failure must come again in the next run; only a long run looks for new ones.
    unsigned seed = isLongRun ? std::random_device{}() : 59;
    if (given != nullptr)
        seed = static_cast<unsigned>(std::atoi(given));
    std::cout << "seed " << seed << '\n';
    SCOPED_TRACE("ZENTARO_SEED=" + std::to_string(seed));
    Seed(seed);

    replay.chosen = { Clips::Make("short.mp4", 0.3), Clips::Make("clip.mkv", 1.4), Clips::Make("sound.mp3", 4) };
    // The dialog's answer as one path each; the first one plays.
    world.screen.chosen = replay.chosen;
    AddEntries(replay.chosen);
    for (const auto& path : replay.chosen)
        replay.Load(path, false);
    ASSERT_EQ(StateOfPlayer(), StateOfReplay());

    const auto commands = Commands();
    std::vector<int> weights;
    for (const auto& command : commands)
        weights.push_back(command.weight);
    std::vector<std::string> history;
    for (int step = 0; step < (isLongRun ? 1000 : 100); ++step) {
        int pick = Random(std::accumulate(weights.begin(), weights.end(), 0));
        std::size_t at = 0;
        while ((pick -= weights[at]) >= 0)
            ++at;
        history.push_back(commands[at].name);
        const auto start = std::chrono::steady_clock::now();
        commands[at].run();
        TakeShuffledOrder();
        const auto elapsed = std::chrono::steady_clock::now() - start;
        ASSERT_EQ(StateOfPlayer(), StateOfReplay()) << "after step " << step << ": " << testing::PrintToString(history);
        ASSERT_EQ(watch.alive, watch.mostAlive);
        ASSERT_LT(elapsed, kLongestCommand) << commands[at].name;
        for (int i = Random(8); i > 0; --i) {
            Pump(10ms);
            player.OnRewindTick();
        }
    }
    EXPECT_EQ(watch.mostAlive, 1);
    EXPECT_EQ(watch.volume, replay.volume);
    EXPECT_EQ(watch.muted, replay.muted);
}

} // namespace
} // namespace zentaro::live
