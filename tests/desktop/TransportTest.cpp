#include "tests/desktop/PlayerDesk.h"

#include <cmath>
#include <stdexcept>

namespace zentaro::trial {
namespace {

using Clock = std::chrono::steady_clock;

// The tenths of a second as stripes, lowest digit on the left, and in the lower half their negative: what is black,
// torn or something else altogether is no time.
constexpr int kStripes = 10;
const std::string kClockPicture = "color=size=40x30:rate=25,format=gray,"
                                  "geq=lum='255*abs(mod(floor(floor(10*T+0.01)/pow(2,floor(10*X/W))),2)-gte(Y,H/2))',"
                                  "scale=160:120:flags=neighbor";

/// The time (s, in tenths) that this picture of the video's place shows; nothing when no whole frame of a clock is
/// there.
std::optional<double> ShownTime(const QImage& video)
{
    // The picture lies in the middle and keeps its shape of 4 to 3.
    const int width = std::min(video.width(), video.height() * 4 / 3);
    const int height = std::min(video.height(), video.width() * 3 / 4);
    const auto isWhite = [&](int stripe, int quarter) {
        const int x = (video.width() - width) / 2 + width * (2 * stripe + 1) / (2 * kStripes);
        return qBlue(video.pixel(x, (video.height() - height) / 2 + height * quarter / 4)) > 128;
    };
    int tenths = 0;
    for (int stripe = 0; stripe < kStripes; ++stripe) {
        if (video.isNull() || isWhite(stripe, 1) == isWhite(stripe, 3))
            return std::nullopt;
        tenths |= isWhite(stripe, 1) << stripe;
    }
    return tenths / 10.0;
}

double Since(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

class Transport : public PlayerDesk {
protected:
    static constexpr double kLength = 60;

    /// A player whose list holds clips of these names; nothing plays yet.
    ShownPlayer ShowWith(const std::vector<std::string>& names) const
    {
        auto player = StartAndShow({ "*Add" });
        for (const auto& name : names)
            EXPECT_EQ(Start({ CopyOf(Clips::Make("clock.mp4", kLength, kClockPicture), name) }).WaitForEnd(), 0);
        Screen().Activate(player.window);
        SettledLook(player.Place());
        return player;
    }
    ShownPlayer ShowPlaying(const std::vector<std::string>& names) const
    {
        auto player = ShowWith(names);
        player.Click(Button::Play);
        EXPECT_TRUE(ReachesTime(player, 0.1, 15));
        return player;
    }
    /// How a part of the window looks while the pointer is elsewhere.
    static QImage Look(const Rect& part)
    {
        Screen().MoveTo(0, 0);
        return Screen().Grab(part);
    }
    static bool TakesLook(const Rect& part, const QImage& look)
    {
        return WaitUntil([&] { return Look(part) == look; });
    }
    static bool LosesLook(const Rect& part, const QImage& look)
    {
        return WaitUntil([&] { return Look(part) != look; });
    }
    /// Presses the seek track at a share of its width.
    static void ClickTrack(const ShownPlayer& player, double share)
    {
        const auto track = player.OnScreen(player.Layout().SeekTrack());
        Screen().Click(track.left + static_cast<int>(std::lround(track.width * share)), track.top + track.height / 2);
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
    /// Whether so many seconds of the clip come to pass in one, looked at over a while.
    static bool TakesSpeed(const ShownPlayer& player, double speed)
    {
        return WaitUntil([&] {
            const auto first = Time(player);
            const auto start = Clock::now();
            std::this_thread::sleep_for(1s);
            return std::abs((Time(player) - first) / Since(start) - speed) <= 0.3 * speed;
        });
    }
    static bool Stands(const ShownPlayer& player) { return TakesSpeed(player, 0); }
    /// Every key that moves playback, and a look at the video each time.
    static void UseKeys(const ShownPlayer& player)
    {
        Screen().Press("5");
        EXPECT_TRUE(ReachesTime(player, kLength / 2, kLength / 2 + 5));
        Screen().Press("ctrl+p");
        EXPECT_TRUE(Stands(player));
        const auto paused = Time(player);
        for (const auto& [keys, from, to] : { std::tuple("space", 0.1, 3.0), std::tuple("Right Right", 9.5, 15.0),
                 std::tuple("Left", 4.5, 9.0), std::tuple("shift+Left", -kLength, -15.0) }) {
            Screen().Press(keys);
            EXPECT_TRUE(ReachesTime(player, paused + from, paused + to)) << keys;
        }
        Screen().Press("bracketright ctrl+Up");
        EXPECT_TRUE(TakesSpeed(player, 4));
        Screen().Press("bracketleft ctrl+Down ctrl+Down ctrl+r");
        EXPECT_TRUE(TakesSpeed(player, 1));
        const auto title = player.Title();
        Screen().Press("Next");
        EXPECT_TRUE(WaitUntil([&] { return player.Title() != title; }));
        Screen().Press("Prior");
        EXPECT_TRUE(player.WaitForTitle(title));
        EXPECT_TRUE(ReachesTime(player, 0.1, 15));
    }
    static bool FillsTheScreen(const ShownPlayer& player, bool fills = true)
    {
        return WaitUntil([&] { return (player.Video() == Screen().Area()) == fills && player.Video().width > 0; });
    }
};

TEST_F(Transport, APressOnTheTrackLandsThere)
{
    StoreSettings([](PlayerSettings& settings) { settings.RepeatMode = 0; });
    auto player = ShowPlaying({ "long.mp4" });
    // In an order in which every jump is a long one.
    for (const int tenth : { 5, 1, 8, 3, 9, 0, 6 }) {
        SCOPED_TRACE(tenth);
        const auto before = Time(player);
        const auto start = Clock::now();
        ClickTrack(player, tenth / 10.0);
        double landed = before;
        EXPECT_TRUE(WaitUntil([&] {
            landed = Time(player);
            return std::abs(landed - before - Since(start)) > 1.5;
        }));
        EXPECT_GT(landed, tenth * kLength / 10 - 0.5);
        EXPECT_LT(landed, tenth * kLength / 10 + 0.5 + Since(start));
    }
    // The last pixels of the track are dead, and the end of a clip that was sought to is an end like any other.
    const auto before = Time(player);
    const auto start = Clock::now();
    const auto track = player.OnScreen(player.Layout().SeekTrack());
    Screen().Click(track.Right() - 2, track.top + track.height / 2);
    EXPECT_TRUE(TakesSpeed(player, 1));
    EXPECT_LT(Time(player), before + Since(start) + 1);
    const auto stop = player.PlaceOf(Button::Stop);
    const auto enabled = Look(stop);
    ClickTrack(player, 0.98);
    EXPECT_TRUE(LosesLook(stop, enabled));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Transport, HeldButtonsMoveTheirWay)
{
    auto player = ShowPlaying({ "long.mp4" });
    const auto hold = [&](Button button) {
        const auto place = player.PlaceOf(button);
        Screen().Hold(place.left + place.width / 2, place.top + place.height / 2);
    };
    const auto first = Time(player);
    const auto start = Clock::now();
    hold(Button::FastForward);
    EXPECT_TRUE(ReachesTime(player, 12, kLength));
    EXPECT_GT(Time(player) - first, 1.5 * Since(start));
    Screen().Release();
    EXPECT_TRUE(TakesSpeed(player, 1));
    const auto last = Time(player);
    hold(Button::Rewind);
    EXPECT_TRUE(ReachesTime(player, 0, last - 3));
    Screen().Release();
    EXPECT_TRUE(TakesSpeed(player, 1));
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Transport, ButtonsAndSlidersShowWhatTheyDo)
{
    auto player = ShowWith({ "a.mp4", "b.mp4", "c.mp4" });
    const std::vector<Rect> parts = { player.OnScreen(player.Layout().TimeLabel()),
        player.OnScreen(player.Layout().SeekTrack()), player.PlaceOf(Button::Stop) };
    std::vector<QImage> idle;
    for (const auto& part : parts)
        idle.push_back(Look(part));
    player.Click(Button::Play);
    EXPECT_TRUE(player.WaitForTitle("/a.mp4"));
    for (const auto& [button, name] : { std::pair(Button::Previous, "/c.mp4"), { Button::Next, "/a.mp4" } }) {
        player.Click(button);
        EXPECT_TRUE(player.WaitForTitle(name));
    }
    EXPECT_TRUE(ReachesTime(player, 0.1, 15));
    ClickTrack(player, 0.5);
    for (std::size_t i = 0; i < parts.size(); ++i)
        EXPECT_TRUE(LosesLook(parts[i], idle[i])) << "part " << i;
    const auto video = player.Video();
    player.Click(Button::Stop);
    for (std::size_t i = 0; i < parts.size(); ++i)
        EXPECT_TRUE(TakesLook(parts[i], idle[i])) << "part " << i;
    // The dim picture of an idle stage, and nothing of the film.
    EXPECT_TRUE(WaitUntil([&] { return MeanOf(Screen().Grab(video)).value() < 40; }));

    const auto slider = player.OnScreen(player.Layout().VolumeSlider());
    const auto number = player.OnScreen(player.Layout().VolumeNumber());
    const auto full = Look(number);
    Screen().Click(slider.left + slider.width / 2, slider.top + slider.height / 2);
    EXPECT_TRUE(LosesLook(number, full));
    // On the video as on the slider.
    const auto half = Look(number);
    for (const auto& place : { slider, video }) {
        Screen().Wheel(place.left + place.width / 2, place.top + place.height / 2, 2);
        EXPECT_TRUE(LosesLook(number, half));
        Screen().Wheel(place.left + place.width / 2, place.top + place.height / 2, -2);
        EXPECT_TRUE(TakesLook(number, half));
    }
    EXPECT_CLOSES_CLEANLY(player);
}

TEST_F(Transport, KeysWorkInTheWindowAndInFullScreen)
{
    auto player = ShowWith({ "a.mp4", "b.mp4" });
    Screen().Press("Return"); // nothing is selected yet
    Screen().Press("space");
    EXPECT_TRUE(player.WaitForTitle(".mp4"));
    EXPECT_TRUE(ReachesTime(player, 0.1, 15));
    UseKeys(player);
    // The picture goes on where it was.
    const auto place = player.Place();
    const auto before = Time(player);
    const auto start = Clock::now();
    Screen().Press("f");
    EXPECT_TRUE(FillsTheScreen(player));
    EXPECT_NEAR(Time(player), before + Since(start), 1);
    UseKeys(player);
    Screen().Press("Escape");
    EXPECT_TRUE(FillsTheScreen(player, false));
    Screen().Press("ctrl+f");
    EXPECT_TRUE(FillsTheScreen(player));
    Screen().Press("f");
    EXPECT_TRUE(WaitUntil([&] { return player.Place() == place; }));
    for (const auto& [key, back, part] : { std::tuple("m", "m", player.PlaceOf(Button::SoundOn)),
             std::tuple("Down", "Up", player.OnScreen(player.Layout().VolumeNumber())) }) {
        const auto look = SettledLook(part);
        Screen().Press(key);
        EXPECT_TRUE(LosesLook(part, look));
        Screen().Press(back);
        EXPECT_TRUE(TakesLook(part, look));
    }
    // In the list the arrows select; what is selected is what Return plays and Delete removes.
    const auto content = player.OnScreen(player.Layout().Content());
    Screen().Click(content.left + 40, content.top + 40);
    Screen().Press("Down Return");
    EXPECT_TRUE(player.WaitForTitle("/b.mp4"));
    Screen().Press("Delete");
    const auto stop = player.PlaceOf(Button::Stop);
    const auto playing = Look(stop);
    Screen().Press("ctrl+s");
    EXPECT_TRUE(LosesLook(stop, playing));
    Screen().Press("space");
    EXPECT_TRUE(player.WaitForTitle("/a.mp4"));
    Screen().Press("ctrl+o");
    EXPECT_TRUE(player.WaitForDialogs(1));
    Screen().Press("Escape");
    EXPECT_TRUE(player.WaitForDialogs(0));
    Screen().Press("ctrl+x");
    EXPECT_ENDED_CLEANLY(player);
}

} // namespace
} // namespace zentaro::trial
