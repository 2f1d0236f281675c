#include "tests/platform/HandOverFixture.h"

#include <filesystem>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;
using enum HandOverOutcome;

std::string g_program;

/// What this program does as another process:
/// listen FILE: writes both handles, then takes texts over and opens none
/// lock FILE:   takes the lock, then as above
/// folder FILE: writes the name of its working folder, and goes on
int Peer(const std::vector<std::string>& arguments)
{
    if (arguments[0] == "folder") {
        IgnoreFailure(ReplaceTextFile(arguments[1], MakeWorkingFolder()));
        return RunUntil([] { return false; }) ? 0 : 1;
    }
    const auto lock = arguments[0] == "lock" ? HandOverLock::Take(5s) : nullptr;
    const auto ends = HandOverEnds::Listen();
    (*ends)->Deliver([](const std::string&, const HandOverDone&) {});
    IgnoreFailure(ReplaceTextFile(arguments[1], (*ends)->CommandHandle() + " " + (*ends)->ProbeHandle()));
    return RunUntil([] { return false; }) ? 0 : 1;
}

} // namespace

const std::string& OwnProgram()
{
    return g_program;
}

std::unique_ptr<StartedProcess> StartPeer(std::vector<std::string> arguments, const std::string& program)
{
    arguments.insert(arguments.begin(), "peer");
    return ShellStart({ program.empty() ? OwnProgram() : program, std::move(arguments), "", 0, false });
}

TEST_F(HandOverTest, paths_to_be_added_have_an_end_of_their_own)
{
    Listen();
    opensAtOnce = true;
    ends->Deliver([](const std::string&, const HandOverDone&) { ADD_FAILURE() << "the wrong end"; });
    ends->DeliverAdded(Keep());
    auto sending = Send(ends->AddHandle(), "/a *Add.avi");
    EXPECT_EQ(OutcomeOf(sending), Opened);
    EXPECT_EQ(received, std::vector<std::string>{ "/a *Add.avi" });
    const auto forStarts = HandOverLock::Take(0ms);
    const auto forAdding = HandOverLock::Take(0ms, "add");
    EXPECT_TRUE(forStarts && forAdding);
    // For the thread that holds it a lock may be free.
    EXPECT_FALSE(std::async(std::launch::async, [] { return HandOverLock::Take(0ms, "add"); }).get());
}

TEST_F(HandOverTest, a_later_text_is_opened_while_an_earlier_one_waits)
{
    Listen();
    const auto handle = ends->CommandHandle();
    Sending first;
    std::future<bool> later;
    onReceived = [&] {
        if (received.size() == 1)
            later = std::async(std::launch::async, [&] {
                const bool isOpened = SendHandOverText(handle, "2") == Opened && !IsDone(first);
                return isOpened && SendHandOverText(handle, "3") == Opened;
            });
        if (received.size() > 1)
            tokens.back()();
        if (received.size() == 2)
            tokens.back()(); // which changes nothing more
        if (received.size() == 3)
            tokens.front()();
    };
    first = Send(handle, "1");
    EXPECT_EQ(OutcomeOf(first), Opened);
    EXPECT_TRUE(later.get());
    EXPECT_EQ(received, (std::vector<std::string>{ "1", "2", "3" }));
}

TEST_F(HandOverTest, a_text_that_is_not_opened_in_time_counts_as_taken_over)
{
    Listen({ 2min, 100ms });
    const auto start = std::chrono::steady_clock::now();
    auto sending = Send(ends->CommandHandle(), "a.avi");
    EXPECT_EQ(OutcomeOf(sending), TakenOver);
    const auto receiver = StartPeer({ "listen", folder / "handles" });
    auto impatient = Send(HandlesIn(folder / "handles").first, "b.avi", { 2min, 10ms });
    EXPECT_EQ(OutcomeOf(impatient), TakenOver);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 8s);
    tokens.at(0)();
    EXPECT_EQ(received, std::vector<std::string>{ "a.avi" });
}

