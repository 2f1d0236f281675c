#include "playback/AfterPlay.h"

#include <gmock/gmock.h>

#include <algorithm>

using namespace zentaro;
using testing::ElementsAre;

namespace {

/// Notes what would have been done to the computer, and refuses it.
class RecordedPower : public platform::Power {
public:
    void EnableShutdownPrivilege() override { done.push_back("privilege"); }
    Result<void> Restart() override { return Refuse("restart"); }
    Result<void> PowerOff() override { return Refuse("power off"); }

    std::vector<std::string> done;

private:
    Result<void> Refuse(const char* what)
    {
        done.emplace_back(what);
        return Error{ 5, "not allowed" };
    }
};

std::vector<std::string> DoneFor(const AfterPlay& afterPlay)
{
    RecordedPower power;
    afterPlay.DoAfterFinishPlay(power, [&] { power.done.emplace_back("close"); });
    return power.done;
}

std::size_t IndexOf(std::string_view key)
{
    return static_cast<std::size_t>(
        std::find(kAfterPlayKeys.begin(), kAfterPlayKeys.end(), key) - kAfterPlayKeys.begin());
}

AfterPlay Chosen(std::string_view key)
{
    AfterPlay afterPlay;
    afterPlay.DoAfter(static_cast<std::int16_t>(IndexOf(key)));
    return afterPlay;
}

} // namespace

TEST(AfterPlay, a_fresh_start_marks_Donothing_and_does_nothing)
{
    EXPECT_EQ(AfterPlay().MarkedItem(), IndexOf("Donothing"));
    EXPECT_EQ(AfterPlay().ClassicMarkedItem(), IndexOf("Donothing"));
    EXPECT_TRUE(DoneFor(AfterPlay()).empty());
}

TEST(AfterPlay, each_choice_does_what_the_next_one_is_named_for)
{
    EXPECT_THAT(DoneFor(Chosen("ExitZentaro")), ElementsAre("restart"));
    EXPECT_THAT(DoneFor(Chosen("RestartTheComputer")), ElementsAre("power off"));
    EXPECT_THAT(DoneFor(Chosen("ShutdownTheComputer")), ElementsAre("close"));
    EXPECT_THAT(DoneFor(Chosen("Donothing")), ElementsAre());
}

TEST(AfterPlay, a_refused_request_is_made_again_the_next_time)
{
    const auto afterPlay = Chosen("ExitZentaro");
    RecordedPower power;
    afterPlay.DoAfterFinishPlay(power, [] {});
    afterPlay.DoAfterFinishPlay(power, [] {});
    EXPECT_THAT(power.done, ElementsAre("restart", "restart"));
    EXPECT_EQ(afterPlay.AfterPlayAction(), 1);
}

TEST(AfterPlay, a_value_without_an_item_is_stored_and_leaves_the_marks)
{
    auto afterPlay = Chosen("RestartTheComputer");
    for (const auto value : { std::int16_t{ 4 }, std::int16_t{ -1 } }) {
        afterPlay.DoAfter(value);
        EXPECT_EQ(afterPlay.AfterPlayAction(), value);
        EXPECT_EQ(afterPlay.MarkedItem(), IndexOf("RestartTheComputer"));
        EXPECT_FALSE(afterPlay.ClassicMarkedItem());
        EXPECT_TRUE(DoneFor(afterPlay).empty());
    }
}
