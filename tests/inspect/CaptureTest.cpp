#include "inspect/ModPipes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <sstream>
#include <thread>

using namespace zentaro;
using namespace std::chrono_literals;

namespace {

/// Ends after a number of waits; gives a piece of text for each read, then nothing, then the end of the stream.
class ScriptedChild final : public platform::ChildProcess {
public:
    bool HasEnded(std::chrono::milliseconds) override { return (terminated && !immortal) || waits-- <= 0; }
    void Terminate() override { terminated = true; }
    void Pause() override { }
    std::optional<std::size_t> Read(std::span<char> buffer) override
    {
        if (output.empty())
            return streamStaysOpen ? std::optional<std::size_t>(0) : std::nullopt;
        const auto text = output.front();
        if (!endless)
            output.pop_front();
        return static_cast<std::size_t>(std::copy(text.begin(), text.end(), buffer.begin()) - buffer.begin());
    }
    void ApplyPriorityClass(std::uint32_t priorityClass) override { classes.push_back(priorityClass); }

    std::deque<std::string> output;
    int waits = 1;
    bool streamStaysOpen = false;
    bool endless = false;
    bool terminated = false;
    bool immortal = false;
    std::vector<std::uint32_t> classes;
};

class CaptureTest : public testing::Test {
protected:
    /// What the log holds; `pumped` runs with the number of every pump.
    std::string Captured(const std::function<void(int)>& pumped, std::int32_t mode = 0)
    {
        int pumps = 0;
        m_context.pumpMessages = [&] { pumped(++pumps); };
        std::ostringstream log;
        m_hasEnded = Capture(m_child, log, mode, m_context, m_limit);
        return log.str();
    }

    RunLimit m_limit;
    bool m_hasEnded = false;
    ScriptedChild m_child;
    ToolContext m_context;
};

} // namespace

TEST_F(CaptureTest, what_is_left_in_the_stream_after_the_end_is_taken_too_and_a_pending_priority_applied_once)
{
    m_child.output = { "a\r", "\n", "", "b", "c", "d" };
    m_child.waits = 3;
    const auto log = Captured([&](int pump) {
        if (pump == 2)
            m_context.PendingPriorityClass = platform::kIdlePriority;
    });
    EXPECT_EQ(log, "a\r\nbcd");
    EXPECT_EQ(m_child.classes, std::vector<std::uint32_t>{ platform::kIdlePriority });
    EXPECT_EQ(m_context.PendingPriorityClass, kNothingPending);
}

TEST_F(CaptureTest, a_cancel_ends_the_child_and_keeps_what_it_had_printed)
{
    m_child.output = { "1", "2", "3", "4" };
    m_child.waits = 1000;
    m_child.streamStaysOpen = true; // a process that the child has left behind holds it
    EXPECT_EQ(Captured([&](int pump) { m_context.CancelExecute = pump == 2; }), "1234");
    EXPECT_TRUE(m_child.terminated && m_hasEnded);
}

TEST_F(CaptureTest, a_limit_ends_who_is_silent_or_goes_on_for_too_long_and_waits_for_nobody)
{
    m_child.waits = 1'000'000'000;
    m_child.streamStaysOpen = true;
    m_child.output.assign(20, "x");
    m_limit.silence = 100ms;
    int pumps = 0;
    const auto printed = Captured([&](int pump) {
        pumps = pump;
        std::this_thread::sleep_for(10ms);
    });
    EXPECT_EQ(printed.size(), 20U);
    EXPECT_GE(pumps, 22); // each output has counted
    EXPECT_TRUE(m_child.terminated && !m_hasEnded);

    m_child.output = { "x" };
    m_child.endless = true;
    m_child.immortal = true; // in the middle of a read from a dead drive
    m_limit.total = 100ms;
    EXPECT_FALSE(Captured([](int) {}).empty());
    EXPECT_FALSE(m_hasEnded);
    m_child.waits = 0; // has ended, and left others that go on printing
    Captured([](int) {});
    EXPECT_FALSE(m_hasEnded);
}

TEST_F(CaptureTest, a_stream_that_never_ends_does_not_outlive_a_cancel)
{
    m_child.output = { std::string(4096, 'y') };
    m_child.endless = true;
    m_child.waits = 0; // the child has ended, others go on printing
    EXPECT_LT(Captured([&](int pump) { m_context.CancelExecute = pump > 5; }).size(), 2u << 20);
    EXPECT_TRUE(m_child.terminated);
}

TEST_F(CaptureTest, the_conversion_sees_every_chunk_in_modes_1_to_3_only)
{
    for (const std::int32_t mode : { 0, 1, 3, 4 }) {
        m_child.output = { "a", "b" };
        std::string seen;
        m_context.convertOutput = [&](std::int32_t given, std::string_view chunk) {
            seen += std::to_string(given) + std::string(chunk);
        };
        EXPECT_EQ(Captured([](int) {}, mode), "ab");
        EXPECT_EQ(seen, mode == 1 ? "1a1b" : mode == 3 ? "3a3b" : "");
    }
}

TEST(ModPipes, priorities_become_flags_and_a_parent_is_the_text_before_the_last_separator)
{
    const std::uint32_t flags[] = { 128, 0xFFFF8000, 32, 16384, 64 };
    for (std::int32_t priority = 0; priority < 5; ++priority)
        EXPECT_EQ(CreationFlags(priority), flags[priority]);
    EXPECT_EQ(CreationFlags(-1), 32u);
    EXPECT_EQ(CreationFlags(5), 32u);
    EXPECT_EQ(ParentFolder("C:\\Program Files\\a.exe", '\\'), "C:\\Program Files");
    EXPECT_EQ(ParentFolder("/opt/zen\\taro/ffmpeg", '/'), "/opt/zen\\taro");
    EXPECT_EQ(ParentFolder("c:tool.exe", '\\'), "c:tool.exe");
}
