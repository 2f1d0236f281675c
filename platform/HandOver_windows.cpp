#include "desktop/HandOverRules.h"
#include "platform/HandOver.h"
#include "platform/System_windows.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>
#include <windows.h>

namespace zentaro::platform {

using namespace desktop;

namespace {

using Clock = std::chrono::steady_clock;

/// What the window procedure of the command box gives back for a text.
constexpr LRESULT kDropped = 0;
constexpr LRESULT kOpened = TRUE;
constexpr LRESULT kTakenOver = 2;

/// Texts whose senders wait at once. Each wait lies within the one before it on this thread's stack.
constexpr std::size_t kMostWaiting = 100;

HWND WindowOf(const std::string& handle)
{
    const auto number = ParseHandOverHandle(handle);
    return number ? reinterpret_cast<HWND>(static_cast<std::uintptr_t>(*number)) : nullptr;
}

std::string HandleOf(HWND window)
{
    return std::to_string(reinterpret_cast<std::uintptr_t>(window));
}

constexpr const char* kPlayer = "zentaro.exe";

/// The name of the program that a process runs, without its folder: an installed player and a copy know each other.
std::string ProgramName(HANDLE process)
{
    std::string path(32768, '\0');
    auto size = static_cast<DWORD>(path.size());
    if (!QueryFullProcessImageNameA(process, 0, path.data(), &size))
        return {};
    path.resize(size);
    return path.substr(path.rfind('\\') + 1);
}

bool IsOurProgram(HWND window)
{
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    const SystemObject process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id));
    if (!process)
        return false;
    const auto name = ProgramName(process.get());
    // What calls a player is one itself, or a tool that lies beside it.
    const auto isNamed = [&](const std::string& other) { return lstrcmpiA(name.c_str(), other.c_str()) == 0; };
    return !name.empty() && (isNamed(kPlayer) || isNamed(ProgramName(GetCurrentProcess())));
}

/// A player that was started a moment ago, beside others that start, comes to its messages late.
bool IsStarting(HWND window)
{
    constexpr ULONGLONG kStartTime = 60 * 10'000'000ULL; // in steps of 100 ns
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    const SystemObject process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id));
    FILETIME started{};
    FILETIME now{};
    FILETIME ignored{};
    if (!process || !GetProcessTimes(process.get(), &started, &ignored, &ignored, &ignored))
        return false;
    GetSystemTimeAsFileTime(&now);
    const auto number = [](const FILETIME& time) {
        return static_cast<ULONGLONG>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
    };
    return number(now) - number(started) < kStartTime;
}

/// Whether the window is one of a player's ends. The number of one that is gone may be given to any other window, which
/// would show our text as its title.
bool IsEnd(HWND window)
{
    // Only text boxes below the message root are listed here, whoever they belong to.
    HWND box = nullptr;
    do {
        box = FindWindowExA(HWND_MESSAGE, box, "EDIT", nullptr);
    } while (box && box != window);
    return box && IsOurProgram(window);
}

/// A text on its way, shared by the window procedure that keeps its sender waiting and by the token.
struct TextInHand {
    std::optional<LRESULT> answer;
};

/// Handles this thread's messages until the answer is there or the time is over.
void WaitForAnswer(TextInHand& text, Clock::time_point end)
{
    while (!text.answer) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
        if (left <= std::chrono::milliseconds(0))
            return;
        MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(left.count()), QS_ALLINPUT, MWMO_INPUTAVAILABLE);
        MSG message;
        while (!text.answer && PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT) {
                // It is for the loop that runs the player, which opens nothing any more.
                PostQuitMessage(static_cast<int>(message.wParam));
                text.answer = kDropped;
                return;
            }
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
    }
}

/// Text boxes that are never shown. The window procedure of all but the one for probes is preceded by ours, so that a
/// text is handed on while its sender still waits.
class TextBoxes : public HandOverEnds {
public:
    using Handler = std::function<void(std::string, HandOverDone)>;

    explicit TextBoxes(HandOverLimits limits)
        : m_limits(limits)
    {
    }
    ~TextBoxes() override
    {
        for (const auto& text : m_waiting)
            text->answer = text->answer.value_or(kDropped);
        for (const HWND box : { m_command.box, m_added.box, m_probe }) {
            if (box)
                DestroyWindow(box);
        }
    }

