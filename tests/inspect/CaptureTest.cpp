#include "inspect/ModPipes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <sstream>

using namespace zentaro;

namespace {

/// Ends after a number of waits; gives a piece of text for each read, then nothing, then the end of the stream.
class ScriptedChild final : public platform::ChildProcess {
public:
    bool HasEnded(std::chrono::milliseconds) override { return terminated || waits-- <= 0; }
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
    int waits = 3;
    bool streamStaysOpen = false;
    bool endless = false;
    bool terminated = false;
    std::vector<std::uint32_t> classes;
};

} // namespace

TEST(Capture, what_is_left_in_the_stream_after_the_end_is_taken_too)
{
    ScriptedChild child;
    child.output = { "a\r", "\n", "", "b", "c", "d" };
    child.waits = 1;
    ToolContext context;
    std::ostringstream log;
    Capture(child, log, 0, context);
    EXPECT_EQ(log.str(), "a\r\nbcd");
}

TEST(Capture, a_cancel_ends_the_child_and_keeps_what_it_had_printed)
{
    ScriptedChild child;
    child.output = { "1", "2", "3", "4" };
    child.waits = 1000;
    child.streamStaysOpen = true; // a process that the child has left behind holds it
    ToolContext context;
    int pumps = 0;
    context.pumpMessages = [&] { context.CancelExecute = ++pumps == 2; };
    std::ostringstream log;
    Capture(child, log, 0, context);
    EXPECT_TRUE(child.terminated);
    EXPECT_EQ(log.str(), "1234");
}

TEST(Capture, a_stream_that_never_ends_does_not_outlive_a_cancel)
{
    ScriptedChild child;
    child.output = { std::string(4096, 'y') };
    child.endless = true;
    child.waits = 0;
    ToolContext context;
    int pumps = 0;
    context.pumpMessages = [&] { context.CancelExecute = ++pumps > 5; }; // in the drain: the child has ended
    std::ostringstream log;
    Capture(child, log, 0, context);
    EXPECT_TRUE(child.terminated);
    EXPECT_LT(log.str().size(), 2u << 20);
}

TEST(Capture, a_pending_priority_is_applied_once)
{
    ScriptedChild child;
    ToolContext context;
    int pumps = 0;
    context.pumpMessages = [&] {
        if (++pumps == 2)
            context.PendingPriorityClass = platform::kIdlePriority;
    };
    std::ostringstream log;
    Capture(child, log, 0, context);
    EXPECT_EQ(child.classes, std::vector<std::uint32_t>{ platform::kIdlePriority });
    EXPECT_EQ(context.PendingPriorityClass, kNothingPending);
}

TEST(Capture, the_conversion_sees_every_chunk_in_modes_1_to_3_only)
{
    for (const std::int32_t mode : { 0, 1, 3, 4 }) {
        ScriptedChild child;
        child.output = { "a", "b" };
        child.waits = 0;
        ToolContext context;
        std::string seen;
        context.convertOutput = [&](std::int32_t given, std::string_view chunk) {
            seen += std::to_string(given) + std::string(chunk);
        };
        std::ostringstream log;
        Capture(child, log, mode, context);
        EXPECT_EQ(log.str(), "ab");
        EXPECT_EQ(seen, mode == 1 ? "1a1b" : mode == 3 ? "3a3b" : "");
    }
}

TEST(Capture, a_priority_number_becomes_creation_flags)
{
    const std::uint32_t flags[] = { 128, 0xFFFF8000, 32, 16384, 64 };
    for (std::int32_t priority = 0; priority < 5; ++priority)
        EXPECT_EQ(CreationFlags(priority), flags[priority]);
    EXPECT_EQ(CreationFlags(-1), 32u);
    EXPECT_EQ(CreationFlags(5), 32u);
}

TEST(ParentFolder, is_the_text_before_the_last_separator)
{
    EXPECT_EQ(ParentFolder("C:\\Program Files\\a.exe", '\\'), "C:\\Program Files");
    EXPECT_EQ(ParentFolder("/opt/zen\\taro/ffmpeg", '/'), "/opt/zen\\taro");
    EXPECT_EQ(ParentFolder("c:tool.exe", '\\'), "c:tool.exe");
    EXPECT_EQ(ParentFolder("/opt/", '/'), "/opt");
}