TEST_F(HandOverTest, long_texts_arrive_the_probe_has_no_handler_and_what_is_too_long_is_not_sent)
{
    Listen();
    opensAtOnce = true;
    const std::string text = "/\xFF\n\"" + std::string(1'000'000, 'x') + ".avi";
    auto probe = Send(ends->ProbeHandle(), "Hello");
    EXPECT_EQ(OutcomeOf(probe), Opened);
    auto longText = Send(ends->CommandHandle(), text + std::string("\0cut", 4));
    EXPECT_EQ(OutcomeOf(longText), Opened);
    EXPECT_EQ(received, (std::vector<std::string>{ text }));
    EXPECT_EQ(SendHandOverText(ends->CommandHandle(), std::string(16 * 1024 * 1024 + 1, 'a')), Silent);
}

TEST_F(HandOverTest, a_player_that_does_not_run_is_given_up_and_opens_nothing_later)
{
    // As when it is stopped: nobody handles its events.
    Listen();
    const auto start = std::chrono::steady_clock::now();
    for (const auto& handle : { ends->CommandHandle(), ends->ProbeHandle() })
        EXPECT_EQ(Send(handle, "late.avi", { 200ms, 2min }).get(), Silent);
    EXPECT_EQ(Send(ends->CommandHandle(), std::string(4'000'000, 'x'), { 200ms, 2min }).get(), Silent);
    EXPECT_GE(std::chrono::steady_clock::now() - start, 600ms);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 20s);
    EXPECT_TRUE(IsHandOverAlive(ends->CommandHandle()) && IsHandOverAlive(ends->ProbeHandle()));
    auto next = Send(ends->CommandHandle(), "next.avi");
    opensAtOnce = true;
    EXPECT_EQ(OutcomeOf(next), Opened);
    EXPECT_EQ(received, std::vector<std::string>{ "next.avi" });
}

TEST_F(HandOverTest, the_handler_may_end_the_player_and_drops_all_who_wait)
{
    Listen();
    const auto handle = ends->CommandHandle();
    Sending last;
    ends->Deliver([&](const std::string& text, HandOverDone done) {
        tokens.push_back(std::move(done));
        if (text == "last.avi")
            ends.reset();
        else
            last = Send(handle, "last.avi");
    });
    auto waiting = Send(handle, "waiting.avi");
    EXPECT_EQ(OutcomeOf(waiting), Silent);
    EXPECT_EQ(OutcomeOf(last), Silent);
    for (const auto& token : tokens)
        token();
    EXPECT_EQ(tokens.size(), 2U);
    EXPECT_FALSE(IsHandOverAlive(handle));
}

TEST_F(HandOverTest, a_killed_player_is_given_up_at_once_and_its_lock_falls)
{
    const auto receiver = StartPeer({ "lock", folder / "handles" });
    const auto [command, probe] = HandlesIn(folder / "handles");
    auto hello = Send(probe, "Hello");
    EXPECT_EQ(OutcomeOf(hello), Opened);
    EXPECT_FALSE(HandOverLock::Take(50ms));
    auto sending = Send(command, "a.avi");
    EXPECT_EQ(sending.wait_for(200ms), std::future_status::timeout);
    receiver->Terminate();
    EXPECT_EQ(OutcomeOf(sending), Silent);
    EXPECT_TRUE(receiver->HasEnded(10s));
    for (const auto& handle :
        { command, probe, std::string(), std::string("-1"), std::string("0"), std::string("x") }) {
        EXPECT_FALSE(IsHandOverAlive(handle)) << handle;
        EXPECT_EQ(SendHandOverText(handle, "Hello"), Silent) << handle;
    }
    EXPECT_TRUE(HandOverLock::Take(1s));
    EXPECT_TRUE(HandOverLock::Take(0ms));
}

} // namespace zentaro::platform

int main(int count, char** arguments)
{
    zentaro::platform::g_program = std::filesystem::absolute(arguments[0]).string();
    zentaro::platform::PrepareEventLoop();
    if (count > 3 && std::string(arguments[1]) == "peer")
        return zentaro::platform::Peer({ arguments + 2, arguments + count });
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