    Result<void> Create()
    {
        m_probe = CreateBox();
        for (auto* const end : { &m_command, &m_added }) {
            end->box = CreateBox();
            if (!end->box || !m_probe)
                return SystemError("Cannot make a text box", GetLastError());
            SetWindowLongPtrA(end->box, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
            m_boxProcedure = reinterpret_cast<WNDPROC>(
                SetWindowLongPtrA(end->box, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(OnMessage)));
        }
        return {};
    }

    std::string CommandHandle() const override { return HandleOf(m_command.box); }
    std::string ProbeHandle() const override { return HandleOf(m_probe); }
    std::string AddHandle() const override { return HandleOf(m_added.box); }

    void Deliver(Handler onCommand) override { DeliverTo(m_command, std::move(onCommand)); }
    void DeliverAdded(Handler onPath) override { DeliverTo(m_added, std::move(onPath)); }

private:
    struct End {
        HWND box = nullptr;
        Handler handler = {};
        std::vector<std::pair<std::string, HandOverDone>> early = {};
    };

    void DeliverTo(End& end, Handler handler)
    {
        end.handler = std::move(handler);
        const std::weak_ptr<int> self = m_life;
        for (auto& [text, done] : std::exchange(end.early, {})) {
            if (!self.expired())
                HandOn(end, std::move(text), std::move(done));
        }
    }

    static HWND CreateBox()
    {
        // Below the message root: such windows are found by their handle alone and need no screen.
        return CreateWindowExA(
            0, "EDIT", "", 0, 0, 0, 100, 20, HWND_MESSAGE, nullptr, GetModuleHandleA(nullptr), nullptr);
    }

    static LRESULT CALLBACK OnMessage(HWND box, UINT message, WPARAM first, LPARAM second)
    {
        auto* self = reinterpret_cast<TextBoxes*>(GetWindowLongPtrA(box, GWLP_USERDATA));
        if (message != WM_SETTEXT)
            return CallWindowProcA(self->m_boxProcedure, box, message, first, second);
        // The handler takes the text in place of the box, which so is empty again at once; measuring a long line would
        // take the box seconds.
        const char* text = reinterpret_cast<const char*>(second);
        auto& end = box == self->m_added.box ? self->m_added : self->m_command;
        return text && *text != '\0' ? self->OnText(end, text) : kOpened;
    }

    LRESULT OnText(End& receiver, std::string text)
    {
        const auto end = Clock::now() + m_limits.opening;
        const auto inHand = std::make_shared<TextInHand>();
        if (m_waiting.size() >= kMostWaiting)
            inHand->answer = kTakenOver;
        m_waiting.push_back(inHand);
        const std::weak_ptr<int> self = m_life;
        HandOn(receiver, std::move(text), [inHand] { inHand->answer = inHand->answer.value_or(kOpened); });
        WaitForAnswer(*inHand, end);
        // The player may have ended meanwhile, and this object with it.
        if (!self.expired())
            std::erase(m_waiting, inHand);
        return inHand->answer.value_or(kTakenOver);
    }

    static void HandOn(End& end, std::string text, HandOverDone done)
    {
        if (!end.handler) {
            end.early.emplace_back(std::move(text), std::move(done));
            return;
        }
        const auto handler = end.handler; // the call may end the player, and this object with it
        handler(std::move(text), std::move(done));
    }

    HandOverLimits m_limits;
    End m_command;
    End m_added;
    HWND m_probe = nullptr;
    WNDPROC m_boxProcedure = nullptr;
    std::vector<std::shared_ptr<TextInHand>> m_waiting;
    std::shared_ptr<int> m_life = std::make_shared<int>();
};

class MutexLock : public HandOverLock {
public:
    explicit MutexLock(HANDLE mutex)
        : m_mutex(mutex)
    {
    }
    ~MutexLock() override
    {
        ReleaseMutex(m_mutex);
        CloseHandle(m_mutex);
    }

private:
    HANDLE m_mutex;
};

} // namespace

Result<std::unique_ptr<HandOverEnds>> HandOverEnds::Listen()
{
    return ListenWithin({});
}

Result<std::unique_ptr<HandOverEnds>> HandOverEnds::ListenWithin(HandOverLimits limits)
{
    auto boxes = std::make_unique<TextBoxes>(limits);
    if (const auto created = boxes->Create(); !created)
        return created.error();
    return std::unique_ptr<HandOverEnds>(std::move(boxes));
}

bool IsHandOverAlive(const std::string& handle)
{
    const HWND window = WindowOf(handle);
    return window && IsEnd(window);
}

HandOverOutcome SendHandOverText(const std::string& handle, const std::string& text)
{
    return SendHandOverTextWithin(handle, text, {});
}

HandOverOutcome SendHandOverTextWithin(const std::string& handle, const std::string& text, HandOverLimits limits)
{
    const HWND window = WindowOf(handle);
    if (!window || !IsEnd(window) || HandOverText(text).size() > kHandOverTextLimit)
        return HandOverOutcome::Silent;
    DWORD_PTR answer = 0;
    // Asked first without the text: one that is stopped must not open it later, when its sender has long done so
    // itself.
    constexpr int kWhileStarting = 8; // times as patient
    const auto silence = static_cast<UINT>(limits.silence.count() * (IsStarting(window) ? kWhileStarting : 1));
    if (!SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_NORMAL, silence, &answer))
        return HandOverOutcome::Silent;
    // A little longer than the receiver lets wait, so that it is the receiver who says that the time is over.
    const auto patience = static_cast<UINT>((limits.opening + std::chrono::seconds(1)).count());
    SetLastError(ERROR_SUCCESS);
    if (!SendMessageTimeoutA(
            window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()), SMTO_NORMAL, patience, &answer))
        return GetLastError() == ERROR_TIMEOUT ? HandOverOutcome::TakenOver : HandOverOutcome::Silent;
    if (answer == kOpened)
        return HandOverOutcome::Opened;
    return answer == kTakenOver ? HandOverOutcome::TakenOver : HandOverOutcome::Silent;
}

std::unique_ptr<HandOverLock> HandOverLock::Take(std::chrono::milliseconds timeout, const std::string& purpose)
{
    const HANDLE mutex = CreateMutexA(nullptr, FALSE, ("Local\\Zentaro-" + purpose).c_str());
    if (!mutex)
        return nullptr;
    const DWORD outcome = WaitForSingleObject(mutex, static_cast<DWORD>(timeout.count()));
    // An abandoned one belonged to a start that was killed.
    if (outcome == WAIT_OBJECT_0 || outcome == WAIT_ABANDONED)
        return std::make_unique<MutexLock>(mutex);
    CloseHandle(mutex);
    return nullptr;
}

void MarkPlayerRunning(const std::string& name)
{
    // Never closed: the system takes the mark away with the process.
    CreateMutexA(nullptr, FALSE, name.c_str());
}

} // namespace zentaro::platform
