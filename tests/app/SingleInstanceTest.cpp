#include "tests/app/PlayerFixture.h"

using namespace zentaro;
using Outcome = platform::HandOverOutcome;

namespace {

constexpr const char* kCommandKey = "Software\\Quorvane Zentaro\\Setting:txtHwnd";
constexpr const char* kProbeKey = "Software\\Quorvane Zentaro\\Setting:txtHwnd1";

/// A start beside another player that lives.
class SingleInstanceTest : public PlayerTest {
protected:
    SingleInstanceTest()
    {
        world.store.values = { { kCommandKey, "11" }, { kProbeKey, "12" } };
        world.alive = "12";
    }
    bool StartWith(const std::deque<Outcome>& outcomes, const std::string& commandLine)
    {
        world.outcomes = outcomes;
        Start(commandLine);
        return isPlayer;
    }
};

} // namespace

TEST_F(SingleInstanceTest, a_text_that_was_opened_or_taken_over_ends_the_start)
{
    for (const auto outcome : { Outcome::Opened, Outcome::TakenOver })
        EXPECT_FALSE(StartWith({ outcome }, "/a.avi"));
    EXPECT_FALSE(StartWith({}, "/a.avi *Add"));
    EXPECT_FALSE(StartWith({}, ""));
    EXPECT_FALSE(StartWith({}, "/no media.txt"));
    EXPECT_EQ(world.sent, (std::vector<std::string>{ "11:/a.avi", "11:/a.avi", "11:/a.avi *Add", "12:Hello" }));
    EXPECT_TRUE(world.told.empty());
    EXPECT_EQ(world.store.values[kCommandKey], "11");
    EXPECT_EQ(world.window.log.str(), "");
}

TEST_F(SingleInstanceTest, one_that_hears_nothing_is_gone_or_not_wanted_leaves_the_start_to_play_by_itself)
{
    EXPECT_TRUE(StartWith({ Outcome::Silent, Outcome::Opened }, "/a.avi"));
    EXPECT_EQ(world.sent, std::vector<std::string>{ "11:/a.avi" }); // the silent one is not called again
    EXPECT_EQ(world.told.size(), 1u);
    EXPECT_EQ(LastPlayed(), "/a.avi");
    EXPECT_EQ(world.store.values[kCommandKey] + " " + world.store.values[kProbeKey], "4711 4712");
    world.alive = "4712";
    EXPECT_TRUE(StartWith({ Outcome::Silent }, ""));
    world.alive = "";
    EXPECT_TRUE(StartWith({}, "/a.avi"));
    world.alive = "4712";
    Store([](PlayerSettings& settings) { settings.UseNewPlayer = -1; });
    EXPECT_TRUE(StartWith({}, "/a.avi"));
    EXPECT_EQ(world.sent.size(), 2u);
}

TEST_F(SingleInstanceTest, a_player_that_came_meanwhile_gets_the_text)
{
    world.outcomes = { Outcome::Silent, Outcome::Opened };
    world.onSend = [this] { world.store.values[kCommandKey] = "21"; };
    Start("/a.avi");
    EXPECT_FALSE(isPlayer);
    EXPECT_EQ(world.sent, (std::vector<std::string>{ "11:/a.avi", "21:/a.avi" }));
}
