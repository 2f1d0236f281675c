#include "tests/desktop/PlayerDesk.h"
#include "tests/desktop/TitleLog.h"

#include <cmath>
#include <stdexcept>

namespace zentaro::desktop {
namespace {

using Clock = std::chrono::steady_clock;

double Since(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

class Transport : public PlayerDesk {
protected:
    struct Clip {
        std::string name;
        double seconds = 0;
    };

    /// A player whose list holds these clips; nothing plays yet.
    ShownPlayer ShowWith(const std::vector<Clip>& clips)
    {
        auto player = StartAndShow({ "*Add" });
        for (const auto& [name, seconds] : clips) {
            const auto clip = Clips::MakeClock("clock-" + std::to_string(seconds) + ".mp4", seconds);
            EXPECT_EQ(Start({ CopyOf(clip, name) }).WaitForEnd(), 0);
        }
        Screen().Activate(player.window);
        EXPECT_TRUE(WaitUntil([&] { return IsSettled(player); }));
        return player;
    }

    /// The window manager has placed the window, and all of it is painted.
    static bool IsSettled(const ShownPlayer& player)
    {
        const auto place = player.Place();
        const auto look = Look(place);
        std::this_thread::sleep_for(200ms);
        return look.Mean().Brightest() > 5 && player.Place() == place && ShareThatDiffers(Look(place), look) == 0;
    }

    static Rect PlaceOf(const ShownPlayer& player, Button button)
    {
        return player.OnScreen(player.Layout().ButtonRect(button));
    }
    static void Click(int x, int y)
    {
        Screen().Click(x, y);
        // No hand is gone in the instant of the click; the window manager would lose it.
        std::this_thread::sleep_for(60ms);
    }
    static void Click(const ShownPlayer& player, Button button)
    {
        const auto place = PlaceOf(player, button);
        Click(place.left + place.width / 2, place.top + place.height / 2);
    }
    /// How a part of the window looks while the pointer is elsewhere.
    static Picture Look(const Rect& part)
    {
        Screen().MoveTo(0, 0);
        return Screen().Grab(part);
    }
    static bool TakesLook(const Rect& part, const Picture& look)
    {
        return WaitUntil([&] { return ShareThatDiffers(Look(part), look) == 0; });
    }
    /// Presses the seek track at a share of its width.
    static void ClickTrack(const ShownPlayer& player, double share)
    {
        const auto track = player.OnScreen(player.Layout().SeekTrack());
        Click(track.left + static_cast<int>(std::lround(track.width * share)), track.top + track.height / 2);
    }
    /// What the video shows as soon as it shows a time.
    static double Time(const ShownPlayer& player)
    {
        std::optional<double> time;
        if (!WaitUntil([&] { return (time = ShownTime(Screen().Grab(player.Video()))).has_value(); }))
            throw std::runtime_error("the video shows no time");
        return *time;
    }
    static bool ReachesTime(const ShownPlayer& player, double from, double to)
    {
        return WaitUntil([&] {
            const auto time = Time(player);
            return time >= from && time <= to;
        });
    }
    /// How many seconds of the clip pass in one, over a while.
    static double Speed(const ShownPlayer& player)
    {
        const auto first = Time(player);
        const auto start = Clock::now();
        std::this_thread::sleep_for(1500ms);
        return (Time(player) - first) / Since(start);
    }

    /// The clips that played, in order, by the titles.
    static std::vector<std::string> Played(const TitleLog& log)
    {
        std::vector<std::string> names;
        for (const auto& title : log.Titles()) {
            const auto end = title.find(".mp4");
            const auto start = title.rfind('/', end) + 1;
            if (end != std::string::npos && (names.empty() || names.back() != title.substr(start, end - start)))
                names.push_back(title.substr(start, end - start));
        }
        return names;
    }
};

TEST_F(Transport, APressOnTheTrackLandsThere)
{
    constexpr double kLength = 20.4;
    StoreSettings([](PlayerSettings& settings) { settings.RepeatMode = 0; });
    auto player = ShowWith({ { "long.mp4", kLength } });
    Click(player, Button::Play);
    EXPECT_TRUE(ReachesTime(player, 0, 1));
    // In an order in which every jump is a long one.
    for (const int tenth : { 5, 1, 8, 3, 6, 0, 7, 2, 9, 4 }) {
        SCOPED_TRACE(tenth);
        const auto before = Time(player);
        const auto start = Clock::now();
        ClickTrack(player, tenth / 10.0);
        double landed = before;
        EXPECT_TRUE(WaitUntil([&] {
            landed = Time(player);
            return std::abs(landed - before - Since(start)) > 1.5;
        }));
        EXPECT_NEAR(landed, tenth * kLength / 10, 0.5);
    }
    // The last pixels of the track are dead, and the end of a clip that was sought to is an end like any other.
    const auto before = Time(player);
    const auto track = player.OnScreen(player.Layout().SeekTrack());
    Click(track.Right() - 2, track.top + track.height / 2);
    EXPECT_NEAR(Speed(player), 1, 0.3);
    EXPECT_NEAR(Time(player), before + 1.5, 1.0);
    const auto stop = PlaceOf(player, Button::Stop);
    const auto enabled = Look(stop);
    ClickTrack(player, 0.97);
    EXPECT_TRUE(WaitUntil([&] { return ShareThatDiffers(Look(stop), enabled) > 0; }));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Transport, HeldButtonsMoveTheirWayAndAPauseChangesNothing)
{
    auto player = ShowWith({ { "long.mp4", 20.4 } });
    Click(player, Button::Play);
    EXPECT_TRUE(ReachesTime(player, 0, 1));
    const auto hold = [&](Button button) {
        const auto place = PlaceOf(player, button);
        Screen().Hold(place.left + place.width / 2, place.top + place.height / 2);
    };
    hold(Button::FastForward);
    EXPECT_TRUE(ReachesTime(player, 6, 14));
    Screen().Release();
    EXPECT_NEAR(Speed(player), 1, 0.3);

    ClickTrack(player, 0.6);
    EXPECT_TRUE(ReachesTime(player, 11.7, 13.5));
    hold(Button::Rewind);
    EXPECT_TRUE(ReachesTime(player, 0, 10));
    Screen().Release();
    EXPECT_NEAR(Speed(player), 1, 0.3);

    Click(player, Button::Pause);
    std::this_thread::sleep_for(300ms);
    const auto paused = Time(player);
    std::this_thread::sleep_for(5s);
    EXPECT_EQ(Time(player), paused);
    Click(player, Button::Pause);
    EXPECT_TRUE(ReachesTime(player, paused + 0.1, paused + 1.5));
    EXPECT_NEAR(Speed(player), 1, 0.3);
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Transport, FullScreenGoesOnPlayingAndLeavesTheWindowAsItWas)
{
    auto player = ShowWith({ { "long.mp4", 20.4 } });
    Click(player, Button::Play);
    EXPECT_TRUE(ReachesTime(player, 0.1, 2));
    const auto place = player.Place();
    const auto before = Time(player);
    const auto start = Clock::now();
    Click(player, Button::FullScreen);
    EXPECT_TRUE(WaitUntil([&] { return player.Video() == Screen().Area(); }));
    EXPECT_NEAR(Time(player), before + Since(start), 0.6);
    EXPECT_NEAR(Speed(player), 1, 0.3);
    Screen().Press(kEscape);
    EXPECT_TRUE(WaitUntil([&] { return player.Place() == place; }));
    EXPECT_NEAR(Time(player), before + Since(start), 0.6);
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Transport, StopResetsAndNextAndPreviousWrap)
{
    const TitleLog log(Screen());
    auto player = ShowWith({ { "a.mp4", 20 }, { "b.mp4", 20 }, { "c.mp4", 20 } });
    const std::vector<Rect> parts = { player.OnScreen(player.Layout().TimeLabel()),
        player.OnScreen(player.Layout().SeekTrack()), player.OnScreen(player.Layout().RateLabel()),
        PlaceOf(player, Button::Stop), PlaceOf(player, Button::Next) };
    std::vector<Picture> idle;
    for (const auto& part : parts)
        idle.push_back(Look(part));
    Click(player, Button::Play);
    EXPECT_TRUE(WaitUntil([&] { return Played(log) == std::vector<std::string>{ "a" }; }));
    for (const auto& [button, expected] :
        std::initializer_list<std::pair<Button, std::vector<std::string>>>{ { Button::Previous, { "a", "c" } },
            { Button::Next, { "a", "c", "a" } }, { Button::Next, { "a", "c", "a", "b" } } }) {
        Click(player, button);
        EXPECT_TRUE(WaitUntil([&] { return Played(log).size() >= expected.size(); }));
        EXPECT_EQ(Played(log), expected);
    }
    EXPECT_TRUE(ReachesTime(player, 0.1, 3));
    ClickTrack(player, 0.5);
    EXPECT_TRUE(WaitUntil([&] { return ShareThatDiffers(Look(parts[0]), idle[0]) > 0; }));
    EXPECT_TRUE(WaitUntil([&] { return ShareThatDiffers(Look(parts[1]), idle[1]) > 0.05; }));
    EXPECT_GT(ShareThatDiffers(Look(parts[3]), idle[3]), 0);
    EXPECT_TRUE(ReachesTime(player, 9, 12));
    const auto video = player.Video();
    Click(player, Button::Stop);
    for (std::size_t i = 0; i < parts.size(); ++i)
        EXPECT_TRUE(TakesLook(parts[i], idle[i])) << "part " << i;
    EXPECT_TRUE(WaitUntil([&] { return Screen().Grab(video).Mean().Brightest() < 2; }));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Transport, MuteAndVolumeShowWhatTheyAre)
{
    auto player = ShowWith({ { "a.mp4", 20 } });
    const auto button = PlaceOf(player, Button::SoundOn);
    const auto loud = Look(button);
    Click(player, Button::SoundOn);
    EXPECT_TRUE(WaitUntil([&] { return ShareThatDiffers(Look(button), loud) > 0.01; }));
    Click(player, Button::SoundOn);
    EXPECT_TRUE(TakesLook(button, loud));

    const auto slider = player.OnScreen(player.Layout().VolumeSlider());
    const auto number = player.OnScreen(player.Layout().VolumeNumber());
    const auto full = Look(number);
    const auto middle = slider.left + slider.width / 2;
    const auto height = slider.top + slider.height / 2;
    Click(middle, height);
    EXPECT_TRUE(WaitUntil([&] { return ShareThatDiffers(Look(number), full) > 0; }));
    const auto half = Look(number);
    Screen().Wheel(middle, height, 2);
    EXPECT_TRUE(WaitUntil([&] { return ShareThatDiffers(Look(number), half) > 0; }));
    EXPECT_GT(ShareThatDiffers(Look(number), full), 0);
    Screen().Wheel(middle, height, -2);
    EXPECT_TRUE(TakesLook(number, half));
    Screen().Wheel(middle, height, 20);
    EXPECT_TRUE(TakesLook(number, full));
    // On the video as on the slider.
    const auto content = player.OnScreen(player.Layout().Content());
    Screen().Wheel(content.Right() - 40, content.Bottom() - 40, -1);
    EXPECT_TRUE(WaitUntil([&] { return ShareThatDiffers(Look(number), full) > 0; }));
    Screen().Wheel(content.Right() - 40, content.Bottom() - 40, 1);
    EXPECT_TRUE(TakesLook(number, full));
    // The ends of the slider are dead.
    Click(slider.left + 1, height);
    Click(slider.Right() - 1, height);
    EXPECT_EQ(ShareThatDiffers(Look(number), full), 0);
    EXPECT_CLOSES_CLEANLY(player);
}

/// Presses every key that moves playback, and looks at the video each time.
class TransportKeys : public Transport {
protected:
    static void UseKeys(const ShownPlayer& player, const TitleLog& log)
    {
        const auto press = [](std::uint32_t key, std::initializer_list<std::uint32_t> held = {}) {
            Screen().Press(key, held);
            std::this_thread::sleep_for(60ms);
        };
        press('5');
        EXPECT_TRUE(ReachesTime(player, 10, 12));
        press('p', { kControl });
        std::this_thread::sleep_for(500ms);
        const auto paused = Time(player);
        std::this_thread::sleep_for(1s);
        EXPECT_EQ(Time(player), paused);
        press(' ');
        EXPECT_TRUE(ReachesTime(player, paused + 0.1, paused + 3));
        press(kRight);
        EXPECT_TRUE(ReachesTime(player, paused + 4.5, paused + 8));
        press(kLeft);
        EXPECT_TRUE(ReachesTime(player, 9, paused + 4));
        press(kLeft, { kShift });
        EXPECT_TRUE(ReachesTime(player, 0, 4));
        press(']');
        press(kUp, { kControl });
        EXPECT_NEAR(Speed(player), 4, 1.5);
        press('[');
        press(kDown, { kControl });
        press(kDown, { kControl });
        press('r', { kControl });
        EXPECT_TRUE(WaitUntil([&] { return std::abs(Speed(player) - 1) < 0.3; }));
        const auto count = Played(log).size();
        press(kPageDown);
        EXPECT_TRUE(WaitUntil([&] { return Played(log).size() == count + 1; }));
        press(kPageUp);
        EXPECT_TRUE(WaitUntil([&] { return Played(log).size() == count + 2; }));
        EXPECT_TRUE(ReachesTime(player, 0.1, 3));
    }
};

TEST_F(TransportKeys, WorkInTheWindowAndInFullScreen)
{
    const TitleLog log(Screen());
    auto player = ShowWith({ { "a.mp4", 20.4 }, { "b.mp4", 20 } });
    Screen().Press(kReturn); // nothing is selected yet
    Screen().Press(' ');
    EXPECT_TRUE(WaitUntil([&] { return Played(log).size() == 1; }));
    EXPECT_TRUE(ReachesTime(player, 0.1, 3));
    UseKeys(player, log);
    Screen().Press('f');
    EXPECT_TRUE(WaitUntil([&] { return player.Video() == Screen().Area(); }));
    UseKeys(player, log);
    Screen().Press(kEscape);
    EXPECT_TRUE(WaitUntil([&] { return player.Video().top > 0; }));
    Screen().Press('f', { kControl });
    EXPECT_TRUE(WaitUntil([&] { return player.Video() == Screen().Area(); }));
    Screen().Press('f');
    EXPECT_TRUE(WaitUntil([&] { return player.Video().top > 0; }));
    EXPECT_TRUE(WaitUntil([&] { return IsSettled(player) || player.PictureMoves(); }));
    const auto sound = PlaceOf(player, Button::SoundOn);
    const auto number = player.OnScreen(player.Layout().VolumeNumber());
    for (const auto& [key, back, place] : { std::tuple('m', std::uint32_t{ 'm' }, sound),
             std::tuple(static_cast<char>(0), std::uint32_t{ kUp }, number) }) {
        const auto before = Look(place);
        Screen().Press(key == 0 ? kDown : static_cast<std::uint32_t>(key));
        EXPECT_TRUE(WaitUntil([&] { return ShareThatDiffers(Look(place), before) > 0; }));
        Screen().Press(back);
        EXPECT_TRUE(TakesLook(place, before));
    }
    // In the list the arrows select; what is selected is what Return plays and Delete removes.
    const auto content = player.OnScreen(player.Layout().Content());
    Click(content.left + 40, content.top + 40);
    Screen().Press(kDown);
    Screen().Press(kReturn);
    EXPECT_TRUE(WaitUntil([&] { return Played(log).back() == "b"; }));
    Screen().Press(kDelete);
    const auto stop = PlaceOf(player, Button::Stop);
    const auto playing = Look(stop);
    Screen().Press('s', { kControl });
    EXPECT_TRUE(WaitUntil([&] { return ShareThatDiffers(Look(stop), playing) > 0; }));
    Screen().Press(' ');
    EXPECT_TRUE(WaitUntil([&] { return Played(log).back() == "a"; }));
    Screen().Press('o', { kControl });
    EXPECT_TRUE(WaitUntil([&] { return !player.Dialogs().empty(); }));
    Screen().Press(kEscape);
    EXPECT_TRUE(WaitUntil([&] { return player.Dialogs().empty(); }));
    Screen().Press('x', { kControl });
    EXPECT_EQ(player.process.WaitForEnd(), 0);
    EXPECT_EQ(player.process.ErrorText(), "");
}

} // namespace
} // namespace zentaro::desktop
