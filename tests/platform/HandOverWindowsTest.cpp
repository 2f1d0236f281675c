#include "tests/platform/HandOverFixture.h"

#include <windows.h>

namespace zentaro::platform {
namespace {

using namespace std::chrono_literals;
using enum HandOverOutcome;

TEST_F(HandOverTest, windows_of_others_are_no_players_and_keep_their_titles)
{
    const auto module = GetModuleHandleA(nullptr);
    const HWND inWindow = CreateWindowExA(0, "EDIT", "mine", 0, 0, 0, 9, 9, nullptr, nullptr, module, nullptr);
    const HWND label = CreateWindowExA(0, "STATIC", "mine", 0, 0, 0, 9, 9, HWND_MESSAGE, nullptr, module, nullptr);
    const auto other = folder / "other.exe";
    ASSERT_TRUE(CopyFileA(OwnProgram().c_str(), other.c_str(), FALSE));
    const auto program = StartPeer({ "listen", folder / "handles" }, other);
    const auto box = reinterpret_cast<HWND>(std::stoull(HandlesIn(folder / "handles").second));
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
    program->Terminate();
    EXPECT_TRUE(program->HasEnded(10s)); // until then its file cannot be removed
}

std::function<void()> g_onTimer;

void CALLBACK OnTimer(HWND, UINT, UINT_PTR timer, DWORD)
{
    KillTimer(nullptr, timer);
    g_onTimer();
}

TEST_F(HandOverTest, a_text_that_comes_before_there_is_a_handler_waits_for_it)
{
    ends = std::move(*HandOverEnds::Listen());
    opensAtOnce = true;
    g_onTimer = [this] { ends->Deliver(Keep()); };
    SetTimer(nullptr, 0, 50, &OnTimer);
    auto sending = Send(ends->CommandHandle(), "early.avi");
    EXPECT_EQ(OutcomeOf(sending), Opened);
    EXPECT_EQ(received, std::vector<std::string>{ "early.avi" });
    EXPECT_EQ(SendHandOverText(ends->CommandHandle(), ""), Opened);
    for (int i = 0; i < 110; ++i) // more than may wait at once
        EXPECT_EQ(SendHandOverText(ends->CommandHandle(), "next.avi"), Opened);
}

} // namespace
} // namespace zentaro::platform
