#include "platform/Files.h"
#include "platform/HandOver.h"
#include "tests/platform/WorkingFolder.h"

#include <functional>
#include <future>
#include <gtest/gtest.h>
#include <windows.h>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;
using enum HandOverOutcome;

/// What this program does when a test starts it once more, beside itself:
/// send HANDLE TEXT: ends with the outcome
/// listen FILE:      writes both handles, then takes texts over and opens none
/// hang FILE:        the same, but stops as soon as it has written
/// lock FILE:        takes the lock, writes the file, keeps the lock until it is killed
int Peer(const std::string& mode, const std::string& first, const std::string& second)
{
    if (mode == "send")
        return static_cast<int>(SendHandOverText(first, second));
    const auto lock = mode == "lock" ? HandOverLock::Take(5s) : nullptr;
    const auto ends = HandOverEnds::Listen();
    (*ends)->Deliver([](const std::string&, const HandOverDone&) {});
    IgnoreFailure(ReplaceTextFile(first, (*ends)->CommandHandle() + " " + (*ends)->ProbeHandle()));
    if (mode != "listen")
        Sleep(INFINITE);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
    return 0;
}

std::string OwnProgram()
{
    std::string path(32768, '\0');
    path.resize(GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

/// This program, or a copy of it, running beside the test.
class PeerProcess {
public:
    explicit PeerProcess(const std::string& arguments, const std::string& program = OwnProgram())
    {
        std::string command = "\"" + program + "\" peer " + arguments;
        STARTUPINFOA start{};
        start.cb = sizeof start;
        EXPECT_TRUE(
            CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &m_process));
    }
    PeerProcess(const PeerProcess&) = delete;
    ~PeerProcess()
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
    HandOverOutcome Outcome() const
    {
        DWORD code = 0;
        GetExitCodeProcess(m_process.hProcess, &code);
        return static_cast<HandOverOutcome>(code);
    }

private:
    PROCESS_INFORMATION m_process{};
};

/// Handles messages until the condition holds; false when that takes too long.
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

using Sending = std::future<HandOverOutcome>;

Sending SendBeside(const std::string& handle, const std::string& text)
{
    return std::async(std::launch::async, [=] { return SendHandOverTextWithin(handle, text, { 30s, 30s }); });
}

bool IsDone(const Sending& sending)
{
    return sending.wait_for(0s) == std::future_status::ready;
}

HandOverOutcome OutcomeOf(Sending& sending)
{
    EXPECT_TRUE(PumpUntil([&] { return IsDone(sending); }));
    return sending.get();
}

/// Called every 10 ms by whichever loop handles this thread's messages, also the one within the window procedure.
std::function<void()> meanwhile;
void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
{
    if (meanwhile)
        meanwhile();
}

class HandOverOnWindows : public testing::Test {
protected:
    ~HandOverOnWindows() override
    {
        meanwhile = nullptr;
        KillTimer(nullptr, timer);
    }

    /// Texts come to `received`, their tokens to `tokens`.
    void Listen(HandOverLimits limits = { 30s, 30s })
    {
        ends = std::move(*HandOverEnds::ListenWithin(limits));
        ends->Deliver([this](std::string text, HandOverDone done) {
            received.push_back(std::move(text));
            tokens.push_back(std::move(done));
        });
    }
    /// The two handles that a peer has written.
    std::pair<std::string, std::string> HandlesIn(const std::string& file) const
    {
        EXPECT_TRUE(PumpUntil([&] { return PathExists(file); }));
        const auto handles = ReadTextFile(file, 100).value();
        return { handles.substr(0, handles.find(' ')), handles.substr(handles.find(' ') + 1) };
    }

    const UINT_PTR timer = SetTimer(nullptr, 0, 10, &OnTimer);
    WorkingFolder folder;
    std::unique_ptr<HandOverEnds> ends;
    std::vector<std::string> received;
    std::vector<HandOverDone> tokens;
};

TEST_F(HandOverOnWindows, a_process_that_sends_ends_when_its_text_is_opened)
{
    Listen();
    const std::string text = "C:\\My Clips\\Ä 日本.avi *Add";
    for (std::size_t i = 0; i < 2; ++i) { // the same text twice is two texts
        const PeerProcess sender("send " + ends->CommandHandle() + " \"" + text + "\"");
        meanwhile = [&] {
            if (received.size() == i + 1) {
                EXPECT_TRUE(tokens.size() == i + 1 && sender.IsRunning());
                tokens[i]();
                meanwhile = nullptr;
            }
        };
        ASSERT_TRUE(PumpUntil([&] { return !sender.IsRunning(); }));
        EXPECT_EQ(sender.Outcome(), Opened);
    }
    EXPECT_EQ(received, (std::vector{ text, text }));
}

TEST_F(HandOverOnWindows, a_later_text_is_opened_while_an_earlier_one_waits)
{
    Listen();
    Sending second;
    auto first = SendBeside(ends->CommandHandle(), "1");
    meanwhile = [&] {
        if (received.size() == 1 && !second.valid())
            second = SendBeside(ends->CommandHandle(), "2");
        if (received.size() == 2 && !IsDone(second)) {
            tokens[1]();
            tokens[1]();
        } else if (received.size() == 2) {
            EXPECT_FALSE(IsDone(first));
            tokens[0]();
            meanwhile = nullptr;
        }
    };
    EXPECT_EQ(OutcomeOf(first), Opened);
    EXPECT_EQ(second.get(), Opened);
    EXPECT_EQ(received, (std::vector<std::string>{ "1", "2" }));
}

TEST_F(HandOverOnWindows, a_text_that_is_not_opened_in_time_counts_as_taken_over)
{
    Listen({ 30s, 100ms });
    auto sending = SendBeside(ends->CommandHandle(), "a.avi");
    EXPECT_EQ(OutcomeOf(sending), TakenOver);
    tokens.at(0)();
    const PeerProcess receiver("listen \"" + folder / "handles" + "\"");
    EXPECT_EQ(SendHandOverTextWithin(HandlesIn(folder / "handles").first, "a.avi", { 30s, 10ms }), TakenOver);
}

TEST_F(HandOverOnWindows, early_and_long_texts_arrive_and_the_probe_has_no_handler)
{
    const std::string text = "C:\\" + std::string(1'000'000, 'x') + ".avi";
    auto early = std::move(*HandOverEnds::ListenWithin({ 30s, 30s }));
    auto sending = SendBeside(early->CommandHandle(), text);
    meanwhile = [&] {
        early->Deliver([this](std::string arrived, const HandOverDone& done) {
            received.push_back(std::move(arrived));
            done();
        });
        meanwhile = nullptr;
    };
    EXPECT_EQ(OutcomeOf(sending), Opened);
    for (const auto* next : { "", "b.avi" })
        EXPECT_EQ(SendHandOverText(early->CommandHandle(), next), Opened) << next;
    EXPECT_EQ(SendHandOverText(early->ProbeHandle(), "Hello"), Opened);
    EXPECT_EQ(received, (std::vector<std::string>{ text, "b.avi" }));
}

TEST_F(HandOverOnWindows, the_handler_may_end_the_player_and_drops_all_who_wait)
{
    Listen();
    const auto handle = ends->CommandHandle();
    Sending last;
    auto waiting = SendBeside(handle, "waiting.avi");
    meanwhile = [&] {
        if (received.size() == 1 && !last.valid())
            last = SendBeside(handle, "last.avi");
        if (received.size() == 2)
            ends.reset();
    };
    EXPECT_EQ(OutcomeOf(waiting), Silent);
    EXPECT_EQ(OutcomeOf(last), Silent);
    for (const auto& token : tokens)
        token();
    EXPECT_FALSE(IsHandOverAlive(handle));
    meanwhile = nullptr;
    Listen();
    ends->Deliver([this](const std::string&, const HandOverDone&) { ends.reset(); });
    EXPECT_EQ(SendHandOverText(ends->CommandHandle(), "a.avi"), Silent);
    EXPECT_FALSE(ends);
}

TEST_F(HandOverOnWindows, a_stopped_or_killed_player_is_given_up)
{
    const PeerProcess hung("hang \"" + folder / "hung" + "\"");
    const auto [hungCommand, hungProbe] = HandlesIn(folder / "hung");
    EXPECT_TRUE(IsHandOverAlive(hungCommand) && IsHandOverAlive(hungProbe));
    EXPECT_EQ(SendHandOverTextWithin(hungCommand, "a.avi", { 200ms, 30s }), Silent);
    EXPECT_EQ(SendHandOverTextWithin(hungProbe, "Hello", { 200ms, 30s }), Silent);

    const PeerProcess receiver("listen \"" + folder / "handles" + "\"");
    const auto [command, probe] = HandlesIn(folder / "handles");
    EXPECT_EQ(SendHandOverText(probe, "Hello"), Opened);
    auto sending = SendBeside(command, "a.avi");
    EXPECT_EQ(sending.wait_for(200ms), std::future_status::timeout);
    receiver.Kill();
    EXPECT_EQ(sending.get(), Silent);
    for (const auto& handle :
        { command, probe, std::string(), std::string("-1"), std::string("0"), std::string("x") }) {
        EXPECT_FALSE(IsHandOverAlive(handle)) << handle;
        EXPECT_EQ(SendHandOverText(handle, "Hello"), Silent) << handle;
    }
}

TEST_F(HandOverOnWindows, windows_of_others_are_no_players_and_keep_their_titles)
{
    const auto module = GetModuleHandleA(nullptr);
    const HWND inWindow = CreateWindowExA(0, "EDIT", "mine", 0, 0, 0, 9, 9, nullptr, nullptr, module, nullptr);
    const HWND label = CreateWindowExA(0, "STATIC", "mine", 0, 0, 0, 9, 9, HWND_MESSAGE, nullptr, module, nullptr);
    const auto other = folder / "other.exe";
    ASSERT_TRUE(CopyFileA(OwnProgram().c_str(), other.c_str(), FALSE));
    const PeerProcess program("listen \"" + folder / "handles" + "\"", other);
    const auto ofOther = HandlesIn(folder / "handles").second;
    const auto box = reinterpret_cast<HWND>(static_cast<std::uintptr_t>(std::stoull(ofOther)));
    SendMessageA(box, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("mine"));
    for (const HWND window : { inWindow, label, box }) {
        const auto handle = std::to_string(reinterpret_cast<std::uintptr_t>(window));
        EXPECT_FALSE(IsHandOverAlive(handle));
        EXPECT_EQ(SendHandOverText(handle, "Hello"), Silent);
        char title[8] = "";
        SendMessageA(window, WM_GETTEXT, sizeof title, reinterpret_cast<LPARAM>(title));
        EXPECT_STREQ(title, "mine");
    }
    DestroyWindow(inWindow);
    DestroyWindow(label);
}

TEST_F(HandOverOnWindows, the_lock_has_one_holder_and_falls_with_its_process)
{
    const PeerProcess holder("lock \"" + folder / "taken" + "\"");
    ASSERT_TRUE(PumpUntil([&] { return PathExists(folder / "taken"); }));
    EXPECT_FALSE(HandOverLock::Take(50ms));
    holder.Kill();
    EXPECT_TRUE(HandOverLock::Take(1s));
}

} // namespace
} // namespace zentaro::platform

int main(int count, char** arguments)
{
    if (count >= 4 && std::string(arguments[1]) == "peer")
        return zentaro::platform::Peer(arguments[2], arguments[3], count > 4 ? arguments[4] : "");
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
