#include "platform/HandOver.h"
#include "platform/TextFile.h"
#include "tests/platform/WorkingFolder.h"

#include <functional>
#include <gtest/gtest.h>
#include <windows.h>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;

/// The helper program, running beside the test.
class Peer {
public:
    explicit Peer(const std::string& arguments)
    {
        std::string command = "\"" + ExecutableFolder() + "\\zentaro-helper-peer.exe\" " + arguments;
        STARTUPINFOA start{};
        start.cb = sizeof start;
        EXPECT_TRUE(
            CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &m_process));
    }
    Peer(const Peer&) = delete;
    ~Peer()
    {
        Kill();
        CloseHandle(m_process.hThread);
        CloseHandle(m_process.hProcess);
    }

    bool IsRunning() const { return WaitForSingleObject(m_process.hProcess, 0) == WAIT_TIMEOUT; }
    void Kill() const
    {
        TerminateProcess(m_process.hProcess, 9);
        WaitForSingleObject(m_process.hProcess, 20'000);
    }
    DWORD ExitCode() const
    {
        DWORD code = 0;
        GetExitCodeProcess(m_process.hProcess, &code);
        return code;
    }

private:
    PROCESS_INFORMATION m_process{};
};

/// Pumps messages until the condition holds; false when that takes too long.
bool PumpUntil(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + 60s;
    bool holds = condition();
    while (!holds && std::chrono::steady_clock::now() < end) {
        MSG message;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);
        holds = condition();
    }
    return holds;
}

class HandOverOnWindows : public testing::Test {
protected:
    std::string SendArguments(const std::string& handle, const std::string& text) const
    {
        return "send " + handle + " \"" + text + "\" \"" + Handled() + "\"";
    }
    std::string Handled() const { return folder / "handled"; }
    void MarkHandled() const { IgnoreFailure(ReplaceTextFile(Handled(), "")); }

    WorkingFolder folder;
    std::unique_ptr<HandOverEnds> ends = std::move(*HandOverEnds::Listen());
    std::vector<std::string> received;
};

TEST_F(HandOverOnWindows, a_process_that_sends_ends_only_after_the_handler)
{
    const Peer* sender = nullptr;
    ends->Deliver([&](const std::string& text) {
        EXPECT_TRUE(sender->IsRunning());
        received.push_back(text);
        MarkHandled();
    });
    const std::string text = "C:\\My Clips\\Ä 日本.avi *Add";
    for (int i = 0; i < 2; ++i) { // the same text twice is two texts
        const Peer peer(SendArguments(ends->CommandHandle(), text));
        sender = &peer;
        ASSERT_TRUE(PumpUntil([&] { return !peer.IsRunning(); }));
        EXPECT_EQ(peer.ExitCode(), 0U);
        DeleteFileA(Handled().c_str());
    }
    EXPECT_EQ(received, (std::vector{ text, text }));
}

TEST_F(HandOverOnWindows, a_text_that_comes_while_the_handler_pumps_nests_in_it)
{
    std::string order;
    std::unique_ptr<Peer> second;
    ends->Deliver([&](const std::string& text) {
        order += "<" + text;
        MarkHandled();
        if (text == "1") {
            second = std::make_unique<Peer>(SendArguments(ends->CommandHandle(), "2"));
            EXPECT_TRUE(PumpUntil([&] { return !second->IsRunning(); }));
        }
        order += ">";
    });
    const Peer first(SendArguments(ends->CommandHandle(), "1"));
    ASSERT_TRUE(PumpUntil([&] { return !first.IsRunning(); }));
    EXPECT_EQ(order, "<1<2>>");
    EXPECT_EQ(first.ExitCode(), 0U);
    EXPECT_EQ(second->ExitCode(), 0U);
}

TEST_F(HandOverOnWindows, early_and_long_texts_arrive_and_the_probe_has_no_handler)
{
    const std::string text = "C:\\" + std::string(1'000'000, 'x') + ".avi";
    EXPECT_TRUE(SendHandOverText(ends->CommandHandle(), text));
    EXPECT_TRUE(SendHandOverText(ends->ProbeHandle(), "Hello"));
    ends->Deliver([this](std::string arrived) { received.push_back(std::move(arrived)); });
    EXPECT_TRUE(SendHandOverText(ends->CommandHandle(), ""));
    EXPECT_TRUE(SendHandOverText(ends->CommandHandle(), "b.avi"));
    EXPECT_EQ(received, (std::vector<std::string>{ text, "b.avi" }));
}

TEST_F(HandOverOnWindows, the_handler_may_end_the_player)
{
    ends->Deliver([this](const std::string&) { ends.reset(); });
    const auto handle = ends->CommandHandle();
    SendHandOverText(handle, "a.avi");
    EXPECT_FALSE(ends);
    EXPECT_FALSE(IsHandOverAlive(handle));
}

TEST_F(HandOverOnWindows, a_killed_receiver_leaves_stale_handles)
{
    const Peer receiver("listen \"" + folder / "handles" + "\"");
    ASSERT_TRUE(PumpUntil([&] { return PathExists(folder / "handles"); }));
    const auto handles = ReadTextFile(folder / "handles", 100).value();
    const auto command = handles.substr(0, handles.find(' '));
    const auto probe = handles.substr(handles.find(' ') + 1);
    EXPECT_TRUE(IsHandOverAlive(command) && IsHandOverAlive(probe));
    EXPECT_TRUE(SendHandOverText(probe, "Hello"));
    receiver.Kill();
    EXPECT_FALSE(IsHandOverAlive(command) || IsHandOverAlive(probe));
    EXPECT_FALSE(SendHandOverText(probe, "Hello"));
    for (const auto* handle : { "", "-1", "0", "x" })
        EXPECT_FALSE(IsHandOverAlive(handle) || SendHandOverText(handle, "Hello")) << handle;
}

TEST_F(HandOverOnWindows, the_lock_has_one_holder_and_falls_with_its_process)
{
    const Peer holder("lock \"" + folder / "taken" + "\"");
    ASSERT_TRUE(PumpUntil([&] { return PathExists(folder / "taken"); }));
    EXPECT_FALSE(HandOverLock::Take(50ms));
    holder.Kill();
    EXPECT_TRUE(HandOverLock::Take(1s));
}

} // namespace
} // namespace zentaro::platform
